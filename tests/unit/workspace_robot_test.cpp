// A robot that works with the editor at random while disks fill up, other programs write and the power goes:
// every change that it has made must be in a file, in the journal or in the backups.

#include "app/workspace/journal.h"
#include "app/workspace/record/journal_copies.h"
#include "faulty_files.h"
#include "workspace_fixture.h"

#include <cstdlib>
#include <deque>
#include <iterator>
#include <map>
#include <random>
#include <set>

namespace varrocade::tests {
namespace {

/// Each change writes a number of its own into the record, by which it is found again.
using Numbers = std::set<int>;
constexpr std::string_view Mark = "change-";
constexpr int MarkDigits = 6;

std::string marked(int number) {
    std::string digits = std::to_string(number);
    return std::string(Mark) + std::string(MarkDigits - digits.size(), '0') + digits;
}

Numbers numbersIn(std::string_view text) {
    Numbers found;
    for (std::size_t at = text.find(Mark); at != std::string_view::npos; at = text.find(Mark, at + 1)) {
        found.insert(std::stoi(std::string(text.substr(at + Mark.size(), MarkDigits))));
    }
    return found;
}

/// Of the changes that its file does not have.
Numbers numbersIn(const OpenRecord& record) {
    Numbers numbers = numbersIn(fileTextOf(record.category, record.present.record).value_or(""));
    for (const int number : numbersIn(fileTextOf(record.category, record.saved.record).value_or(""))) {
        numbers.erase(number);
    }
    return numbers;
}

bool isWhole(std::string_view content) {
    content = content.substr(0, content.find_last_not_of("\r\n") + 1);
    return content.ends_with("</squad>") || content.ends_with("</aircraft>") ||
           content.ends_with("</weapon>");
}

/// Where the changes are.
struct Whereabouts {
    Numbers data;    ///< in the game's and the mod's files
    Numbers backups; ///< dated
    Numbers journal;
    Numbers memory; ///< of the unsaved records, as they are shown

    [[nodiscard]] bool isOnDisk(int number) const {
        return data.contains(number) || backups.contains(number) || journal.contains(number);
    }
    [[nodiscard]] std::string placesOf(int number) const {
        return std::string(data.contains(number) ? " in a file" : "") +
               (backups.contains(number) ? " in the backups" : "") +
               (journal.contains(number) ? " in the journal" : "") +
               (memory.contains(number) ? " in memory" : "");
    }
};

/// The power is gone.
struct Killed {};

class RobotFiles : public FaultyFiles {
public:
    int operationsToKill = 0; ///< 0 for never
    unsigned failOneIn = 0;   ///< 0 for none
    std::mt19937 random;
    std::size_t failures = 0;

protected:
    bool fails() override {
        if (operationsToKill > 0 && --operationsToKill == 0) {
            throw Killed();
        }
        const bool isFailing = failOneIn > 0 && random() % failOneIn == 0;
        failures += isFailing ? 1 : 0;
        return isFailing;
    }
};

std::mt19937& answering() {
    static std::mt19937 random;
    return random;
}

std::string& boxes() {
    static std::string texts;
    return texts;
}

Answer anyAnswer(const Message& message) {
    constexpr std::array yesNoCancel = {Answer::Yes, Answer::No, Answer::Cancel};
    switch (message.buttons) {
    case MessageButtons::Ok:
        return Answer::Ok;
    case MessageButtons::OkCancel:
        return answering()() % 4 != 0 ? Answer::Ok : Answer::Cancel;
    case MessageButtons::YesNo:
        return answering()() % 4 != 0 ? Answer::Yes : Answer::No;
    case MessageButtons::YesNoCancel:
        break;
    }
    return yesNoCancel[answering()() % yesNoCancel.size()];
}

Answer answerAtRandom(const Message& message) {
    const Answer answer = anyAnswer(message);
    constexpr std::array names = {"OK", "Cancel", "Yes", "No"};
    boxes() += " (" + message.caption + ": " + names[static_cast<std::size_t>(answer)] + ")";
    return answer;
}

class Robot {
public:
    explicit Robot(unsigned seed) : random_(seed) {
        files_.random.seed(seed + 1);
        answering().seed(seed + 2);
        for (const char* name : {"German A", "German B", "German C"}) {
            writeOutside(Category::Vehicles, "Game\\", name);
            writeOutside(Category::Infantry, "Game\\", name);
        }
        writeOutside(Category::Weapons, "Game\\", "Gun");
        start();
    }

    void act() {
        struct Action {
            const char* name;
            int weight;
            void (Robot::*run)();
        };
        static constexpr auto table = std::to_array<Action>({
            {"change", 30, &Robot::change},
            {"move", 6, &Robot::move},
            {"undo", 8, &Robot::undo},
            {"redo", 4, &Robot::redo},
            {"save", 12, &Robot::save},
            {"save all", 3, &Robot::saveEach},
            {"discard", 4, &Robot::discard},
            {"choose a file", 20, &Robot::chooseFile},
            {"choose a category", 6, &Robot::chooseOtherCategory},
            {"show an unsaved one", 4, &Robot::showOne},
            {"filter", 2, &Robot::filter},
            {"new", 3, &Robot::create},
            {"duplicate", 3, &Robot::duplicate},
            {"rename", 5, &Robot::rename},
            {"delete", 5, &Robot::remove},
            {"mod mode", 3, &Robot::switchMod},
            {"timer", 12, &Robot::tick},
            {"come back", 5, &Robot::comeBack},
            {"refresh", 1, &Robot::refresh},
            {"outside", 8, &Robot::changeOutside},
            {"exit", 2, &Robot::exit},
            {"kill", 2, &Robot::kill},
        });
        int total = 0;
        for (const Action& action : table) {
            total += action.weight;
        }
        int place = below(total);
        const Action* action = table.begin();
        while (place >= action->weight) {
            place -= (action++)->weight;
        }
        step(action->name, [&] { (this->*action->run)(); });
        if (isDown_) {
            start();
        }
    }

    std::size_t kills = 0;
    [[nodiscard]] std::size_t failures() const { return files_.failures; }
    [[nodiscard]] int changes() const { return lastNumber_; }
    [[nodiscard]] const std::deque<std::string>& log() const { return log_; }

private:
    int below(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }

    /// Does something, perhaps on a bad disk or to the loss of power, and looks what has become of all
    /// changes.
    template <typename Action>
    void step(const char* name, Action action) {
        const Whereabouts before = look();
        files_.failOneIn = below(5) == 0 ? 4 + random_() % 30 : 0;
        files_.operationsToKill = below(8) == 0 ? 1 + below(30) : 0;
        bool isKilled = false;
        isOutside_ = false;
        try {
            action();
        } catch (const Killed&) {
            isKilled = true;
        }
        log_.push_back(std::string(name) + " [" + openFileName(*workspace_) + "]" +
                       (isKilled ? " KILLED" : "") + (files_.failOneIn > 0 ? " bad disk" : "") +
                       std::exchange(boxes(), {}));
        if (log_.size() > 25) {
            log_.pop_front();
        }
        files_.failOneIn = 0;
        files_.operationsToKill = 0;
        if (isKilled) {
            ++kills;
            workspace_ = std::make_unique<Workspace>();
            isDown_ = true;
        }
        check(before, look(), isKilled);
    }

    void check(const Whereabouts& before, const Whereabouts& after, bool isKilled) {
        for (const int number : after.memory) {
            superseded_.erase(number);
        }
        std::erase_if(behind_, [&](int number) {
            return after.memory.contains(number) || after.data.contains(number) ||
                   superseded_.contains(number);
        });
        if (isOutside_) {
            return;
        }
        Numbers wanted(behind_.begin(), behind_.end());
        wanted.insert(before.data.begin(), before.data.end());
        for (const int number : before.memory) {
            // What the journal does not have yet can only be lost by a kill.
            if (!isKilled || before.isOnDisk(number)) {
                wanted.insert(number);
            }
        }
        for (const int number : wanted) {
            const bool isSafe = after.isOnDisk(number) ||
                                (after.memory.contains(number) && !before.isOnDisk(number)) ||
                                superseded_.contains(number);
            EXPECT_TRUE(isSafe) << marked(number) << " was" << before.placesOf(number) << " and is"
                                << after.placesOf(number);
            if (!after.data.contains(number) && !after.memory.contains(number) &&
                !superseded_.contains(number) &&
                std::find(behind_.begin(), behind_.end(), number) == behind_.end()) {
                behind_.push_back(number);
            }
        }
        // The backups of a file are thinned out.
        while (behind_.size() > 6) {
            behind_.pop_front();
        }
        std::set<std::tuple<std::string, Category, std::string>> identities;
        for (const OpenRecord* record : unsavedRecords(*workspace_)) {
            std::string name = fileNameOf(record->present.record);
            std::transform(name.begin(), name.end(), name.begin(), ::tolower);
            EXPECT_TRUE(identities.insert({record->base, record->category, name}).second)
                << name << " is in memory twice";
        }
    }

    Whereabouts look() {
        Whereabouts found;
        for (const std::string& file : folder_.files()) {
            const bool isBackup = file.find("\\Backups\\Data\\") != std::string::npos;
            if (isBackup && known_.contains(file)) {
                found.backups.insert(known_[file].begin(), known_[file].end());
                continue;
            }
            const std::string content = folder_.read(file);
            const bool isUnfinished = file.find(".saving") != std::string::npos;
            if (isUnfinished && !isWhole(content)) {
                continue;
            }
            const Numbers numbers = numbersIn(content);
            if (isBackup && !isUnfinished) {
                known_[file] = numbers;
            }
            if (!isUnfinished && file.ends_with(".txt") && !file.ends_with("Mod.txt")) {
                EXPECT_TRUE(isWhole(content)) << file << " is torn";
            }
            Numbers& place = isBackup                                        ? found.backups
                             : file.find("\\Unsaved\\") != std::string::npos ? found.journal
                                                                             : found.data;
            place.insert(numbers.begin(), numbers.end());
        }
        for (const OpenRecord* record : unsavedRecords(*workspace_)) {
            found.memory.merge(numbersIn(*record));
        }
        return found;
    }

    void start() {
        while (isDown_) {
            isDown_ = false;
            step("start", [&] {
                workspace_ = std::make_unique<Workspace>();
                workspace_->programFolder = folder_.path() + "Game\\";
                workspace_->profileFolder = folder_.path() + "User";
                workspace_->files = &files_;
                detectModMode(*workspace_);
                const std::size_t former = files_.failures;
                offerUnsavedChanges(*workspace_);
                if (files_.failures == former) {
                    for (const std::string& file : folder_.files()) {
                        EXPECT_EQ(file.find(".saving"), std::string::npos) << file;
                    }
                }
            });
        }
    }

    /// In the spelling that it has already, as on systems where the case of letters makes no other file.
    std::string someName() {
        std::string name = workspace_->category == Category::Weapons
                               ? "Gun" + std::to_string(below(3))
                               : std::string("German ") + "ABCD"[below(4)];
        const std::string& base = baseFolder(*workspace_);
        for (const std::string& root : {base, base + std::string(UnsavedFolder)}) {
            for (std::string& known : namesOfFiles(categoryFolder(root, workspace_->category))) {
                if (equalsIgnoringCase(known, name)) {
                    return known;
                }
            }
        }
        return name;
    }

    /// Another case of the same letters now and then.
    std::string newName() {
        std::string name = below(3) == 0 ? openFileName(*workspace_) : someName();
        if (name == openFileName(*workspace_)) {
            char& last = name.back();
            last = static_cast<char>(last >= 'a' ? std::toupper(last) : std::tolower(last));
        }
        return name;
    }

    /// What only the user's own next change takes the place of is no loss.
    void supersede() {
        const Whereabouts now = look();
        for (const int number : numbersIn(workspace_->open)) {
            if (!now.data.contains(number) && !now.backups.contains(number)) {
                superseded_.insert(number);
            }
        }
    }

    void change() {
        if (!isRecordOpen(*workspace_)) {
            return;
        }
        supersede();
        const std::string text = marked(++lastNumber_);
        Record& record = workspace_->open.present.record;
        if (auto* weapon = std::get_if<WeaponRecord>(&record)) {
            weapon->comments = text;
        } else {
            std::get<SquadRecord>(record).longName = text;
        }
        recordChanged(*workspace_, "Name");
    }

    void move() {
        const SquadRecord* unit = openUnit(*workspace_);
        if (unit != nullptr && unit->vehicle) {
            nudgeOpenPart(*workspace_, below(2) == 0 ? Gun : Pipe, 1 + below(3), below(3), {}, below(3) == 0);
        }
    }

    void undo() {
        if (!lastStepName(*workspace_).starts_with("Delete ") &&
            !lastStepName(*workspace_).starts_with("Rename ")) {
            supersede();
        }
        undoLast(*workspace_);
    }

    void redo() {
        supersede();
        redoChange(*workspace_);
    }

    void save() { saveOpenRecord(*workspace_); }
    void saveEach() { saveAll(*workspace_); }
    void discard() { discardChanges(*workspace_); }

    void chooseFile() {
        const Names& shown = workspace_->list.shown;
        if (!shown.empty()) {
            openEntry(*workspace_, Names(shown)[random_() % shown.size()]);
        }
    }

    void chooseOtherCategory() {
        static constexpr std::array categories = {Category::Vehicles, Category::Infantry, Category::Weapons};
        chooseCategory(*workspace_, categories[random_() % categories.size()]);
    }

    void showOne() { showUnsaved(*workspace_, random_() % 4); }
    void filter() { setFilter(*workspace_, below(2) == 0 ? "" : "A"); }

    void create() {
        const std::string name = someName();
        const bool isWeapon = workspace_->category == Category::Weapons;
        if (!mayLeavePositions(*workspace_)) {
            return;
        }
        if (!(isWeapon ? createWeapon(*workspace_, name)
                       : createUnit(*workspace_, name, "NATIONALITY_GERMAN"))) {
            openNewFile(*workspace_, name);
        }
    }

    void duplicate() {
        const std::string name = someName();
        if (isRecordOpen(*workspace_) && workspace_->open.category == workspace_->category &&
            mayLeavePositions(*workspace_) && !duplicateRecord(*workspace_, name)) {
            openNewFile(*workspace_, name);
        }
    }

    void rename() {
        const std::string& selected = workspace_->list.selected;
        if (!selected.empty() && selected == listedOpenName(*workspace_) && mayLeavePositions(*workspace_) &&
            !renameFile(*workspace_, newName())) {
            showRenamed(*workspace_);
        }
    }

    void remove() { deleteFile(*workspace_); }
    void switchMod() { switchModMode(*workspace_); }
    void comeBack() { noticeOutsideChanges(*workspace_); }
    void refresh() { refreshAll(*workspace_); }

    void tick() {
        keepJournal(*workspace_);
        if (!workspace_->journal.hasFailed) {
            expectAllOnDisk();
        }
    }

    void expectAllOnDisk() {
        const Whereabouts now = look();
        for (const int number : now.memory) {
            EXPECT_TRUE(now.isOnDisk(number)) << marked(number) << " is not in the journal";
        }
    }

    void writeOutside(Category category, const std::string& base, const std::string& name) {
        std::string text;
        if (category == Category::Weapons) {
            WeaponRecord weapon = newWeapon(name);
            weapon.comments = marked(++lastNumber_);
            text = weaponFileText(weapon);
        } else {
            SquadRecord unit = readUnitText(tankText());
            unit.longName = marked(++lastNumber_);
            text = unitFileText(category, unit).value();
        }
        folder_.write(dataFilePath(base, category, name), text);
    }

    void changeOutside() {
        isOutside_ = true;
        const std::string base = baseFolder(*workspace_).substr(folder_.path().size());
        const std::string name = someName();
        if (below(4) == 0) {
            systemFiles().remove(pathOf(*workspace_, name));
        } else {
            writeOutside(workspace_->category, base, name);
        }
    }

    void exit() {
        if (mayExit(*workspace_)) {
            expectAllOnDisk();
            isDown_ = true;
        }
    }

    void kill() { throw Killed(); }

    TemporaryFolder folder_;
    std::mt19937 random_;
    RobotFiles files_;
    std::unique_ptr<Workspace> workspace_ = std::make_unique<Workspace>();
    bool isDown_ = true;
    bool isOutside_ = false; ///< the present action is another program's
    int lastNumber_ = 0;
    Numbers superseded_;
    std::deque<int> behind_;               ///< changes that were last replaced by others
    std::map<std::string, Numbers> known_; ///< by backup
    std::deque<std::string> log_;
};

int setting(const char* name, int otherwise) {
    const char* text = std::getenv(name);
    return text != nullptr ? std::atoi(text) : otherwise;
}

TEST(WorkspaceRobot, EveryChangeIsInAFileInTheJournalOrInTheBackups) {
    const int runs = setting("VARROCADE_ROBOT_RUNS", 4);
    const int actions = setting("VARROCADE_ROBOT_ACTIONS", 250);
    const int seed = setting("VARROCADE_ROBOT_SEED", 1);
    const MessageHandler former = setMessageHandler(answerAtRandom);
    std::size_t kills = 0;
    std::size_t failures = 0;
    int changes = 0;
    for (int run = 0; run < runs && !testing::Test::HasFailure(); ++run) {
        Robot robot(static_cast<unsigned>(seed + run));
        for (int i = 0; i < actions && !testing::Test::HasFailure(); ++i) {
            robot.act();
        }
        kills += robot.kills;
        failures += robot.failures();
        changes += robot.changes();
        if (testing::Test::HasFailure()) {
            std::string story;
            for (const std::string& line : robot.log()) {
                story += line + "\n";
            }
            ADD_FAILURE() << "seed " << seed + run << ", the last actions:\n" << story;
        }
    }
    setMessageHandler(former);
    RecordProperty("kills", static_cast<int>(kills));
    std::printf("%d changes, %zu kills, %zu failed operations\n", changes, kills, failures);
    EXPECT_GT(kills, 0U);
    EXPECT_GT(failures, 0U);
}

} // namespace
} // namespace varrocade::tests
