// Tests of the editor's windows. Another run in the same profile waits: the mod folder is there once only.

#include <gtest/gtest.h>

#include <windows.h>

namespace {

constexpr wchar_t RunName[] = L"VarrocadeGuiTests";
constexpr wchar_t WineKey[] = L"Software\\Wine\\AppDefaults\\VarrocadeDataEditor.exe";
constexpr wchar_t WineX11Key[] = L"Software\\Wine\\AppDefaults\\VarrocadeDataEditor.exe\\X11 Driver";

/// Wine waits two seconds for a window manager whenever a window is hidden; where the tests run there is
/// none.
/// The real mouse is put into a corner: over a window that opens it would take part in what the tests drag.
class QuietScreen : public testing::Environment {
public:
    void SetUp() override {
        // Wine moves it only from where it takes it to be.
        SetCursorPos(2, 2);
        SetCursorPos(1, 1);
        if (isWine()) {
            RegSetKeyValueW(HKEY_CURRENT_USER, WineX11Key, L"Managed", REG_SZ, L"N", sizeof(L"N"));
        }
    }
    void TearDown() override {
        if (isWine()) {
            RegDeleteTreeW(HKEY_CURRENT_USER, WineKey);
        }
    }

private:
    static bool isWine() {
        return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
    }
};

} // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
    // Held until the process ends.
    const HANDLE run = CreateMutexW(nullptr, FALSE, RunName);
    WaitForSingleObject(run, INFINITE);
    testing::AddGlobalTestEnvironment(new QuietScreen); // NOLINT(cppcoreguidelines-owning-memory)
    return RUN_ALL_TESTS();
}
