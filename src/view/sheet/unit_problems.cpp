#include "view/sheet/unit_problems.h"

#include "data/each_field.h"
#include "data/field_text.h"
#include "data/finding_text.h"
#include "data/format/numbers.h"
#include "data/format/texts.h"
#include "data/losses/loss_list.h"
#include "data/losses/lost_text.h"
#include "data/losses/save_losses.h"
#include "data/reading/unit_reader.h"
#include "data/unit/elements.h"
#include "data/unit/image_names.h"
#include "data/unit/unit_consistency.h"
#include "weapons/weapon_names.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <utility>

namespace varrocade {

namespace {

/// A step of a path: "turret[2]" is the name "turret" and the number 2, which counts from 1; 0 for none.
struct Step {
    std::string_view name;
    std::size_t number = 0;

    [[nodiscard]] std::size_t place() const { return number > 0 ? number - 1 : 0; }
};

Step takeStep(std::string_view& path) {
    const std::size_t end = std::min(path.find('.'), path.size());
    Step step{path.substr(0, end)};
    path.remove_prefix(std::min(path.size(), end + 1));
    const std::size_t bracket = step.name.find('[');
    if (bracket != std::string_view::npos) {
        step.number = static_cast<std::size_t>(toInteger(step.name.substr(bracket + 1)));
        step.name = step.name.substr(0, bracket);
    }
    return step;
}

constexpr std::size_t Nowhere = static_cast<std::size_t>(-1);

/// The place in the list of the component that a path counts among those of its kind.
std::size_t componentPlace(const VehicleRecord& vehicle, const Step& step) {
    std::size_t number = 0;
    for (std::size_t i = 0; i < vehicle.components.size(); ++i) {
        const bool isOfKind = elementOf(vehicle.components[i].kind) == step.name;
        if (isOfKind && ++number == step.number) {
            return i;
        }
    }
    return Nowhere;
}

UnitPart partOfComponent(std::size_t component, const Step& step) {
    constexpr std::pair<std::string_view, PartKind> kinds[] = {
        {element::Weapon, PartKind::Weapon},
        {element::Ammo, PartKind::Ammunition},
        {element::SmokeDischarger, PartKind::Discharger},
        {element::Man, PartKind::CrewMan},
        {element::Armour, PartKind::Armour}};
    for (const auto& [name, kind] : kinds) {
        if (step.name == name) {
            return {kind, component, kind == PartKind::Ammunition ? 0 : step.place()};
        }
    }
    return {PartKind::Component, component, 0};
}

UnitPart partOfVehicle(const VehicleRecord& vehicle, std::string_view path) {
    const Step step = takeStep(path);
    if (const std::size_t component = componentPlace(vehicle, step); component != Nowhere) {
        return partOfComponent(component, takeStep(path));
    }
    if (step.name == element::ExhaustPipe) {
        return {PartKind::Exhaust, 0, step.place()};
    }
    constexpr FieldId ofDetails[] = {&field::ProfileImage, &field::Weight, &field::CanMountInfantry,
                                     &field::Amphibious};
    const bool isOfDetails = std::any_of(std::begin(ofDetails), std::end(ofDetails),
                                         [&](FieldId field) { return field->element == step.name; });
    return {isOfDetails ? PartKind::Details : PartKind::Drive};
}

// ---- what the file holds

/// The elements and values of a file by what they say, each with its lines in file order.
class ValueLines {
public:
    explicit ValueLines(std::string_view content) : content_(content) {}

    /// The line of the next value of this kind that was not asked for yet, or 0.
    std::size_t next(std::string_view element, std::string_view text) {
        if (!isRead_) {
            read();
        }
        const auto found = lines_.find({std::string(element), std::string(text)});
        if (found == lines_.end() || found->second.empty()) {
            return 0;
        }
        const std::size_t line = found->second.back();
        found->second.pop_back();
        return line;
    }

private:
    /// Most units have nothing wrong, so that nobody asks.
    void read() {
        isRead_ = true;
        TagTree tree;
        tree.parseCleaned(content_);
        const SourceMap places(tree, content_);
        const auto& nodes = tree.nodes();
        for (std::size_t i = nodes.size(); i-- > 1;) {
            const std::string_view text = nodes[i].text;
            const auto add = [&](std::string_view value) {
                lines_[{std::string(nodes[i].name), std::string(value)}].push_back(
                    places.placeOf(nodes[i]).line);
            };
            if (!text.empty()) {
                add(text);
                if (imageNameOf(text) != text) {
                    add(imageNameOf(text));
                }
            }
        }
    }

    std::string_view content_;
    bool isRead_ = false;
    std::map<std::pair<std::string, std::string>, std::vector<std::size_t>> lines_; ///< the last line first
};

// ---- what values say

/// Finds what single values of a record name that is not there.
class ValueCheck {
public:
    ValueCheck(const SquadRecord& record, std::string_view fileContent,
               std::span<const std::string> missingPictures, const WeaponCatalogue& catalogue)
        : record_(record), lines_(fileContent), missingPictures_(missingPictures), catalogue_(catalogue) {}

    std::vector<SheetProblem> run() {
        forEachField(record_, [this](const FieldPlace& place, const auto& value) {
            if constexpr (std::is_convertible_v<decltype(value), std::string_view>) {
                checkName(place, value);
            }
        });
        std::vector<Finding> rules = ammunitionFindings(record_);
        if (record_.vehicle) {
            std::vector<Finding> ofVehicle = vehicleFindings(*record_.vehicle);
            std::move(ofVehicle.begin(), ofVehicle.end(), std::back_inserter(rules));
        }
        for (Finding& finding : rules) {
            add(std::move(finding));
        }
        std::stable_sort(problems_.begin(), problems_.end(),
                         [](const auto& a, const auto& b) { return a.finding.line < b.finding.line; });
        return std::move(problems_);
    }

private:
    void checkName(const FieldPlace& place, std::string_view value) {
        const FieldInfo& info = place.field;
        const std::string label(info.label);
        if (value.empty()) {
            return;
        }
        switch (info.kind) {
        case FieldKind::Word:
        case FieldKind::Nationality: {
            const auto names = info.words();
            if (std::find(names.begin(), names.end(), value) == names.end()) {
                add(place, finding_key::UnknownWord, value, label + " " + quoted(value) + " is not known");
            }
            break;
        }
        case FieldKind::Weapon:
            if (!catalogue_.entries().empty() && catalogue_.find(value) == nullptr) {
                add(place, finding_key::UnknownWeapon, value, "there is no weapon file " + quoted(value));
            }
            break;
        case FieldKind::Flavour:
            if (flavourOf(value) == AmmoFlavour::None) {
                add(place, finding_key::UnknownWord, value, label + " " + quoted(value) + " is not known");
            }
            break;
        case FieldKind::Image:
            if (isMissing(value)) {
                add(place, finding_key::MissingPicture, value,
                    "the picture " + quoted(std::string(value) + std::string(ImageEnding)) + " is missing");
            }
            break;
        default:
            break;
        }
    }

    [[nodiscard]] bool isMissing(std::string_view image) const {
        const std::string ending = "\\" + std::string(image) + std::string(ImageEnding);
        return std::any_of(missingPictures_.begin(), missingPictures_.end(),
                           [&](const std::string& path) { return path.ends_with(ending); });
    }

    void add(const FieldPlace& place, std::string_view key, std::string_view value, std::string message) {
        add({.key = key,
             .field = std::string(place.path),
             .message = std::move(message),
             .value = std::string(value)});
    }

    void add(Finding finding) {
        const std::size_t point = finding.field.rfind('.');
        const std::string_view path = finding.field;
        std::string_view element = path.substr(point == std::string_view::npos ? 0 : point + 1);
        // The personal weapons of a man are counted, not named.
        element = element.ends_with(']') ? field::PersonalWeapons.element : element;
        const auto [known, isNew] = lineOfField_.try_emplace(finding.field);
        if (isNew) {
            known->second = lines_.next(element, finding.value);
        }
        finding.line = known->second;
        const UnitPart part = partOfField(record_, finding.field);
        problems_.push_back({std::move(finding), part});
    }

    const SquadRecord& record_;
    ValueLines lines_;
    std::span<const std::string> missingPictures_;
    const WeaponCatalogue& catalogue_;
    std::map<std::string, std::size_t> lineOfField_;
    std::vector<SheetProblem> problems_;
};

} // namespace

UnitPart partOfField(const SquadRecord& record, std::string_view path) {
    const Step step = takeStep(path);
    if (step.name == element::Vehicle && record.vehicle) {
        return partOfVehicle(*record.vehicle, path);
    }
    if (step.name == element::Availability) {
        return {PartKind::Availability};
    }
    if (step.name == element::Man) {
        return {PartKind::Man, 0, step.place()};
    }
    const bool isHeavy = record.heavyWeapon && step.name == elementOf(record.heavyWeapon->kind);
    if (isHeavy || step.name == element::Aircraft) {
        const Step part = takeStep(path);
        if (part.name == element::Weapon) {
            return {PartKind::Weapon, 0, part.place()};
        }
        if (part.name == element::RotorBlades) {
            return {PartKind::Rotor, 0, part.place()};
        }
        return {isHeavy ? PartKind::HeavyWeapon : PartKind::Aircraft};
    }
    return {PartKind::Details};
}

std::vector<SheetProblem> fileProblems(Category category, std::string_view fileContent) {
    // The game's files have a few KB; a window does not wait for what is no such file.
    constexpr std::size_t mostBytes = std::size_t{256} * 1024U;
    if (fileContent.size() > mostBytes) {
        return {};
    }
    std::vector<Finding> found;
    if (auto losses = unitSaveLosses(category, fileContent)) {
        found = std::move(*losses);
    } else {
        TagTree tree;
        tree.parseCleaned(fileContent);
        LossList nesting;
        findBrokenNesting(SourceMap(tree, fileContent), tree, nesting);
        found = nesting.take();
    }
    // What is read and only not written again is the business of saving.
    std::erase_if(found, [](const Finding& loss) { return loss.severity != Severity::Error; });
    Diagnostics ofReader;
    readUnit(fileContent, {}, ofReader);
    std::copy_if(ofReader.begin(), ofReader.end(), std::back_inserter(found),
                 [](const Finding& finding) { return finding.key == finding_key::NoRoom; });
    std::stable_sort(found.begin(), found.end(),
                     [](const Finding& a, const Finding& b) { return a.line < b.line; });
    std::vector<SheetProblem> problems;
    const LineIndex lines(fileContent);
    for (Finding& finding : found) {
        std::string source =
            finding.line > 0 ? std::string(trimmed(lines.line(finding.line))) : std::string();
        problems.push_back({std::move(finding), {}, std::move(source)});
    }
    return problems;
}

std::vector<SheetProblem> valueProblems(const SquadRecord& record, std::string_view fileContent,
                                        std::span<const std::string> missingPictures,
                                        const WeaponCatalogue& catalogue) {
    return ValueCheck(record, fileContent, missingPictures, catalogue).run();
}

} // namespace varrocade
