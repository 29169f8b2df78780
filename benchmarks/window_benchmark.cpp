// How long the main window takes to refill its list and to show a clicked file, with 20, 200 and 2,000 files,
// as ratios to only listing the folder and only reading the file. Everything is measured in one run, with the
// contestants taking turns.

#include "platform/file_operations.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <functional>
#include <string>
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

/// Copies one vehicle of the sample under many names, and the pictures once.
std::string makeGame(int files) {
    std::array<char, MAX_PATH> temporary{};
    GetTempPathA(static_cast<DWORD>(temporary.size()), temporary.data());
    std::string base = std::string(temporary.data()) + "varrocade-bench-" + std::to_string(files) + "\\";
    for (const char* folder :
         {"", "Data\\", "Data\\Vehicles\\", "Images\\", "Images\\Units\\", "Images\\Units\\Vehicles\\",
          "Images\\Units\\Vehicles\\Hulls\\", "Images\\Units\\Vehicles\\Turrets\\"}) {
        CreateDirectoryA((base + folder).c_str(), nullptr);
    }
    for (const char* picture :
         {"Images\\grid.png", "Images\\Units\\Vehicles\\Hulls\\German Panzer VI Tiger Ausf E hull.png",
          "Images\\Units\\Vehicles\\Turrets\\German Panzer VI Tiger Ausf E turret.png"}) {
        CopyFileA((std::string("sample\\") + picture).c_str(), (base + picture).c_str(), FALSE);
    }
    for (int i = 0; i < files; ++i) {
        CopyFileA("sample\\Data\\Vehicles\\German Panzer VI Tiger Ausf E.txt",
                  (base + "Data\\Vehicles\\German Tank " + std::to_string(i) + ".txt").c_str(), FALSE);
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

bool measure(int files) {
    const std::string base = makeGame(files);
    PROCESS_INFORMATION process{};
    HWND window = startEditor(base, process);
    if (window == nullptr) {
        std::printf("the editor did not start\n");
        return false;
    }
    HWND list = GetDlgItem(window, FileListId);
    const std::string folder = base + "Data\\Vehicles\\";
    std::vector<double> listing;
    std::vector<double> refill;
    std::vector<double> reading;
    std::vector<double> click;
    for (int round = 0; round < Rounds; ++round) {
        std::vector<std::string> names;
        listing.push_back(milliseconds([&] { listFiles(folder, ".txt", names); }));
        refill.push_back(milliseconds([&] { SendMessageA(window, RefreshList, 0, 0); }));
        const int entry = round % files;
        std::string content;
        reading.push_back(
            milliseconds([&] { readWholeFile(folder + names[static_cast<std::size_t>(entry)], content); }));
        // The selection is answered when the window has been painted.
        click.push_back(milliseconds([&] {
            SendMessageA(list, LB_SETCURSEL, static_cast<WPARAM>(entry), 0);
            SendMessageA(window, WM_COMMAND, MAKEWPARAM(FileListId, LBN_SELCHANGE),
                         reinterpret_cast<LPARAM>(list));
        }));
    }
    // The first click reads and decodes the pictures.
    const double cold = click.front();
    std::printf("%5d  %8.2f %8.2f %7.1f   %8.2f %8.2f %8.2f\n", files, median(listing), median(refill),
                median(refill) / median(listing), median(reading), cold, median(click));
    SendMessageA(window, WM_CLOSE, 0, 0);
    WaitForSingleObject(process.hProcess, StartTimeout);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return true;
}

} // namespace
} // namespace varrocade

int main() {
    std::printf("milliseconds, medians of %d rounds\n", varrocade::Rounds);
    std::printf("files   listing   refill   ratio    reading     cold     warm click to painted\n");
    for (const int files : varrocade::FileCounts) {
        if (!varrocade::measure(files)) {
            return 1;
        }
    }
    return 0;
}
