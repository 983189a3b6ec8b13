#include "runtime/win32/interaction.h"

#include <string>
#include <thread>

#include <gtest/gtest.h>

#include "runtime/win32/application.h"
#include "runtime/win32/screen.h"
#include "runtime/win32/wide_text.h"

namespace lumenkit::win32 {
namespace {

struct SeenBox {
    std::wstring title;
    std::wstring text;
    HWND owner = nullptr;
    bool ownerIsBlocked = false;
};

std::wstring TextOf(HWND window) {
    std::wstring text(200, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), 200)));
    return text;
}

// Acts as a user: waits for a message box, records it and presses OK.
class Dismisser {
 public:
    Dismisser() : thread_([this] { Run(); }) {}
    SeenBox Join() {
        thread_.join();
        return seen_;
    }

 private:
    void Run() {
        constexpr int patience = 2000;
        for (int i = 0; i < patience; ++i) {
            if (const HWND box = FindWindowW(L"#32770", nullptr);
                box != nullptr && IsWindowVisible(box) != FALSE) {
                seen_.title = TextOf(box);
                seen_.text = TextOf(GetDlgItem(box, 0xFFFF));
                seen_.owner = GetWindow(box, GW_OWNER);
                seen_.ownerIsBlocked = IsWindowEnabled(seen_.owner) == FALSE;
                PostMessageW(box, WM_COMMAND, IDOK, 0);
                return;
            }
            Sleep(5);
        }
    }

    SeenBox seen_;
    std::thread thread_;
};

HWND NewTopLevelWindow() {
    return CreateWindowExW(0, L"STATIC", L"host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 100, 100,
                           nullptr, nullptr, nullptr, nullptr);
}

TEST(Interaction, ABoxLiesOverTheActiveWindowAndBlocksIt) {
    Application application(GetModuleHandleW(nullptr));
    Interaction interaction(application);
    const HWND host = NewTopLevelWindow();
    SetActiveWindow(host);
    Dismisser dismisser;
    interaction.MsgBox(u"a text\r\nof lines", host::MessageStyle::Critical, u"A TITLE");
    const SeenBox seen = dismisser.Join();
    EXPECT_EQ(seen.title, L"A TITLE");
    EXPECT_EQ(seen.text, L"a text\r\nof lines");
    EXPECT_EQ(seen.owner, host);
    EXPECT_TRUE(seen.ownerIsBlocked);
    EXPECT_NE(IsWindowEnabled(host), FALSE) << "again";
    DestroyWindow(host);
}

TEST(Interaction, ABoxWithoutATitleBearsTheComponentsName) {
    Application application(GetModuleHandleW(nullptr));
    Interaction interaction(application);
    Dismisser dismisser;
    interaction.MsgBox(u"text", host::MessageStyle::OkOnly, std::nullopt);
    EXPECT_EQ(dismisser.Join().title, ToWide(application.ExeName()));
    interaction.Beep();
}

TEST(Application, IsNamedAfterTheModulesFile) {
    EXPECT_EQ(Application(GetModuleHandleW(nullptr)).ExeName(), u"win32_interaction_test");
    EXPECT_EQ(LCase(Application(GetModuleHandleW(L"user32.dll")).ExeName()), u"user32");
    const HMODULE noModule = reinterpret_cast<HMODULE>(0x1234);
    EXPECT_ANY_THROW(Application(noModule).ExeName());
}

TEST(Screen, HasWholeTwipsAPixel) {
    const Screen screen({.x = 96, .y = 144});
    EXPECT_EQ(screen.TwipsPerPixelX(), 15);
    EXPECT_EQ(screen.TwipsPerPixelY(), 10);
    const Screen odd({.x = 168, .y = 5000});
    EXPECT_EQ(odd.TwipsPerPixelX(), 9) << "8.57";
    EXPECT_EQ(odd.TwipsPerPixelY(), 1);
}

}  // namespace
}  // namespace lumenkit::win32
