// The form engine on a record that has a value of every type: codecs, rows, and what is not changed.

#include "editors/form/form.h"
#include "fake_form_port.h"

#include <gtest/gtest.h>

#include <array>

namespace varrocade {

/// An enumeration of which forms offer some values only.
enum class SampleGuidance : std::uint8_t { Unguided, FireAndForget, TopAttack };

template <>
struct FormWords<SampleGuidance> {
    static constexpr auto Table = std::to_array<FormWord<SampleGuidance>>(
        {{SampleGuidance::Unguided, "Unguided"}, {SampleGuidance::TopAttack, "Top attack"}});
    static constexpr std::span<const FormWord<SampleGuidance>> words() { return Table; }
};

namespace tests {
namespace {

struct Sample {
    std::int8_t tiny = -3;
    std::uint16_t shortNumber = 7;
    std::uint32_t natural = 8;
    std::int64_t longNumber = 9;
    float speed = 0.1234567F;
    double length = 1.23456789;
    std::string name = "two\r\nlines";
    FixedString<4> code{"ab"};
    Text image{"tracer"};
    SampleGuidance guided = SampleGuidance::FireAndForget;
    std::optional<std::int16_t> given;
    bool isTracer = false;
    bool operator==(const Sample&) const = default;
};

enum Control {
    Tiny = 1,
    Short,
    Natural,
    Long,
    Speed,
    Length,
    Name,
    Code,
    Image,
    Guided,
    Given,
    Tracer,
    Plain
};

namespace row = field_row;
constexpr Holders Guns = Holders::of(Holder::Gun);
constexpr auto TinyField = row::number(&Sample::tiny, "", "Tiny");
constexpr auto ShortField = row::number(&Sample::shortNumber, "", "Short");
constexpr auto NaturalField = row::number(&Sample::natural, "", "Natural");
constexpr auto LongField = row::number(&Sample::longNumber, "", "Long");
constexpr auto SpeedField = row::real(&Sample::speed, "", "Speed", {.range = NotNegative, .stored = Guns});
constexpr auto LengthField = row::real(&Sample::length, "", "Length", {.decimals = 2});
constexpr auto NameField = row::text(&Sample::name, "", "Name");
constexpr auto CodeField = row::text(&Sample::code, "", "Code");
constexpr auto ImageField = row::image(&Sample::image, "", "Image", {});
constexpr auto GuidedField = row::choice(&Sample::guided, "", "Guided", nullptr);
constexpr auto GivenField = row::number(&Sample::given, "", "Given", {.range = {.least = 1, .greatest = 9}});
constexpr auto TracerField = row::flag(&Sample::isTracer, "", "Tracer");

bool hasTracer(FormPort& port, const Sample&) {
    return port.isChecked(Tracer);
}

constexpr auto Rows = std::to_array<FormRow<Sample>>({
    {Tiny, TinyField},
    {Short, ShortField},
    {Natural, NaturalField},
    {Long, LongField},
    {Speed, SpeedField, {.changedBy = Guns}},
    {Length, LengthField},
    {Name, NameField},
    {Code, CodeField},
    {Guided, GuidedField},
    {Given, GivenField},
    {Tracer, TracerField, {.otherwise = Plain}},
    {Image, ImageField, {.enabledWhen = hasTracer, .emptyAs = "Default"}},
});

/// A sample that has lines is a gun's.
constexpr FormShape<Sample> Shape = {.rows = Rows, .holder = [](const Sample& sample) {
                                         return sample.name == "bomb" ? Holder::Bomb : Holder::Gun;
                                     }};

/// What a record holds after a text was typed, or the refusal.
std::string typed(Sample sample, int control, const char* text) {
    FakeFormPort port;
    port.setChecked(Tracer, true);
    sample.isTracer = true;
    fillForm(port, Shape, sample);
    port.texts[control] = text;
    markControl(port, Shape, sample, control);
    const auto error = readForm(port, Shape, sample);
    EXPECT_EQ(port.marks[control], error ? error->message : "") << "the control shows it too";
    if (error) {
        EXPECT_EQ(error->control, control);
        return error->message;
    }
    fillForm(port, Shape, sample);
    return port.texts[control];
}

TEST(FormEngine, CodecsTakeWhatTheirTypesHold) {
    struct Case {
        int control;
        const char* text;
        const char* result;
    };
    constexpr Case cases[] = {
        {Tiny, "-128", "-128"},
        {Tiny, "128", "\"Tiny\" must be a whole number from -128 to 127"},
        {Short, " +65535 ", "65535"},
        {Short, "-1", "\"Short\" must be a whole number from 0 to 65535"},
        {Natural, "4294967295", "4294967295"},
        {Natural, "-1", "\"Natural\" must be a whole number of at least 0"},
        {Long, "-9000000000000000000", "-9000000000000000000"},
        {Long, "99999999999999999999",
         "\"Long\" must be a whole number from -9223372036854775806 to 9223372036854775806"},
        {Long, "1e5", "\"Long\" must be a whole number"},
        {Speed, "1234567", "1.23457e+06"},
        {Speed, "7.920", "7.92"},
        {Speed, "-0.5", "\"Speed\" must be a number of at least 0"},
        {Speed, "1e39", "\"Speed\" must be a number of at least 0"},
        {Speed, "1,5", "\"Speed\" must be a number of at least 0"},
        {Speed, "nan", "\"Speed\" must be a number of at least 0"},
        {Length, "3.456", "3.46"},
        {Length, "", "\"Length\" must be a number"},
        {Name, "", ""},
        {Name, "a // b",
         "\"Name\" must not begin with \"<\" nor contain \"</\" or \"//\": the file could not hold it"},
        {Code, "abcdef", "abcd"},
        {Image, "smoke.PNG", "smoke"},
        {Image, "default.png", "Default"},
        {Guided, "top attack", "Top attack"},
        {Guided, "other", "\"Guided\" must be one of the words of its list"},
        {Given, " ", ""},
        {Given, "9", "9"},
        {Given, "10", "\"Given\" must be a whole number from 1 to 9"},
    };
    for (const Case& row : cases) {
        EXPECT_EQ(typed({}, row.control, row.text), row.result) << row.control << " " << row.text;
    }
}

TEST(FormEngine, WhatIsNotChangedIsNotChanged) {
    // Six digits of a float, two decimals, two lines on one, a mode without a word: shown less exactly than
    // they are.
    Sample sample;
    sample.given = 720;
    sample.code = "</";
    const Sample before = sample;
    FakeFormPort port;
    fillForm(port, Shape, sample);
    port.texts[Name] = onOneLine(port.texts[Name]);
    EXPECT_FALSE(readForm(port, Shape, sample)) << "what an old file holds is no hindrance to other changes";
    EXPECT_EQ(sample, before);
    port.texts[Speed] = "0.123458";
    EXPECT_FALSE(readForm(port, Shape, sample));
    EXPECT_EQ(sample.speed, 0.123458F);
    EXPECT_EQ(sample.length, before.length);
    // A refusal leaves the whole record as it was.
    port.texts[Tiny] = "5";
    port.texts[Given] = "721";
    EXPECT_TRUE(readForm(port, Shape, sample));
    EXPECT_EQ(sample.tiny, before.tiny);
    readPossible(port, Shape, sample);
    EXPECT_EQ(sample.tiny, 5) << "but can be followed row by row";
    EXPECT_EQ(sample.given, 720);
}

TEST(FormEngine, DisabledControlsKeepTheirValues) {
    Sample bomb;
    bomb.name = "bomb";
    FakeFormPort port;
    fillForm(port, Shape, bomb);
    EXPECT_TRUE(port.isChecked(Plain));
    EXPECT_TRUE(port.disabled.contains(Speed)) << "a gun's";
    EXPECT_TRUE(port.disabled.contains(Image));
    EXPECT_EQ(notStoredText(Shape, bomb), "(Speed is not stored in the file)");
    port.texts[Image] = "<";
    port.texts[Speed] = "fast";
    ASSERT_FALSE(readForm(port, Shape, bomb));
    EXPECT_EQ(bomb.image, "tracer");
    port.setChecked(Tracer, true);
    updateEnabling(port, Shape, bomb);
    EXPECT_FALSE(port.disabled.contains(Image));
    EXPECT_TRUE(readForm(port, Shape, bomb));
}

TEST(FormEngine, ListsOfferTheWordsOfTheirFields) {
    Sample sample;
    FakeFormPort port;
    offerChoices(port, Shape, sample, {});
    EXPECT_EQ(port.choices[Guided], (std::vector<std::string>{"Unguided", "Top attack"}));
    EXPECT_FALSE(port.choices.contains(Image)) << "no pictures are known";
    EXPECT_EQ(port.limits[Code], 0U);
    fillForm(port, Shape, sample);
    EXPECT_EQ(port.limits[Code], 4U);
    EXPECT_FALSE(port.limits.contains(Name));
}

} // namespace
} // namespace tests
} // namespace varrocade
