// How long the main window takes to refill its list and to show a clicked tank with five pictures, with 20,
// 200 and 2,000 files, beside only listing the folder and only reading the files. What a click takes over
// reading its files is told in frames of a screen, too. Everything is measured in one run, with the
// contestants taking turns.

#include "platform/file_operations.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {
namespace {

constexpr std::array<int, 3> FileCounts = {20, 200, 2000};
constexpr int Rounds = 15;
constexpr UINT RefreshList = WM_USER + 1;
constexpr int FileListId = 1001;
constexpr DWORD StartTimeout = 20000;

double milliseconds(const std::function<void()>& work) {
    LARGE_INTEGER frequency{};
    LARGE_INTEGER begin{};
    LARGE_INTEGER end{};
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&begin);
    work();
    QueryPerformanceCounter(&end);
    return 1000.0 * static_cast<double>(end.QuadPart - begin.QuadPart) /
           static_cast<double>(frequency.QuadPart);
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

struct UnitPicture {
    const char* folder;
    const char* sample; ///< the picture of the sample that is copied
    const char* name;   ///< its name before the number of the set
};

constexpr std::array<UnitPicture, 5> Pictures = {{
    {"Hulls", "German Panzer VI Tiger Ausf E hull", "Hull"},
    {"Turrets", "German Panzer VI Tiger Ausf E turret", "Turret"},
    {"Turrets", "Bow MG34 ball mount", "Bow mount"},
    {"Turrets", "MG34 with front shield", "Roof mount"},
    {"Turrets", "German StuG III Ausf G gun", "Side gun"},
}};

std::string picturePath(const std::string& base, const char* folder, const std::string& name) {
    return base + "Images\\Units\\Vehicles\\" + folder + "\\" + name + ".png";
}

std::string pictureName(const UnitPicture& picture, int set) {
    return std::string(picture.name) + " " + std::to_string(set);
}

/// Of four digits, so that the first ones stand in sight: scrolling to them is no part of a click.
std::string unitName(int number) {
    constexpr int leastOfFourDigits = 1000;
    return "German Tank " + std::to_string(leastOfFourDigits + number);
}

std::string unitPath(const std::string& base, int number) {
    return base + "Data\\Vehicles\\" + unitName(number) + ".txt";
}

void replace(std::string& text, const std::string& part, const std::string& replacement) {
    const std::size_t place = text.find(part);
    if (place != std::string::npos) {
        text.replace(place, part.size(), replacement);
    }
}

/// A vehicle of the sample with two fixed weapons more, which shows the five pictures of a set.
std::string tankText(std::string text, int set) {
    replace(text, std::string(Pictures[0].sample), pictureName(Pictures[0], set));
    replace(text, std::string(Pictures[1].sample), pictureName(Pictures[1], set));
    replace(text, std::string(Pictures[2].sample), pictureName(Pictures[2], set));
    std::string more;
    for (std::size_t i = 3; i < Pictures.size(); ++i) {
        more += "<fixed_weapon><image_view>" + pictureName(Pictures[i], set) +
                ".png</image_view><offsetX>-80</offsetX><offsetY>" + std::to_string(60 * i) +
                "</offsetY><weapon><type>WEAPON_HMG_MG34</type></weapon></fixed_weapon>\r\n";
    }
    replace(text, "</vehicle>", more + "</vehicle>");
    return text;
}

void writeFile(const std::string& path, const std::string& content) {
    std::ofstream(path, std::ios::binary) << content;
}

void copyFolder(const std::string& base, const std::string& folder, std::string_view ending) {
    std::vector<std::string> names;
    listFiles("sample\\" + folder, ending, names);
    for (const std::string& name : names) {
        CopyFileA(("sample\\" + folder + name).c_str(), (base + folder + name).c_str(), FALSE);
    }
}

/// Many tanks with five pictures each, in so many sets that a round of clicks sees each picture once.
std::string makeGame(int files) {
    std::array<char, MAX_PATH> temporary{};
    GetTempPathA(static_cast<DWORD>(temporary.size()), temporary.data());
    std::string base = std::string(temporary.data()) + "varrocade-bench-" + std::to_string(files) + "\\";
    for (const char* folder :
         {"", "Data\\", "Data\\Vehicles\\", "Data\\Weapons\\", "Images\\", "Images\\Flags\\",
          "Images\\Flags\\Static\\", "Images\\Units\\", "Images\\Units\\Vehicles\\",
          "Images\\Units\\Vehicles\\Hulls\\", "Images\\Units\\Vehicles\\Turrets\\"}) {
        CreateDirectoryA((base + folder).c_str(), nullptr);
    }
    CopyFileA("sample\\Images\\grid.png", (base + "Images\\grid.png").c_str(), FALSE);
    copyFolder(base, "Images\\Flags\\Static\\", ".png");
    copyFolder(base, "Data\\Weapons\\", ".txt");
    for (const UnitPicture& picture : Pictures) {
        for (int set = 0; set < Rounds; ++set) {
            CopyFileA(picturePath("sample\\", picture.folder, picture.sample).c_str(),
                      picturePath(base, picture.folder, pictureName(picture, set)).c_str(), FALSE);
        }
    }
    std::string tank;
    readWholeFile("sample\\Data\\Vehicles\\German Panzer VI Tiger Ausf E.txt", tank);
    for (int i = 0; i < files; ++i) {
        writeFile(unitPath(base, i), tankText(tank, i % Rounds));
    }
    return base;
}

HWND startEditor(const std::string& folder, PROCESS_INFORMATION& process) {
    std::array<char, MAX_PATH> path{};
    GetModuleFileNameA(nullptr, path.data(), static_cast<DWORD>(path.size()));
    std::string program(path.data());
    program = program.substr(0, program.rfind('\\') + 1) + "VarrocadeDataEditor.exe";
    STARTUPINFOA start{};
    start.cb = sizeof(start);
    if (CreateProcessA(program.c_str(), nullptr, nullptr, nullptr, FALSE, 0, nullptr, folder.c_str(), &start,
                       &process) == FALSE) {
        return nullptr;
    }
    WaitForInputIdle(process.hProcess, StartTimeout);
    for (DWORD waited = 0; waited < StartTimeout; waited += 50) {
        HWND window = FindWindowA("VARROCADETANKEDITOR", nullptr);
        if (window != nullptr && IsWindowVisible(window) != FALSE) {
            return window;
        }
        Sleep(50);
    }
    return nullptr;
}

/// What a click on a unit takes, and reading the same files and no more.
struct Click {
    double reading = 0;
    double painted = 0;
};

Click clickOn(HWND window, const std::string& base, int number, bool readsPictures) {
    HWND list = GetDlgItem(window, FileListId);
    Click click;
    click.reading = milliseconds([&] {
        std::string content;
        readWholeFile(unitPath(base, number), content);
        for (std::size_t i = 0; readsPictures && i < Pictures.size(); ++i) {
            readWholeFile(picturePath(base, Pictures[i].folder, pictureName(Pictures[i], number)), content);
        }
    });
    const LRESULT entry = SendMessageA(list, LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                       reinterpret_cast<LPARAM>(unitName(number).c_str()));
    // The selection is answered when the window has been painted.
    click.painted = milliseconds([&] {
        SendMessageA(list, LB_SETCURSEL, static_cast<WPARAM>(entry), 0);
        SendMessageA(window, WM_COMMAND, MAKEWPARAM(FileListId, LBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(list));
    });
    return click;
}

/// The median of a round of clicks on units one after the other, in milliseconds and in frames of a screen.
void printClicks(HWND window, const std::string& base, bool areCold, DWORD restBefore = 0) {
    constexpr double frame = 1000.0 / 60;
    std::vector<double> reading;
    std::vector<double> painted;
    std::vector<double> over;
    for (int number = 0; number < Rounds; ++number) {
        Sleep(restBefore);
        const Click click = clickOn(window, base, number, areCold);
        reading.push_back(click.reading);
        painted.push_back(click.painted);
        over.push_back((click.painted - click.reading) / frame);
    }
    std::printf("   %7.2f %7.2f %6.2f", median(reading), median(painted), median(over));
}

void closeEditor(HWND window, const PROCESS_INFORMATION& process) {
    SendMessageA(window, WM_CLOSE, 0, 0);
    WaitForSingleObject(process.hProcess, StartTimeout);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
}

/// Going down the list of new units with a look at each, which leaves time to decode the next one's pictures.
bool measureBrowsing() {
    constexpr DWORD look = 600;
    const std::string base = makeGame(FileCounts.front());
    PROCESS_INFORMATION process{};
    HWND window = startEditor(base, process);
    if (window == nullptr) {
        return false;
    }
    std::printf("one after the other, cold, a look at each: ");
    printClicks(window, base, true, look);
    std::printf("\n");
    closeEditor(window, process);
    return true;
}

bool measure(int files) {
    const std::string base = makeGame(files);
    PROCESS_INFORMATION process{};
    HWND window = startEditor(base, process);
    if (window == nullptr) {
        std::printf("the editor did not start\n");
        return false;
    }
    std::vector<double> listing;
    std::vector<double> refill;
    for (int round = 0; round < Rounds; ++round) {
        std::vector<std::string> names;
        listing.push_back(milliseconds([&] { listFiles(base + "Data\\Vehicles\\", ".txt", names); }));
        refill.push_back(milliseconds([&] { SendMessageA(window, RefreshList, 0, 0); }));
    }
    std::printf("%5d  %8.2f %8.2f %6.1f", files, median(listing), median(refill),
                median(refill) / median(listing));
    // The first round reads and decodes every picture, the second has only the units to read.
    printClicks(window, base, true);
    printClicks(window, base, false);
    std::printf("\n");
    closeEditor(window, process);
    return true;
}

} // namespace
} // namespace varrocade

int main() {
    std::printf("milliseconds, medians of %d rounds\n", varrocade::Rounds);
    std::printf("                                  click to painted, cold     the same, warm\n");
    std::printf("files   listing   refill  ratio   reading   click frames   reading   click frames\n");
    for (const int files : varrocade::FileCounts) {
        if (!varrocade::measure(files)) {
            return 1;
        }
    }
    return varrocade::measureBrowsing() ? 0 : 1;
}
