#include "runtime/win32/text_box.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>

#include <imm.h>

#include "tests/support/window_count.h"
#include "tests/unit/win32/parts_form.h"

namespace lumenkit::win32 {
namespace {

class Recorder final : public host::TextBoxEvents {
 public:
    void Change() override { Note("change"); }
    void Click() override { Note("click"); }
    void DblClick() override { Note("dblclick"); }
    void GotFocus() override { Note("got"); }
    void LostFocus() override { Note("lost"); }
    void KeyDown(std::int16_t& keyCode, std::int16_t& shift) override {
        Note("down " + std::to_string(keyCode) + " " + std::to_string(shift));
        keyCode = onKeyDown ? onKeyDown(keyCode) : keyCode;
    }
    void KeyPress(std::int16_t& keyAscii) override {
        Note("press " + std::to_string(keyAscii));
        keyAscii = onKeyPress ? onKeyPress(keyAscii) : keyAscii;
    }
    void KeyUp(std::int16_t& keyCode, std::int16_t& shift) override {
        Note("up " + std::to_string(keyCode) + " " + std::to_string(shift));
    }
    void MouseDown(host::MouseArguments& at) override { NoteMouse("mousedown", at); }
    void MouseMove(host::MouseArguments& at) override { NoteMouse("mousemove", at); }
    void MouseUp(host::MouseArguments& at) override { NoteMouse("mouseup", at); }
    Lines Take() { return std::exchange(lines, {}); }

    std::function<std::int16_t(std::int16_t)> onKeyDown;
    std::function<std::int16_t(std::int16_t)> onKeyPress;
    std::function<void(const std::string&)> onEvent;
    Lines lines;
    host::MouseArguments mouse;

 private:
    void Note(const std::string& line) {
        lines.push_back(line);
        if (onEvent) {
            const auto handler = onEvent;  // it may destroy this object
            handler(line);
        }
    }
    void NoteMouse(const std::string& line, const host::MouseArguments& arguments) {
        mouse = arguments;
        Note(line + " " + std::to_string(arguments.button) + " " + std::to_string(arguments.shift));
    }
};

// The text consists of lines, because Wine's edit control takes seconds to wrap a long word.
Text LongText(std::size_t length) {
    Text text;
    while (text.size() < length) {
        text += u"some words that wrap nowhere\r\n";
    }
    text.resize(length);
    return text;
}

// An event of a box, and what the user or the program does to raise it.
struct RaisedEvent {
    const char* event;
    std::function<void(HWND)> act;
};

class TextBoxTest : public PartsTest {
 protected:
    host::TextBox& Box(TextView text, bool multiLine = true,
                       host::ScrollBars bars = host::ScrollBars::None) {
        box_ = Parts().AddTextBox(
            {{.name = u"Text1",
              .index = 2,
              .placement = {.left = 150, .top = 150, .width = 3000, .height = 1500}},
             multiLine,
             bars,
             text},
            recorder_);
        return *box_;
    }
    HWND Handle() { return WindowOf(*box_); }
    DWORD Style() { return static_cast<DWORD>(GetWindowLongW(Handle(), GWL_STYLE)); }
    MSG KeyDownOf(WPARAM key) {
        MSG message = {};
        message.hwnd = Handle();
        message.message = WM_KEYDOWN;
        message.wParam = key;
        return message;
    }
    void Focus() {
        SetFocus(Handle());
        ASSERT_EQ(GetFocus(), Handle());
        recorder_.lines.clear();
    }
    // Destroys a box while it notifies of the event.
    void ExpectDestructionDuring(const RaisedEvent& raised, bool multiLine);

    Recorder recorder_;
    std::unique_ptr<host::TextBox> box_;
};

TEST_F(TextBoxTest, IsTheEditControlThatTheDesignAsksFor) {
    struct Case {
        host::ScrollBars bars;
        DWORD style;
    };
    for (const Case& one :
         {Case{host::ScrollBars::None, 0},
          Case{host::ScrollBars::Horizontal, WS_HSCROLL | ES_AUTOHSCROLL},
          Case{host::ScrollBars::Vertical, WS_VSCROLL},
          Case{host::ScrollBars::Both, WS_HSCROLL | ES_AUTOHSCROLL | WS_VSCROLL}}) {
        Box(u"", true, one.bars);
        EXPECT_EQ(Style() & (WS_HSCROLL | WS_VSCROLL | ES_AUTOHSCROLL), one.style);
        EXPECT_NE(Style() & ES_MULTILINE, 0U);
    }
    Box(u"", false, host::ScrollBars::Both);
    EXPECT_EQ(Style() & (WS_HSCROLL | WS_VSCROLL | ES_MULTILINE), 0U);
    wchar_t name[16] = {};
    GetClassNameW(Handle(), name, 16);
    EXPECT_STREQ(name, L"Edit");
    EXPECT_EQ(reinterpret_cast<HWND>(static_cast<std::intptr_t>(box_->WindowHandle())), Handle());
    EXPECT_EQ(dynamic_cast<Element&>(*box_).Name(), u"Text1");
    EXPECT_EQ(dynamic_cast<Element&>(*box_).Index(), 2);
}

TEST_F(TextBoxTest, ReadsALongTextWhereItLies) {
    const Text text = LongText(1'000'000);
    host::TextBox& box = Box(u"");
    box.SetText(text);
    EXPECT_EQ(recorder_.Take(), Lines{"change"});
    EXPECT_EQ(box.GetText(), text);
    EXPECT_EQ(box.GetText().data(), box.GetText().data());
    box.SetSelStart(1'000'000);
    EXPECT_EQ(box.SelStart(), 1'000'000);
    Focus();
    TypeText(Handle(), u"a");
    EXPECT_EQ(box.GetText(), text + u"a");
    EXPECT_EQ(recorder_.Take(), (Lines{"down 65 0", "press 97", "change", "up 65 0"}));
}

TEST_F(TextBoxTest, ReadsTheTextWhileItIsBeingEdited) {
    for (const bool multiLine : {true, false}) {
        host::TextBox& box = Box(u"", multiLine);
        Focus();
        Text seen;
        recorder_.onEvent = [&](const std::string& line) {
            if (line == "change") {
                seen = box.GetText();
            }
        };
        for (const TextView expected : {u"a", u"ab", u"abc"}) {
            TypeText(Handle(), expected.substr(expected.size() - 1));
            EXPECT_EQ(seen, expected);
            EXPECT_EQ(box.GetText(), expected);
        }
        recorder_.onEvent = nullptr;
    }
}

TEST_F(TextBoxTest, ASingleLineTextIsReadAgainOnlyWhenItChanged) {
    host::TextBox& box = Box(u"abc", false);
    const auto* const data = box.GetText().data();
    EXPECT_EQ(box.GetText().data(), data);
    box.SetText(u"def");
    EXPECT_EQ(box.GetText(), u"def");
}

TEST_F(TextBoxTest, AssigningItsOwnTextIsSafe) {
    host::TextBox& box = Box(u"some text to be shortened");
    box.SetText(box.GetText().substr(5));
    EXPECT_EQ(box.GetText(), u"text to be shortened");
}

TEST_F(TextBoxTest, NotifiesOnceWhateverTheKindOfBox) {
    for (const bool multiLine : {true, false}) {
        host::TextBox& box = Box(u"old", multiLine);
        box.SetText(u"new");
        EXPECT_EQ(recorder_.Take(), Lines{"change"}) << multiLine;
        box.SetText(u"");
        EXPECT_EQ(recorder_.Take(), Lines{"change"}) << multiLine;
        box.SetText(u"");
        EXPECT_EQ(recorder_.Take(), Lines{}) << multiLine;
    }
}

TEST_F(TextBoxTest, ATextEndsAtItsFirstZero) {
    host::TextBox& box = Box(u"");
    box.SetText(TextView(u"ab\0cd", 5));
    EXPECT_EQ(box.GetText(), u"ab");
    recorder_.Take();
    box.SetText(TextView(u"ab\0ef", 5));
    EXPECT_EQ(recorder_.Take(), Lines{});
}

TEST_F(TextBoxTest, LoneLineFeedsAndReturnsStay) {
    host::TextBox& box = Box(u"");
    for (const TextView text : {u"a\nb", u"a\rb", u"a\r\r\nb", u"\r\n\r\n", u"a\tb"}) {
        box.SetText(text);
        EXPECT_EQ(box.GetText(), text);
    }
}

TEST_F(TextBoxTest, AnotherProgramsTextIsAnAssignment) {
    for (const bool multiLine : {true, false}) {
        host::TextBox& box = Box(u"old", multiLine);
        SetWindowTextW(Handle(), L"other");
        EXPECT_EQ(box.GetText(), u"other");
        EXPECT_EQ(recorder_.Take(), Lines{"change"});
        SetWindowTextW(Handle(), L"other");
        EXPECT_EQ(recorder_.Take(), Lines{});
        SendMessageW(Handle(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L"x"));
        EXPECT_EQ(box.GetText(), u"xother");
        EXPECT_EQ(recorder_.Take(), Lines{"change"});
        SendMessageW(Handle(), WM_SETTEXT, 0, 0);
        EXPECT_EQ(box.GetText(), u"");
        EXPECT_EQ(recorder_.Take(), Lines{"change"});
    }
}

TEST_F(TextBoxTest, MaxLengthSplitsNoSurrogatePair) {
    host::TextBox& box = Box(u"");
    box.SetMaxLength(3);
    box.SetText(u"ab\U0001F600");
    EXPECT_EQ(box.GetText(), u"ab");
    box.SetText(u"a\U0001F600b");
    EXPECT_EQ(box.GetText(), u"a\U0001F600");
    box.SetText(u"ab");
    box.SetSelStart(2);
    Focus();
    PutOnClipboard(form_.Window(), u"\U0001F600");
    SendMessageW(Handle(), WM_PASTE, 0, 0);
    EXPECT_EQ(box.GetText(), u"ab");
    EXPECT_EQ(recorder_.Take(), Lines{});
    Strike(Handle(), VK_PACKET, 0xD83D);
    Strike(Handle(), VK_PACKET, 0xDE00);
    EXPECT_EQ(box.GetText(), u"ab");
    box.SetMaxLength(4);
    Strike(Handle(), VK_PACKET, 0xD83D);
    Strike(Handle(), VK_PACKET, 0xDE00);
    EXPECT_EQ(box.GetText(), u"ab\U0001F600");
}

TEST_F(TextBoxTest, TheUserMayEnterMoreThanThePlatformsUsualLimit) {
    host::TextBox& box = Box(LongText(40'000));
    box.SetSelStart(40'000);
    Focus();
    TypeText(Handle(), u"y");
    EXPECT_EQ(box.GetText().size(), 40'001U);
    PutOnClipboard(form_.Window(), LongText(100'000));
    SendMessageW(Handle(), WM_PASTE, 0, 0);
    EXPECT_EQ(box.GetText().size(), 140'001U);
    box.SetMaxLength(5);
    box.SetMaxLength(0);
    TypeText(Handle(), u"y");
    EXPECT_EQ(box.GetText().size(), 140'002U);
}

TEST_F(TextBoxTest, KeysActAsIfTheCaretStoodBeforeTheLineBreak) {
    struct Case {
        WORD key;
        std::int32_t expected;
    };
    host::TextBox& box = Box(u"ab\r\ncd");
    Focus();
    for (const Case& one : {Case{VK_LEFT, 2}, Case{VK_RIGHT, 4}, Case{VK_HOME, 0}, Case{VK_END, 2},
                            Case{VK_DOWN, 6}}) {
        box.SetSelStart(3);
        Strike(Handle(), one.key);
        EXPECT_EQ(box.SelStart(), one.expected) << one.key;
    }
    box.SetSelStart(3);
    Strike(Handle(), VK_SHIFT);
    EXPECT_EQ(box.SelStart(), 3);
    Strike(Handle(), VK_DELETE);
    EXPECT_EQ(box.GetText(), u"abcd");
    EXPECT_EQ(box.SelStart(), 2);
}

TEST_F(TextBoxTest, EveryEditIsOneChange) {
    host::TextBox& box = Box(u"abcdef");
    Focus();
    box.SetSelection(1, 3);
    SendMessageW(Handle(), WM_CUT, 0, 0);
    EXPECT_EQ(box.GetText(), u"adef");
    EXPECT_EQ(recorder_.Take(), Lines{"change"});
    SendMessageW(Handle(), EM_UNDO, 0, 0);
    EXPECT_EQ(box.GetText(), u"abcdef");
    EXPECT_EQ(recorder_.Take(), Lines{"change"});
    box.SetSelection(0, 2);
    SendMessageW(Handle(), WM_COPY, 0, 0);
    EXPECT_EQ(recorder_.Take(), Lines{});
    box.SetSelStart(6);
    SendMessageW(Handle(), WM_PASTE, 0, 0);
    EXPECT_EQ(box.GetText(), u"abcdefab");
    EXPECT_EQ(recorder_.Take(), Lines{"change"});
    box.SetSelection(0, 3);
    SendMessageW(Handle(), WM_CLEAR, 0, 0);
    EXPECT_EQ(box.GetText(), u"defab");
    EXPECT_EQ(recorder_.Take(), Lines{"change"});
    box.SetSelStart(0);
    Strike(Handle(), VK_DELETE);
    EXPECT_EQ(box.GetText(), u"efab");
    EXPECT_EQ(recorder_.Take(), (Lines{"down 46 0", "change", "up 46 0"}));
    Strike(Handle(), VK_BACK, u'\b');
    EXPECT_EQ(recorder_.Take(), (Lines{"down 8 0", "press 8", "up 8 0"})) << "nothing to delete";
}

void CALLBACK PressTimersLetter(HWND window, UINT /*message*/, UINT_PTR timer, DWORD /*time*/) {
    KillTimer(window, timer);
    PostMessageW(GetFocus(), WM_CHAR, timer, 1);
}

// The steps that the user undoes and redoes.
class TextBoxUndoTest : public TextBoxTest {
 protected:
    // Makes a box with the focus that refuses texts of more than `most` units.
    host::TextBox& Limited(std::size_t most) {
        host::TextBox& box = Box(u"");
        Focus();
        recorder_.onEvent = [this, most](const std::string& line) {
            if (line != "change" || isPuttingBack_) {
                return;
            }
            if (box_->GetText().size() <= most) {
                accepted_ = box_->GetText();
                return;
            }
            isPuttingBack_ = true;
            box_->SetText(accepted_);
            isPuttingBack_ = false;
            box_->SetSelStart(static_cast<std::int32_t>(accepted_.size()));
        };
        return box;
    }
    void Undo() {
        const HeldKey control(VK_CONTROL);
        Strike(Handle(), 'Z', 26);
    }
    void Redo() {
        const HeldKey control(VK_CONTROL);
        Strike(Handle(), 'Y', 25);
    }
    bool CanUndo() { return SendMessageW(Handle(), EM_CANUNDO, 0, 0) != FALSE; }
    void PasteText(TextView text) {
        PutOnClipboard(form_.Window(), text);
        SendMessageW(Handle(), WM_PASTE, 0, 0);
    }
    // Opens the box's menu and presses a letter in it. The menu waits for messages, so the key is
    // posted by a timer.
    void ChooseFromMenu(wchar_t letter) {
        SetTimer(form_.Window(), static_cast<UINT_PTR>(letter), 1, PressTimersLetter);
        SendMessageW(Handle(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(Handle()), -1);
    }
    std::ptrdiff_t Changes() {
        const Lines lines = recorder_.Take();
        return std::count(lines.begin(), lines.end(), "change");
    }

    Text accepted_;
    bool isPuttingBack_ = false;
};

TEST_F(TextBoxUndoTest, StepsThroughTheAcceptedEdits) {
    host::TextBox& box = Limited(9);
    TypeText(Handle(), u"ab\rcd");
    box.SetSelStart(0);
    PasteText(u"12345");  // refused
    EXPECT_EQ(box.GetText(), u"ab\r\ncd");
    box.SetSelStart(0);
    TypeText(Handle(), u"xyzw");  // w is refused
    const std::vector<Text> steps = {u"", u"ab", u"ab\r\n", u"ab\r\ncd", u"xyzab\r\ncd"};
    EXPECT_EQ(box.GetText(), steps.back());
    for (std::size_t step = steps.size() - 1; step > 0; --step) {
        recorder_.Take();
        Undo();
        EXPECT_EQ(box.GetText(), steps[step - 1]);
        EXPECT_EQ(Changes(), 1);
    }
    Undo();
    EXPECT_EQ(box.GetText(), u"");
    EXPECT_EQ(Changes(), 0);
    for (std::size_t step = 1; step < steps.size(); ++step) {
        recorder_.Take();
        Redo();
        EXPECT_EQ(box.GetText(), steps[step]);
        EXPECT_EQ(Changes(), 1);
    }
    Undo();
    const HeldKey shift(VK_SHIFT);
    Undo();
    EXPECT_EQ(box.GetText(), steps.back()) << "Ctrl+Shift+Z redoes";
}

TEST_F(TextBoxUndoTest, BothKindsOfBoxUndo) {
    for (const bool multiLine : {true, false}) {
        host::TextBox& box = Box(u"", multiLine);
        Focus();
        TypeText(Handle(), u"abc");
        Strike(Handle(), VK_BACK, u'\b');
        Strike(Handle(), VK_BACK, u'\b');
        box.SetSelStart(0);
        Strike(Handle(), VK_DELETE);
        EXPECT_EQ(box.GetText(), u"");
        Undo();
        EXPECT_EQ(box.GetText(), u"a");
        Undo();
        EXPECT_EQ(box.GetText(), u"abc");
        EXPECT_EQ(box.SelStart(), 3);
        Undo();
        EXPECT_EQ(box.GetText(), u"");
        Redo();
        Redo();
        EXPECT_EQ(box.GetText(), u"a");
    }
}

TEST_F(TextBoxUndoTest, EveryWayToUndoLeadsToTheSteps) {
    host::TextBox& box = Limited(3);
    const std::vector<std::function<void()>> ways = {
        [&] { EXPECT_NE(SendMessageW(Handle(), EM_UNDO, 0, 0), FALSE); },
        [&] { EXPECT_NE(SendMessageW(Handle(), WM_UNDO, 0, 0), FALSE); },
        [&] {
            const HeldKey alt(VK_MENU);
            SendMessageW(Handle(), WM_SYSKEYDOWN, VK_BACK, 0x20000001);
            SendMessageW(Handle(), WM_SYSCHAR, u'\b', 0x20000001);
            SendMessageW(Handle(), WM_SYSKEYUP, VK_BACK, static_cast<LPARAM>(0xE0000001));
        },
    };
    for (const auto& undo : ways) {
        EXPECT_FALSE(CanUndo());
        TypeText(Handle(), u"abcd");
        EXPECT_TRUE(CanUndo());
        undo();
        EXPECT_EQ(box.GetText(), u"");
        SendMessageW(Handle(), EM_EMPTYUNDOBUFFER, 0, 0);
    }
    EXPECT_EQ(SendMessageW(Handle(), EM_UNDO, 0, 0), FALSE);
}

TEST_F(TextBoxUndoTest, ARefusedUndoCanBeRepeated) {
    host::TextBox& box = Box(u"");
    Focus();
    TypeText(Handle(), u"abcdef");
    box.SetSelection(0, -1);
    Strike(Handle(), VK_BACK, u'\b');
    std::size_t most = 3;
    recorder_.onEvent = [&](const std::string& line) {
        if (line == "change" && box_->GetText().size() > most) {
            box_->SetText(u"");
        }
    };
    Undo();
    EXPECT_EQ(box.GetText(), u"") << "the six letters no longer fit";
    EXPECT_TRUE(CanUndo());
    most = 6;
    Undo();
    EXPECT_EQ(box.GetText(), u"abcdef");
}

TEST_F(TextBoxUndoTest, ATextThatAnEventAssignsIsAStep) {
    host::TextBox& box = Box(u"");
    Focus();
    recorder_.onKeyPress = [&](std::int16_t keyAscii) {
        if (keyAscii != u'"') {
            return keyAscii;
        }
        box_->SetText(Text(box_->GetText()) + u"|Q|");
        box_->SetSelection(100, 100);
        return std::int16_t{0};
    };
    TypeText(Handle(), u"ab\"c");
    EXPECT_EQ(box.GetText(), u"ab|Q|c");
    Undo();
    EXPECT_EQ(box.GetText(), u"ab|Q|");
    Undo();
    EXPECT_EQ(box.GetText(), u"ab");
    Redo();
    EXPECT_EQ(box.GetText(), u"ab|Q|");
}

TEST_F(TextBoxUndoTest, ACorrectionIsAPartOfTheEdit) {
    host::TextBox& box = Box(u"");
    Focus();
    recorder_.onEvent = [&](const std::string& line) {
        if (line == "change" && box_->GetText().ends_with(u"b")) {
            box_->SetText(Text(box_->GetText()) + u"!");
        }
    };
    TypeText(Handle(), u"ab");
    EXPECT_EQ(box.GetText(), u"ab!");
    Undo();
    EXPECT_EQ(box.GetText(), u"a");
    Redo();
    EXPECT_EQ(box.GetText(), u"ab!");
}

TEST_F(TextBoxUndoTest, AnAssignmentByCodeForgetsTheSteps) {
    host::TextBox& box = Box(u"");
    Focus();
    TypeText(Handle(), u"ab");
    box.SetText(u"code");
    EXPECT_FALSE(CanUndo());
    Undo();
    Redo();
    EXPECT_EQ(box.GetText(), u"code");
    SendMessageW(Handle(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L"x"));
    EXPECT_TRUE(CanUndo()) << "another program's edit that can be undone";
    SendMessageW(Handle(), EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(L"y"));
    EXPECT_FALSE(CanUndo());
}

TEST_F(TextBoxUndoTest, ALockedBoxUndoesNothing) {
    host::TextBox& box = Box(u"");
    Focus();
    TypeText(Handle(), u"ab");
    box.SetLocked(true);
    Undo();
    EXPECT_EQ(SendMessageW(Handle(), EM_UNDO, 0, 0), FALSE);
    EXPECT_EQ(box.GetText(), u"ab");
    box.SetLocked(false);
    box.SetMaxLength(1);
    box.SetSelection(0, -1);
    Strike(Handle(), VK_DELETE);
    Undo();
    EXPECT_EQ(box.GetText(), u"ab") << "longer than what may be entered";
    TypeText(Handle(), u"c");
    EXPECT_EQ(box.GetText(), u"ab");
}

TEST_F(TextBoxUndoTest, OddTextsAreUndone) {
    host::TextBox& box = Box(u"");
    Focus();
    const Text odd = u"a\rb\nc\r\n\td\xD83D\xDE00\r\n\r";
    PasteText(odd);
    for (std::int32_t start = 0; start < 5; ++start) {
        box.SetSelection(start, start + 4);
        PasteText(u"1\r\n2");
    }
    for (int step = 0; step < 5; ++step) {
        Undo();
    }
    EXPECT_EQ(box.GetText(), odd);
}

TEST_F(TextBoxUndoTest, TheMenuUndoes) {
    host::TextBox& box = Limited(3);
    TypeText(Handle(), u"abcd");
    EXPECT_EQ(box.GetText(), u"abc");
    ChooseFromMenu(L'U');
    EXPECT_EQ(box.GetText(), u"");
    ChooseFromMenu(L'R');
    EXPECT_EQ(box.GetText(), u"abc");
    ChooseFromMenu(L'A');
    EXPECT_EQ(box.SelLength(), 3);
    ChooseFromMenu(L'T');
    EXPECT_EQ(box.GetText(), u"");
    ChooseFromMenu(L'P');
    EXPECT_EQ(box.GetText(), u"abc");
}

TEST_F(TextBoxUndoTest, AMillionUnitsAreTypedIntoAndUndone) {
    const Text text = LongText(1'000'000);
    host::TextBox& box = Box(u"");
    box.SetText(text);
    box.SetSelStart(500'000);
    Focus();
    TypeText(Handle(), Text(50, u'x'));
    EXPECT_EQ(box.GetText().size(), 1'000'050U);
    Undo();
    EXPECT_EQ(box.GetText(), text);
    EXPECT_EQ(box.SelStart(), 500'000);
}

TEST_F(TextBoxTest, CtrlVPastesOnce) {
    host::TextBox& box = Box(u"");
    Focus();
    PutOnClipboard(form_.Window(), u"pasted");
    const HeldKey control(VK_CONTROL);
    Strike(Handle(), 'V', 22);
    EXPECT_EQ(box.GetText(), u"pasted");
    EXPECT_EQ(recorder_.Take(), (Lines{"down 86 2", "press 22", "change", "up 86 2"}));
}

// A receiver may cancel all keys that enter units, as a field for digits does.
TEST_F(TextBoxTest, TheOlderEditingKeysNeedNoKeyPress) {
    Box(u"12", false);
    Focus();
    recorder_.onKeyPress = [](std::int16_t) { return std::int16_t{0}; };
    PutOnClipboard(Handle(), u"1e3");
    const auto strike = [&](WORD key, int held) {
        const HeldKey holding(held);
        Strike(Handle(), key);
        return Text(box_->GetText());
    };
    box_->SetSelection(0, -1);
    EXPECT_EQ(strike(VK_INSERT, VK_SHIFT), u"1e3");
    box_->SetSelection(0, 2);
    strike(VK_INSERT, VK_CONTROL);
    box_->SetSelection(3, 3);
    EXPECT_EQ(strike(VK_INSERT, VK_SHIFT), u"1e31e") << "it was copied";
    box_->SetSelection(1, 5);
    EXPECT_EQ(strike(VK_DELETE, VK_SHIFT), u"1");
    EXPECT_EQ(strike(VK_INSERT, VK_SHIFT), u"1e31e") << "it was cut";
    box_->SetSelection(0, -1);
    Strike(Handle(), VK_DELETE);
    EXPECT_EQ(box_->GetText(), u"");
    constexpr LPARAM withAlt = 0x20000001;
    SendMessageW(Handle(), WM_SYSKEYDOWN, VK_BACK, withAlt);
    SendMessageW(Handle(), WM_SYSCHAR, u'\b', withAlt);
    SendMessageW(Handle(), WM_SYSKEYUP, VK_BACK, withAlt);
    EXPECT_EQ(box_->GetText(), u"1e31e") << "it was undone";
}

TEST_F(TextBoxTest, TakesWhatAnInputMethodComposed) {
    host::TextBox& box = Box(u"");
    Focus();
    SendMessageW(Handle(), WM_IME_CHAR, 0x3042, 1);
    Pump();
    EXPECT_EQ(box.GetText(), u"\x3042");
    EXPECT_EQ(recorder_.Take(), (Lines{"press 12354", "change"}));
}

TEST_F(TextBoxTest, WhatAnInputMethodComposesIsNoEdit) {
    host::TextBox& box = Box(u"abc");
    Focus();
    box.SetSelection(1, 2);
    SendMessageW(Handle(), WM_IME_STARTCOMPOSITION, 0, 0);
    SendMessageW(Handle(), WM_IME_COMPOSITION, 0x3042, GCS_COMPSTR | GCS_CURSORPOS);
    EXPECT_EQ(box.GetText(), u"abc");
    EXPECT_EQ(box.SelLength(), 1) << "the selection stays until the text is finished";
    SendMessageW(Handle(), WM_IME_COMPOSITION, 0, 0);
    SendMessageW(Handle(), WM_IME_ENDCOMPOSITION, 0, 0);
    EXPECT_EQ(box.GetText(), u"abc");
    EXPECT_EQ(recorder_.Take(), Lines{});
}

TEST_F(TextBoxTest, WhatAnInputMethodFinishesIsOneEdit) {
    for (const bool multiLine : {true, false}) {
        host::TextBox& box = Box(u"abc", multiLine);
        Focus();
        box.SetSelection(1, 2);
        dynamic_cast<TextBox&>(box).EnterComposed(u"\x4F60\x597D");
        EXPECT_EQ(box.GetText(), u"a\x4F60\x597D\x63");
        EXPECT_EQ(recorder_.Take(), (Lines{"press 20320", "press 22909", "change"}));
        box.SetMaxLength(5);
        dynamic_cast<TextBox&>(box).EnterComposed(u"\x4F60\x597D");
        EXPECT_EQ(box.GetText(), u"a\x4F60\x597D\x4F60\x63") << "as far as there is room";
        SendMessageW(Handle(), EM_UNDO, 0, 0);
        SendMessageW(Handle(), EM_UNDO, 0, 0);
        EXPECT_EQ(box.GetText(), u"abc");
        box.SetLocked(true);
        recorder_.Take();
        dynamic_cast<TextBox&>(box).EnterComposed(u"x");
        EXPECT_EQ(recorder_.Take(), Lines{});
        recorder_.onKeyPress = [](std::int16_t unit) {
            return unit == u'x' ? std::int16_t{0} : unit;
        };
        box.SetLocked(false);
        box.SetMaxLength(0);
        box.SetSelStart(0);
        dynamic_cast<TextBox&>(box).EnterComposed(u"1x2");
        EXPECT_EQ(box.GetText(), u"12abc");
        recorder_.onKeyPress = nullptr;
    }
}

TEST_F(TextBoxTest, AKeyThatIsTakenTakesNoComposedText) {
    host::TextBox& box = Box(u"");
    Focus();
    recorder_.onKeyDown = [](std::int16_t) { return std::int16_t{0}; };
    SendMessageW(Handle(), WM_KEYDOWN, VK_PROCESSKEY, 1);
    SendMessageW(Handle(), WM_IME_CHAR, 0x3042, 1);
    Pump();
    EXPECT_EQ(box.GetText(), u"\x3042");
}

TEST_F(TextBoxTest, ADeadKeyPressesNothingUntilItsLetterComes) {
    host::TextBox& box = Box(u"");
    Focus();
    SendMessageW(Handle(), WM_KEYDOWN, VK_OEM_7, 1);
    SendMessageW(Handle(), WM_DEADCHAR, 0xB4, 1);
    SendMessageW(Handle(), WM_KEYUP, VK_OEM_7, static_cast<LPARAM>(0xC0000001));
    EXPECT_EQ(recorder_.Take(), (Lines{"down 222 0", "up 222 0"}));
    Strike(Handle(), 'E', 0xE9);
    EXPECT_EQ(recorder_.Take(), (Lines{"down 69 0", "press 233", "change", "up 69 0"}));
    SendMessageW(Handle(), WM_KEYDOWN, 'X', 1);  // no letter for the accent: both come
    SendMessageW(Handle(), WM_CHAR, 0xB4, 1);
    SendMessageW(Handle(), WM_CHAR, u'x', 1);
    EXPECT_EQ(box.GetText(), u"\xE9\xB4x");
}

TEST_F(TextBoxTest, ASurrogatePairIsOneEdit) {
    host::TextBox& box = Box(u"ab");
    box.SetSelStart(2);
    Focus();
    recorder_.onEvent = [&](const std::string& line) {
        if (line == "change" && box_->GetText().size() > 3) {
            box_->SetText(u"ab");
        }
    };
    Strike(Handle(), VK_PACKET, 0xD83D);
    Strike(Handle(), VK_PACKET, 0xDE00);
    EXPECT_EQ(box.GetText(), u"ab") << "no half of it is left";
    EXPECT_EQ(recorder_.Take(), (Lines{"down 231 0", "press -10179", "up 231 0", "down 231 0",
                                       "press -8704", "change", "change", "up 231 0"}));
}

TEST_F(TextBoxTest, KeysComeFromTheKeyboardThroughTheQueue) {
    host::TextBox& box = Box(u"");
    Focus();
    recorder_.onKeyDown = [](std::int16_t keyCode) {
        return keyCode == 'B' ? std::int16_t{0} : keyCode;
    };
    std::vector<INPUT> input;
    for (const WORD key : {WORD{'A'}, WORD{'B'}, WORD{'C'}}) {
        for (const DWORD flags : {DWORD{0}, DWORD{KEYEVENTF_KEYUP}}) {
            INPUT one = {};
            one.type = INPUT_KEYBOARD;
            one.ki.wVk = key;
            one.ki.dwFlags = flags;
            input.push_back(one);
        }
    }
    ASSERT_EQ(SendInput(static_cast<UINT>(input.size()), input.data(), sizeof(INPUT)),
              input.size());
    Pump();
    EXPECT_EQ(box.GetText(), u"ac");
    EXPECT_EQ(recorder_.Take(), (Lines{"down 65 0", "press 97", "change", "up 65 0", "down 66 0",
                                       "up 66 0", "down 67 0", "press 99", "change", "up 67 0"}));
}

TEST_F(TextBoxTest, ASingleLineTakesTheFirstLineOfAPaste) {
    host::TextBox& box = Box(u"", false);
    Focus();
    PutOnClipboard(form_.Window(), u"one\r\ntwo");
    SendMessageW(Handle(), WM_PASTE, 0, 0);
    EXPECT_EQ(box.GetText(), u"one");
}

TEST_F(TextBoxTest, AKeyMayBecomeAnother) {
    host::TextBox& box = Box(u"");
    Focus();
    recorder_.onKeyPress = [](std::int16_t) { return std::int16_t{u'Z'}; };
    TypeText(Handle(), u"a");
    EXPECT_EQ(box.GetText(), u"Z");
    recorder_.onKeyPress = [](std::int16_t) { return static_cast<std::int16_t>(0xFF21); };
    TypeText(Handle(), u"a");
    EXPECT_EQ(box.GetText(), u"Z\xFF21") << "a unit beyond the range of 16 signed bits";
}

TEST_F(TextBoxTest, AnErrorOfAHandlerEndsInTheWindow) {
    host::TextBox& box = Box(u"");
    Focus();
    recorder_.onEvent = [](const std::string&) { Raise(ErrorNumber::DivisionByZero); };
    EXPECT_NO_THROW(TypeText(Handle(), u"a"));
    EXPECT_NO_THROW(ClickAt(Handle(), {3, 3}));
    EXPECT_TRUE(Raises(ErrorNumber::DivisionByZero, [&] { box.SetText(u"x"); }));
    EXPECT_EQ(box.GetText(), u"x");
    recorder_.onEvent = nullptr;
    recorder_.Take();
    box.SetSelStart(1);
    TypeText(Handle(), u"b");
    EXPECT_EQ(box.GetText(), u"xb");
}

TEST_F(TextBoxTest, TellsTheKeysHeld) {
    Box(u"");
    Focus();
    {
        const HeldKey shift(VK_SHIFT);
        const HeldKey control(VK_CONTROL);
        Strike(Handle(), VK_HOME);
    }
    {
        const HeldKey alt(VK_MENU);
        SendMessageW(Handle(), WM_SYSKEYDOWN, 'X', 0x20000001);
        SendMessageW(Handle(), WM_SYSKEYUP, 'X', static_cast<LPARAM>(0xE0000001));
    }
    EXPECT_EQ(recorder_.Take(), (Lines{"down 36 3", "up 36 3", "down 88 4", "up 88 4"}));
}

TEST_F(TextBoxTest, ALockedBoxShowsButDoesNotEdit) {
    host::TextBox& box = Box(u"abc");
    box.SetLocked(true);
    Focus();
    PutOnClipboard(form_.Window(), u"x");
    SendMessageW(Handle(), WM_PASTE, 0, 0);
    box.SetSelection(0, 2);
    SendMessageW(Handle(), WM_CUT, 0, 0);
    TypeText(Handle(), u"y");
    Strike(Handle(), VK_DELETE);
    EXPECT_EQ(box.GetText(), u"abc");
    EXPECT_EQ(recorder_.Take(),
              (Lines{"down 89 0", "press 121", "up 89 0", "down 46 0", "up 46 0"}));
    box.SetLocked(false);
    TypeText(Handle(), u"z");
    EXPECT_EQ(box.GetText(), u"zc");
}

TEST_F(TextBoxTest, TheMouseIsToldInTwips) {
    Box(u"some text");
    ClickAt(Handle(), {20, 4});
    EXPECT_EQ(recorder_.Take(), (Lines{"got", "mousedown 1 0", "mouseup 1 0", "click"}));
    const Resolution resolution = form_.PixelsPerInch();
    EXPECT_EQ(recorder_.mouse.x, ToTwips(20, resolution.x));
    EXPECT_EQ(recorder_.mouse.y, ToTwips(4, resolution.y));
    SendMessageW(Handle(), WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(20, 4));
    LiftButton(Handle(), {20, 4});
    EXPECT_EQ(recorder_.Take(), (Lines{"dblclick", "mouseup 1 0"}));
    SendMessageW(Handle(), WM_MOUSEMOVE, MK_LBUTTON | MK_RBUTTON, MAKELPARAM(-5, 7));
    EXPECT_EQ(recorder_.Take(), Lines{"mousemove 3 0"});
    EXPECT_EQ(recorder_.mouse.x, ToTwips(-5, resolution.x));
    PutOnClipboard(form_.Window(), u"");  // Wine would insert the clipboard's text
    SendMessageW(Handle(), WM_MBUTTONDOWN, MK_MBUTTON, MAKELPARAM(1, 1));
    SendMessageW(Handle(), WM_MBUTTONUP, 0, MAKELPARAM(1, 1));
    EXPECT_EQ(recorder_.Take(), (Lines{"mousedown 4 0", "mouseup 4 0"}));
    PressButton(Handle(), {2, 2});
    LiftButton(Handle(), {-20, 2});
    EXPECT_EQ(recorder_.Take(), (Lines{"mousedown 1 0", "mouseup 1 0"})) << "lifted outside";
}

TEST_F(TextBoxTest, HasAPointerOfItsOwn) {
    host::TextBox& box = Box(u"");
    const LPARAM inClient = MAKELPARAM(HTCLIENT, WM_MOUSEMOVE);
    const auto asked = [&] {
        SendMessageW(Handle(), WM_SETCURSOR, reinterpret_cast<WPARAM>(Handle()), inClient);
        return GetCursor();
    };
    box.SetPointer(host::MousePointer::Crosshair);
    EXPECT_EQ(asked(), LoadCursorW(nullptr, MAKEINTRESOURCEW(32515)));
    box.SetPointer(host::MousePointer::Hourglass);
    EXPECT_EQ(asked(), LoadCursorW(nullptr, MAKEINTRESOURCEW(32514)));
    box.SetPointer(host::MousePointer::Default);
    EXPECT_EQ(asked(), LoadCursorW(nullptr, MAKEINTRESOURCEW(32513))) << "an edit control's";
}

TEST_F(TextBoxTest, ColoursAreThoseOfAnEditableBoxInEveryState) {
    host::TextBox& box = Box(u"");
    box.SetForeColor(Rgb(10, 20, 30));
    const HDC device = GetDC(Handle());
    for (const UINT message : {UINT{WM_CTLCOLOREDIT}, UINT{WM_CTLCOLORSTATIC}}) {
        EXPECT_NE(SendMessageW(panel_->Handle(), message, reinterpret_cast<WPARAM>(device),
                               reinterpret_cast<LPARAM>(Handle())),
                  0);
        EXPECT_EQ(GetTextColor(device), RGB(10, 20, 30));
        EXPECT_EQ(GetBkColor(device), GetSysColor(COLOR_WINDOW));
    }
    box.SetForeColor(Color::Highlight);
    SendMessageW(panel_->Handle(), WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(device),
                 reinterpret_cast<LPARAM>(Handle()));
    EXPECT_EQ(GetTextColor(device), GetSysColor(COLOR_HIGHLIGHT));
    ReleaseDC(Handle(), device);
}

TEST_F(TextBoxTest, FollowsItsFont) {
    host::TextBox& box = Box(u"text");
    const auto used = [&] {
        return reinterpret_cast<HFONT>(SendMessageW(Handle(), WM_GETFONT, 0, 0));
    };
    LOGFONTW before = {};
    GetObjectW(used(), sizeof before, &before);
    box.CurrentFont()->SetSize(30);
    LOGFONTW after = {};
    GetObjectW(used(), sizeof after, &after);
    EXPECT_LT(after.lfHeight, before.lfHeight) << "heights of characters are negative";
    const host::FontRef other = form_.Fonts().NewFont(u"Courier", 12);
    box.SetCurrentFont(other);
    GetObjectW(used(), sizeof after, &after);
    EXPECT_STREQ(after.lfFaceName, L"Courier");
    other->SetBold(true);
    GetObjectW(used(), sizeof after, &after);
    EXPECT_EQ(after.lfWeight, FW_BOLD);
}

TEST_F(TextBoxTest, AsADialogSeesIt) {
    Box(u"", true);
    MSG enter = KeyDownOf(VK_RETURN);
    const auto code = [&](MSG* message) {
        return SendMessageW(Handle(), WM_GETDLGCODE, VK_RETURN, reinterpret_cast<LPARAM>(message));
    };
    EXPECT_NE(code(&enter) & DLGC_WANTMESSAGE, 0);
    MSG tab = KeyDownOf(VK_TAB);
    EXPECT_EQ(code(&tab) & (DLGC_WANTMESSAGE | DLGC_WANTALLKEYS | DLGC_WANTTAB), 0);
    // An edit control that knows that it is in a dialog would close its parent.
    Focus();
    Strike(Handle(), VK_ESCAPE, 27);
    Pump();
    EXPECT_NE(panel_->Handle(), nullptr);
    Box(u"", false);
    EXPECT_EQ(code(&enter) & DLGC_WANTMESSAGE, 0);
}

TEST_F(TextBoxTest, TellsItsOwnerOfTheFocus) {
    Box(u"");
    SetFocus(Handle());
    SetFocus(form_.Window());
    EXPECT_EQ(panel_->focusCame, 1);
    EXPECT_EQ(panel_->focusLeft, 1);
    EXPECT_EQ(recorder_.Take(), (Lines{"got", "lost"}));
}

TEST_F(TextBoxTest, KeepsItsTextWhenItsWindowIsDestroyed) {
    for (const bool multiLine : {true, false}) {
        host::TextBox& box = Box(u"first", multiLine);
        box.SetText(u"kept");
        DestroyWindow(Handle());
        EXPECT_EQ(box.GetText(), u"kept");
        recorder_.Take();
        box.SetText(u"new");
        EXPECT_EQ(box.GetText(), u"new");
        EXPECT_EQ(recorder_.Take(), Lines{"change"});
        box.SetSelStart(1);
        box.SetLocked(true);
        box.SetMaxLength(1);
        box.SetForeColor(Rgb(1, 2, 3));
        box.Refresh();
        box.Move({.width = 100, .height = 100});
        box.CurrentFont()->SetBold(true);
        EXPECT_EQ(box.WindowHandle(), 0);
    }
}

const RaisedEvent raisedEvents[] = {
    {"got", [](HWND window) { SetFocus(window); }},
    {"down 65 0", [](HWND window) { TypeText(window, u"a"); }},
    {"press 97", [](HWND window) { TypeText(window, u"a"); }},
    {"change", [](HWND window) { TypeText(window, u"a"); }},
    {"up 65 0", [](HWND window) { TypeText(window, u"a"); }},
    {"change", [](HWND window) { TypeText(window, u"\r"); }},
    {"change", [](HWND window) { Strike(window, VK_DELETE); }},
    {"change", [](HWND window) { SendMessageW(window, EM_REPLACESEL, TRUE, (LPARAM)L"x"); }},
    {"change", [](HWND window) { SetWindowTextW(window, L"x"); }},
    {"change", [](HWND window) { SendMessageW(window, WM_CUT, 0, 0); }},
    {"mousedown 1 0",
     [](HWND window) {
         ClickAt(window, {1, 1});
     }},
    {"mouseup 1 0",
     [](HWND window) {
         ClickAt(window, {1, 1});
     }},
    {"click",
     [](HWND window) {
         ClickAt(window, {1, 1});
     }},
    {"mousemove 0 0", [](HWND window) { SendMessageW(window, WM_MOUSEMOVE, 0, 0); }},
    {"dblclick", [](HWND window) { SendMessageW(window, WM_LBUTTONDBLCLK, 1, 0); }},
};

void TextBoxTest::ExpectDestructionDuring(const RaisedEvent& raised, bool multiLine) {
    SCOPED_TRACE(raised.event + std::string(multiLine ? ", several lines" : ", one line"));
    const std::string event = raised.event;
    Box(u"text", multiLine);
    box_->SetSelLength(2);
    const HWND window = Handle();
    if (event != "got") {
        SetFocus(window);
    }
    recorder_.onEvent = [&](const std::string& line) {
        if (line == event) {
            recorder_.onEvent = nullptr;
            box_.reset();
        }
    };
    raised.act(window);
    const bool isEnter = event == "change" && !multiLine;
    EXPECT_TRUE(box_ == nullptr || isEnter);
    recorder_.onEvent = nullptr;
    box_.reset();
    Pump();
    EXPECT_FALSE(IsWindow(window));
    recorder_.Take();
}

TEST_F(TextBoxTest, MayBeDestroyedByWhateverItNotifies) {
    const int before = testing::WindowCount();
    for (const bool multiLine : {true, false}) {
        for (const RaisedEvent& raised : raisedEvents) {
            ExpectDestructionDuring(raised, multiLine);
        }
    }
    EXPECT_EQ(testing::WindowCount(), before);
}

TEST_F(TextBoxTest, MayBeDestroyedByAnAssignment) {
    Box(u"");
    recorder_.onEvent = [&](const std::string&) { box_.reset(); };
    box_->SetText(u"x");
    EXPECT_EQ(box_, nullptr);
}

TEST_F(TextBoxTest, ABoxAndItsPanelMayBeDestroyedByAChange) {
    Box(u"text");
    Focus();
    const HWND window = Handle();
    recorder_.onEvent = [&](const std::string& line) {
        if (line == "change") {
            recorder_.onEvent = nullptr;
            box_.reset();
            panel_.reset();
        }
    };
    TypeText(window, u"a");
    Pump();
    EXPECT_FALSE(IsWindow(window));
}

TEST_F(TextBoxTest, GivesItsMemoryBack) {
    bool byContainer = false;
    const auto run = [&] {
        Box(LongText(20'000));
        EXPECT_EQ(box_->GetText().size(), 20'000U);
        if (byContainer) {
            DestroyWindow(Handle());
            EXPECT_EQ(box_->GetText().size(), 20'000U);
        }
        box_.reset();
        byContainer = !byContainer;
    };
    run();
    run();
    const auto used = [] {
        PROCESS_HEAP_ENTRY entry = {};
        std::size_t bytes = 0;
        HeapLock(GetProcessHeap());
        while (HeapWalk(GetProcessHeap(), &entry) != FALSE) {
            bytes += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0 ? entry.cbData : 0;
        }
        HeapUnlock(GetProcessHeap());
        return bytes;
    };
    const std::size_t before = used();
    for (int i = 0; i < 10; ++i) {
        run();
    }
    EXPECT_LT(used(), before + 40'000) << "one buffer has that many bytes";
}

}  // namespace
}  // namespace lumenkit::win32
