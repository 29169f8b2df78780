#include "editors/mod/mod_forms.h"

#include "data/format/clean_text.h"
#include "data/format/numbers.h"
#include "data/format/texts.h"
#include "data/format/words.h"
#include "data/unit/enumerations.h"
#include "data/unit/older_words.h"
#include "mod/mod_fields.h"
#include "mod/starting_points.h"
#include "resources/resource.h"

#include <algorithm>
#include <array>
#include <map>
#include <utility>

namespace varrocade {

namespace {

namespace mf = mod_field;

constexpr int MonthsOfAYear = 12;
constexpr std::string_view BackToFront = "The end is before the beginning";

// ---- the mod

constexpr auto ModRows = std::to_array<FormRow<ModSettings>>({
    {IDC_MOD_NAME, mf::Name},
    {IDC_MOD_AUTHOR, mf::Author},
    {IDC_MOD_VERSION, mf::Version},
    {IDC_MOD_COMMENT, mf::Comment},
    {IDC_MOD_FIRST, mf::FirstYear},
    {IDC_MOD_FIRST_MONTH, mf::FirstMonth},
    {IDC_MOD_LAST, mf::LastYear},
    {IDC_MOD_LAST_MONTH, mf::LastMonth},
});

std::optional<FormError> checkWar(const ModSettings&, ModSettings& read) {
    if (read.name.empty()) {
        return FormError{refusedInput(mf::Name, "A name must be entered"), IDC_MOD_NAME};
    }
    if (read.lastYear * MonthsOfAYear + read.lastMonth < read.firstYear * MonthsOfAYear + read.firstMonth) {
        return FormError{refusedInput(mf::LastYear, std::string(BackToFront)), IDC_MOD_LAST};
    }
    return std::nullopt;
}

constexpr FormShape<ModSettings> ModShape = {.rows = ModRows, .check = checkWar};

// ---- what has a period

struct PeriodOf {
    static auto& in(auto& entry) { return entry.period; }
};

template <typename Entry>
std::optional<FormError> checkPeriod(const Entry&, Entry& read) {
    const ModPeriod& period = read.period;
    const bool isClosed = period.firstYear != 0 && period.lastYear != 0;
    if (isClosed && period.lastYear * MonthsOfAYear + period.lastMonth <
                        period.firstYear * MonthsOfAYear + period.firstMonth) {
        return FormError{refusedInput(mf::PeriodLastYear, std::string(BackToFront)), IDC_MOD_LAST};
    }
    return std::nullopt;
}

std::string dateText(int year, int month) {
    return year == 0 ? "" : std::to_string(month) + "/" + std::to_string(year);
}

std::string periodText(const ModPeriod& period) {
    const std::string first = dateText(period.firstYear, period.firstMonth);
    const std::string last = dateText(period.lastYear, period.lastMonth);
    return first.empty() && last.empty() ? "always" : first + " - " + last;
}

/// The rows of an entry with a period: its own, then the dates.
template <typename Entry, typename... Own>
constexpr std::array<FormRow<Entry>, sizeof...(Own) + 4> withPeriod(const Own&... own) {
    return {own..., FormRow<Entry>(IDC_MOD_FIRST, PeriodOf(), mf::PeriodFirstYear),
            FormRow<Entry>(IDC_MOD_FIRST_MONTH, PeriodOf(), mf::PeriodFirstMonth),
            FormRow<Entry>(IDC_MOD_LAST, PeriodOf(), mf::PeriodLastYear),
            FormRow<Entry>(IDC_MOD_LAST_MONTH, PeriodOf(), mf::PeriodLastMonth)};
}

constexpr auto AllegianceRows = withPeriod<ModAllegiance>(FormRow<ModAllegiance>(IDC_MOD_SIDE, mf::Side));

std::string allegianceLine(std::size_t, const ModAllegiance& allegiance) {
    return periodText(allegiance.period) + ": " + displayName(allegiance.side, SidePrefix);
}

constexpr auto UniformRows =
    withPeriod<ModUniform>(FormRow<ModUniform>(IDC_MOD_PROFILE, mf::UniformProfile),
                           FormRow<ModUniform>(IDC_MOD_GAME_IMAGE, mf::UniformGame),
                           FormRow<ModUniform>(IDC_MOD_RANKS_IMAGE, mf::UniformRanks));

std::string uniformLine(std::size_t, const ModUniform& uniform) {
    return periodText(uniform.period) + ": " + uniform.profileImage;
}

constexpr auto EquipmentRows =
    withPeriod<ModEquipment>(FormRow<ModEquipment>(IDC_MOD_NAME, mf::EquipmentName));

std::string equipmentLine(std::size_t, const ModEquipment& list) {
    return list.name + " (" + periodText(list.period) + "), " + counted(list.units.size(), "unit");
}

// ---- other entries

constexpr auto NationalityRows = std::to_array<FormRow<ModNationality>>({
    {IDC_MOD_NATIONALITY, mf::Id},
    {IDC_MOD_NAME, mf::ShownName},
    {IDC_MOD_ADJECTIVE, mf::Adjective},
    {IDC_MOD_FLAG, mf::Flag},
    {IDC_MOD_ANIMATED_FLAG, mf::AnimatedFlag},
});

std::string nationalityLine(std::size_t place, const ModNationality& nation) {
    const std::string known = displayName(nation.id, NationalityPrefix);
    return std::to_string(place) + ". " + (nation.name.empty() ? known : nation.name + " (" + known + ")");
}

constexpr auto SurnameRows = std::to_array<FormRow<ModSurname>>({
    {IDC_MOD_NAME, mf::SurnameText},
    {IDC_MOD_SHARE, mf::Commonness},
});

std::string surnameLine(std::size_t, const ModSurname& surname) {
    return surname.name + "  " + std::to_string(surname.commonness);
}

std::optional<FormError> namelessSurname(const ModSurname& surname) {
    return surname.name.empty() ? std::optional(FormError{
                                      refusedInput(mf::SurnameText, "A name must be entered"), IDC_MOD_NAME})
                                : std::nullopt;
}

constexpr auto RankRows = std::to_array<FormRow<ModRank>>({
    {IDC_MOD_NAME, mf::RankName},
    {IDC_MOD_RANKS_IMAGE, mf::RankImage},
});

std::string rankLine(std::size_t place, const ModRank& rank) {
    return std::to_string(place) + ". " + rank.name;
}

std::optional<FormError> namelessRank(const ModRank& rank) {
    return rank.name.empty()
               ? std::optional(FormError{refusedInput(mf::RankName, "A name must be entered"), IDC_MOD_NAME})
               : std::nullopt;
}

// ---- what is pasted

/// A count as lists of names have it: with or without a mark between its thousands.
std::int32_t censusCount(std::string_view text) {
    constexpr std::string_view marks = ",.' \xA0";
    constexpr std::size_t groupLength = 3;
    const auto digitsAt = [text](std::size_t at) {
        return std::min(text.find_first_not_of("0123456789", at), text.size()) - at;
    };
    std::size_t at = std::min(text.find_first_not_of(" \t"), text.size());
    std::string digits(text.substr(at, digitsAt(at)));
    at += digits.size();
    const bool mayGoOn = !digits.empty() && digits.size() <= groupLength && digits != "0";
    while (mayGoOn && at < text.size() && marks.find(text[at]) != std::string_view::npos &&
           digitsAt(at + 1) == groupLength) {
        digits += text.substr(at + 1, groupLength);
        at += 1 + groupLength;
    }
    return toInteger(digits);
}

bool isStartingComment(const std::string& comment) {
    for (std::size_t i = 0; i < startingPointNames().size(); ++i) {
        if (startingSettings(static_cast<StartingPoint>(i)).comment == comment) {
            return true;
        }
    }
    return false;
}

} // namespace

const FormShape<ModSettings>& modShape() {
    return ModShape;
}

const ListShape<ModNationality>& nationalityShape() {
    static const ListShape<ModNationality> shape{.form = {.rows = NationalityRows}, .line = nationalityLine};
    return shape;
}

const ListShape<ModAllegiance>& allegianceShape() {
    static const ListShape<ModAllegiance> shape{
        .form = {.rows = AllegianceRows, .check = checkPeriod<ModAllegiance>}, .line = allegianceLine};
    return shape;
}

const ListShape<ModSurname>& surnameShape() {
    static const ListShape<ModSurname> shape{
        .form = {.rows = SurnameRows}, .line = surnameLine, .incomplete = namelessSurname};
    return shape;
}

const ListShape<ModUniform>& modUniformShape() {
    static const ListShape<ModUniform> shape{.form = {.rows = UniformRows, .check = checkPeriod<ModUniform>},
                                             .line = uniformLine};
    return shape;
}

const ListShape<ModRank>& rankShape() {
    static const ListShape<ModRank> shape{
        .form = {.rows = RankRows}, .line = rankLine, .incomplete = namelessRank};
    return shape;
}

const ListShape<ModEquipment>& equipmentShape() {
    static const ListShape<ModEquipment> shape{
        .form = {.rows = EquipmentRows, .check = checkPeriod<ModEquipment>}, .line = equipmentLine};
    return shape;
}

ModNationality nextNationality(const std::vector<ModNationality>& nations) {
    ModNationality next;
    for (const std::string_view id : nationalityNames()) {
        const bool isTaken = std::any_of(nations.begin(), nations.end(), [&](const ModNationality& nation) {
            return todaysWord(nation.id) == id;
        });
        if (!isTaken && todaysWord(id) == id) {
            next.id = id;
            break;
        }
    }
    completeNationality(next);
    return next;
}

void followNationality(ModNationality& nation, ModNationality& untouched) {
    const auto words = nationalityNames();
    ModNationality same = nation;
    same.id = untouched.id;
    if (nation.id == untouched.id || !(same == untouched) ||
        std::find(words.begin(), words.end(), nation.id) == words.end()) {
        return;
    }
    ModNationality other;
    other.id = nation.id;
    completeNationality(other);
    nation = other;
    untouched = std::move(other);
}

void startAnew(ModSettings& settings, ModSettings start) {
    settings.firstYear = start.firstYear;
    settings.firstMonth = start.firstMonth;
    settings.lastYear = start.lastYear;
    settings.lastMonth = start.lastMonth;
    settings.nationalities = std::move(start.nationalities);
    if (settings.comment.empty() || isStartingComment(settings.comment)) {
        settings.comment = std::move(start.comment);
    }
}

std::string creditsText(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += (text.empty() && &line == &lines.front() ? "" : "\r\n") + line;
    }
    return text;
}

std::vector<std::string> creditLines(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        lines.emplace_back(line);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    while (!lines.empty() && lines.back().empty()) {
        lines.pop_back();
    }
    return lines;
}

std::optional<FormError> refusalOfCredits(const std::vector<std::string>& lines) {
    const auto bad = std::find_if_not(lines.begin(), lines.end(),
                                      [](const std::string& line) { return canBeValue(line); });
    if (bad == lines.end()) {
        return std::nullopt;
    }
    return FormError{
        {.key = finding_key::BadInput,
         .severity = Severity::Error,
         .message = "A line of the credits cannot begin with \"<\", nor hold \"//\" or \"</\":\n\n" + *bad,
         .value = *bad},
        IDC_MOD_CREDITS};
}

std::vector<ModSurname> surnamesOfText(std::string_view text, std::vector<std::string>* leftOut) {
    constexpr std::string_view blanks = " \t";
    std::vector<ModSurname> surnames;
    for (const std::string& line : creditLines(text)) {
        const std::size_t tab = line.find('\t');
        std::string_view name = std::string_view(line).substr(0, tab);
        name.remove_prefix(std::min(name.find_first_not_of(blanks), name.size()));
        name = name.substr(0, name.find_last_not_of(blanks) + 1);
        const std::int32_t commonness =
            tab == std::string::npos ? 1 : censusCount(std::string_view(line).substr(tab + 1));
        if (!name.empty() && !canBeValue(name)) {
            if (leftOut != nullptr) {
                leftOut->emplace_back(name);
            }
        } else if (!name.empty()) {
            surnames.push_back(
                {std::string(name), std::clamp(commonness, mf::Share.range.least, mf::Share.range.greatest)});
        }
    }
    return surnames;
}

void sortSurnames(std::vector<ModSurname>& surnames) {
    std::stable_sort(surnames.begin(), surnames.end(), [](const ModSurname& a, const ModSurname& b) {
        return a.commonness != b.commonness ? a.commonness > b.commonness
                                            : compareIgnoringCase(a.name, b.name) < 0;
    });
}

void sortSurnamesByName(std::vector<ModSurname>& surnames) {
    std::stable_sort(surnames.begin(), surnames.end(), [](const ModSurname& a, const ModSurname& b) {
        return compareIgnoringCase(a.name, b.name) < 0;
    });
}

void dropDoubles(std::vector<ModSurname>& surnames) {
    std::map<std::string, std::size_t> places;
    std::vector<ModSurname> kept;
    for (ModSurname& surname : surnames) {
        const auto [place, isNew] = places.try_emplace(loweredText(surname.name), kept.size());
        if (isNew) {
            kept.push_back(std::move(surname));
        } else {
            std::int32_t& commonness = kept[place->second].commonness;
            commonness = std::max(commonness, surname.commonness);
        }
    }
    surnames = std::move(kept);
}

std::string shownNationality(const ModNationality& nation) {
    return nation.name.empty() ? displayName(nation.id, NationalityPrefix) : nation.name;
}

std::string nationalitySummary(const std::vector<ModNationality>& nations) {
    constexpr std::size_t longest = 165; // of two lines of the dialog
    if (nations.empty()) {
        return "Nationalities: all, as the game has them";
    }
    std::string text = "Nationalities (" + std::to_string(nations.size()) + "): ";
    for (std::size_t i = 0; i < nations.size(); ++i) {
        const std::string name = (i == 0 ? "" : ", ") + shownNationality(nations[i]);
        if (text.size() + name.size() > longest) {
            return text + " and " + std::to_string(nations.size() - i) + " more";
        }
        text += name;
    }
    return text;
}

const std::vector<NamedColour>& namedColours() {
    static const std::vector<NamedColour> colours = std::apply(
        [](const auto&... fields) {
            return std::vector<NamedColour>{{fields.label, fields.member}...};
        },
        fieldsOf<ModColours>);
    return colours;
}

} // namespace varrocade
