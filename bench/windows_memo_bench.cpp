// Benchmarks of a keystroke in a memo on Windows that restricts its text to limits, against a bare
// edit control of the same styles, size, font and text. A keystroke is a key down and a key up
// posted to the message queue of the thread, until the queue is empty again. It includes the check
// against the limits and the repaint.
#include <memory>
#include <string>

#include "bench/memo_lines.h"
#include "bench/ratio_table.h"
#include "bench/require.h"
#include "frame/text.h"
#include "project/lumenkit_classes.h"
#include "tests/support/windows_form.h"

namespace {

using lumenkit::Text;
using lumenkit::bench::AddComparison;
using lumenkit::bench::MemoLines;
using lumenkit::bench::Ratio;
using lumenkit::bench::Require;
using lumenkit::bench::Side;
using lumenkit::testing::FormControl;
using lumenkit::testing::WindowsForm;

constexpr SIZE size = {300, 400};
constexpr WPARAM letter = 'A';

void Stroke(HWND edit, WPARAM key) {
    constexpr int scanCode = 16;
    constexpr LPARAM goesUp = 0xC0000000;
    const LPARAM down = 1 | static_cast<LPARAM>(MapVirtualKeyW(static_cast<UINT>(key), 0))
                                << scanCode;
    PostMessageW(edit, WM_KEYDOWN, key, down);
    PostMessageW(edit, WM_KEYUP, key, down | goesUp);
    WindowsForm::Pump();
}

std::wstring TextOf(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(
        GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

void PutCaretInTheMiddle(HWND edit) {
    const LRESULT line = SendMessageW(edit, EM_GETLINECOUNT, 0, 0) / 2;
    const LRESULT start = SendMessageW(edit, EM_LINEINDEX, static_cast<WPARAM>(line), 0);
    SendMessageW(edit, EM_SETSEL, static_cast<WPARAM>(start), start);
    SendMessageW(edit, EM_SCROLLCARET, 0, 0);
}

// The visible edit control of the memo's window.
HWND ShownEdit(HWND window) {
    HWND edit = FindWindowExW(window, nullptr, L"EDIT", nullptr);
    while ((GetWindowLongW(edit, GWL_STYLE) & WS_VISIBLE) == 0) {
        edit = FindWindowExW(window, edit, L"EDIT", nullptr);
    }
    return edit;
}

// Creates an edit control like `model`, directly on the form.
HWND NewBareEdit(HWND form, HWND model) {
    constexpr POINT place = {340, 20};
    RECT box = {};
    GetWindowRect(model, &box);
    const HWND edit =
        CreateWindowExW(static_cast<DWORD>(GetWindowLongW(model, GWL_EXSTYLE)), L"EDIT", L"",
                        static_cast<DWORD>(GetWindowLongW(model, GWL_STYLE)), place.x, place.y,
                        box.right - box.left, box.bottom - box.top, form, nullptr,
                        GetModuleHandleW(nullptr), nullptr);
    SendMessageW(edit, EM_SETLIMITTEXT, 0, 0);
    SendMessageW(edit, WM_SETFONT, static_cast<WPARAM>(SendMessageW(model, WM_GETFONT, 0, 0)),
                 FALSE);
    SetWindowTextW(edit, TextOf(model).c_str());
    return edit;
}

// A memo and a bare edit control side by side on one form.
class Desk {
 public:
    explicit Desk(const Text& text)
        : memo_(form_, *lumenkit::lumenkitClasses.Find(u"lumenkit.VMemo"), size) {
        memo_.Start();
        lumenkit::Object& memo = memo_.Hosted().Automation();
        memo.Let(u"ScrollBars", std::int32_t{2});
        memo.Let(u"MaxCharsPerLine", std::int16_t{100});
        memo.Let(u"MaxLines", std::int16_t{32'000});
        memo.Let(u"Text", text);
        memoEdit_ = ShownEdit(memo_.Hosted().Handle());
        bareEdit_ = NewBareEdit(form_.Window(), memoEdit_);
        for (const HWND edit : {memoEdit_, bareEdit_}) {
            SetFocus(edit);
            PutCaretInTheMiddle(edit);
        }
        CheckStrokes();
    }

    HWND MemoEdit() const { return memoEdit_; }
    HWND BareEdit() const { return bareEdit_; }

    // Shows or hides both, so that the form has the same area to paint for either side.
    void Show(bool visible) {
        for (const HWND edit : {memoEdit_, bareEdit_}) {
            ShowWindow(edit, visible ? SW_SHOWNA : SW_HIDE);
        }
    }

 private:
    void CheckStrokes() {
        const std::wstring before = TextOf(memoEdit_);
        Require(TextOf(bareEdit_) == before, "the edit controls' texts differ");
        Stroke(memoEdit_, letter);
        Stroke(bareEdit_, letter);
        const std::wstring typed = TextOf(memoEdit_);
        Require(typed.size() == before.size() + 1, "the memo took no letter");
        Require(TextOf(bareEdit_) == typed, "the bare edit control took something else");
        Stroke(memoEdit_, VK_BACK);
        Stroke(bareEdit_, VK_BACK);
        Require(TextOf(memoEdit_) == before && TextOf(bareEdit_) == before,
                "Backspace took something else back");
    }

    WindowsForm form_{lumenkit::lumenkitClasses};
    FormControl memo_;
    HWND memoEdit_ = nullptr;
    HWND bareEdit_ = nullptr;
};

// Creates its desk at the first use, because a million units take a while.
class LazyDesk {
 public:
    explicit LazyDesk(std::size_t units) : units_(units) {}

    Desk& Get() {
        if (!desk_) {
            desk_ = std::make_unique<Desk>(MemoLines(units_));
        }
        return *desk_;
    }

 private:
    std::size_t units_;
    std::unique_ptr<Desk> desk_;
};

Side Typing(std::shared_ptr<LazyDesk> desk, HWND (Desk::*edit)() const, bool visible) {
    return {.round =
                [desk, edit] {
                    const HWND window = (desk->Get().*edit)();
                    Stroke(window, letter);
                    Stroke(window, VK_BACK);
                },
            .units = 2,
            .prepare =
                [desk, edit, visible] {
                    desk->Get().Show(visible);
                    SetFocus((desk->Get().*edit)());
                    WindowsForm::Pump();
                }};
}

}  // namespace

int main(int argc, char** argv) {
    const auto against = [](const std::string& name, std::size_t units, const char* hiddenAim,
                            const char* visibleAim) {
        const auto desk = std::make_shared<LazyDesk>(units);
        for (const bool visible : {false, true}) {
            AddComparison({.what = "Wine: keystroke in " + name +
                                   (visible ? ", visible" : ", hidden") + ", against bare EDIT",
                           .unit = "key",
                           .ours = Typing(desk, &Desk::MemoEdit, visible),
                           .other = Typing(desk, &Desk::BareEdit, visible),
                           .ratio = Ratio::TimesSlower,
                           .aim = visible ? visibleAim : hiddenAim});
        }
    };
    against("1,000 units", 1'000, "<= 1.01x", "<= 1.05x");
    against("30,000 units", 30'000, "<= 1.01x", "<= 1.06x");
    against("1,000,000 units", 1'000'000, "<= 1.07x", "<= 1.10x");
    return lumenkit::bench::RunComparisons(argc, argv);
}
