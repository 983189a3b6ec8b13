// User input of a text box: keys, mouse, clipboard.
#include <limits>
#include <utility>

#include "runtime/win32/clipboard_text.h"
#include "runtime/win32/composition.h"
#include "runtime/win32/mouse.h"
#include "runtime/win32/pointer_cursor.h"
#include "runtime/win32/surrogates.h"
#include "runtime/win32/text_box.h"

namespace lumenkit::win32 {

namespace {

constexpr char16_t backspace = 8;
constexpr char16_t paste = 22;  // Ctrl+V
constexpr char16_t redo = 25;   // Ctrl+Y
constexpr char16_t undo = 26;   // Ctrl+Z
constexpr char16_t escape = 27;
constexpr char16_t deleteCharacter = 127;
constexpr std::int16_t shiftHeld = 1;
constexpr std::int16_t controlHeld = 2;

TextView FirstLine(TextView text) {
    return text.substr(0, text.find_first_of(crLf));
}

// The kind of edit that a unit makes.
shared::EditKind KindOf(char16_t unit) {
    if (unit == backspace) {
        return shared::EditKind::DeletingBack;
    }
    return unit >= blank || unit == u'\t' ? shared::EditKind::Typing : shared::EditKind::None;
}

bool IsInside(HWND window, LPARAM point) {
    RECT inside = {};
    GetClientRect(window, &inside);
    const POINTS place = MAKEPOINTS(point);
    return PtInRect(&inside, {place.x, place.y}) != FALSE;
}

}  // namespace

LRESULT TextBox::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
            return KeyGoesDown(message, wParam, lParam);
        case WM_CHAR:
            return KeyIsPressed(wParam, lParam);
        case WM_SYSCHAR:
            return keyIsTaken_ || wParam == backspace ? 0 : Pass(message, wParam, lParam);
        case WM_KEYUP:
        case WM_SYSKEYUP:
            return KeyGoesUp(message, wParam, lParam);
        case WM_LBUTTONDOWN:
        case WM_RBUTTONDOWN:
        case WM_MBUTTONDOWN:
            return ButtonGoesDown(message, wParam, lParam);
        case WM_LBUTTONDBLCLK:
        case WM_RBUTTONDBLCLK:
        case WM_MBUTTONDBLCLK:
            return ButtonIsClickedAgain(message, wParam, lParam);
        case WM_LBUTTONUP:
        case WM_RBUTTONUP:
        case WM_MBUTTONUP:
            return ButtonGoesUp(message, wParam, lParam);
        case WM_MOUSEMOVE:
            return MouseMoves(message, wParam, lParam);
        case WM_IME_STARTCOMPOSITION:
            return StartComposition(wParam, lParam);
        case WM_IME_COMPOSITION:
            return Compose(wParam, lParam);
        case WM_IME_ENDCOMPOSITION:
            return EndComposition(wParam, lParam);
        case WM_IME_CHAR:
            keyIsTaken_ = false;  // what is composed comes from several keys
            return KeyIsPressed(wParam, lParam);
        case WM_PASTE:
            Paste();
            return 0;
        case WM_UNDO:
        case EM_UNDO:
            return Undo() ? TRUE : FALSE;
        case EM_CANUNDO:
            return history_.CanUndo() ? TRUE : FALSE;
        case EM_EMPTYUNDOBUFFER:
            history_.Forget();
            return Pass(message, wParam, lParam);
        case WM_CONTEXTMENU:
            ShowMenu(lParam);
            return 0;
        case WM_SETTEXT:
            if (!isAssigning_) {  // sent by another program
                SetText(lParam == 0 ? TextView{} : AsText(reinterpret_cast<LPCWSTR>(lParam)));
                return TRUE;
            }
            return Pass(message, wParam, lParam);
        case WM_SETCURSOR:
            return ShowPointer(Handle(), pointer_, wParam, lParam) ? TRUE
                                                                   : Pass(message, wParam, lParam);
        case WM_GETDLGCODE: {
            // The edit control's own answer would make it act for the dialog from then on.
            const auto* const asked = reinterpret_cast<const MSG*>(lParam);
            const bool wants = multiLine_ && asked != nullptr && asked->wParam == VK_RETURN;
            return DLGC_HASSETSEL | DLGC_WANTCHARS | DLGC_WANTARROWS |
                   (wants ? DLGC_WANTMESSAGE : 0);
        }
        case WM_DESTROY:
            KeepCopy();  // the text outlives the window
            GiveBufferBack();
            isCopied_ = true;
            return Pass(message, wParam, lParam);
        case WM_KILLFOCUS: {
            const Watch watch(*this);
            if (std::exchange(isComposing_, false)) {
                FinishComposition(Handle());
            }
            return watch.IsGone() ? 0
                                  : BasicTextConstituent::HandleMessage(message, wParam, lParam);
        }
        case WM_SETFOCUS:
        case WM_GETOBJECT:
            return BasicTextConstituent::HandleMessage(message, wParam, lParam);
        default:
            return Pass(message, wParam, lParam);
    }
}

// Lets the edit control answer. Then notifies its changes of the text, once.
LRESULT TextBox::Pass(UINT message, WPARAM wParam, LPARAM lParam, EditKind kind) {
    if (MayEdit(message, wParam)) {
        history_.Begin(GetText());
    }
    const bool outerChange = std::exchange(hasChanged_, false);
    const Watch watch(*this);
    const LRESULT answer = Default(message, wParam, lParam);
    if (!watch.IsGone() && std::exchange(hasChanged_, outerChange)) {
        RecordEdit(message, wParam, kind);
        const Telling telling(*this, Assigning::AmendsStep);
        events_.Change();
    }
    return answer;
}

void TextBox::FocusMoved(bool came) {
    const Telling telling(*this, Assigning::AddsStep);
    if (came) {
        events_.GotFocus();
    } else {
        events_.LostFocus();
    }
}

LRESULT TextBox::KeyGoesDown(UINT message, WPARAM wParam, LPARAM lParam) {
    auto keyCode = static_cast<std::int16_t>(wParam);
    std::int16_t shift = HeldKeys();
    keyIsTaken_ = false;
    const Telling watch(*this, Assigning::AddsStep);
    events_.KeyDown(keyCode, shift);
    if (watch.IsGone()) {
        return 0;
    }
    keyIsTaken_ = keyCode == 0;
    if (message == WM_SYSKEYDOWN && keyCode == VK_BACK) {
        Undo();
        // The system must see that Alt was not pressed alone, which would open a menu.
        return watch.IsGone() ? 0 : DefWindowProcW(Handle(), message, wParam, lParam);
    }
    // Escape in a multi-line box would close the dialog that contains the box.
    const bool closes = multiLine_ && keyCode == VK_ESCAPE;
    const bool edits = keyCode == VK_DELETE || (keyCode >= VK_PRIOR && keyCode <= VK_DOWN);
    const bool moved = edits && LeaveBreak() && keyCode == VK_LEFT && (shift & controlHeld) == 0;
    const EditKind kind = keyCode == VK_DELETE && (shift & shiftHeld) == 0
                              ? EditKind::DeletingForward
                              : EditKind::None;
    return keyIsTaken_ || closes || moved
               ? 0
               : Pass(message, static_cast<WPARAM>(keyCode), lParam, kind);
}

LRESULT TextBox::KeyIsPressed(WPARAM wParam, LPARAM lParam) {
    if (keyIsTaken_) {
        return 0;
    }
    auto keyAscii = static_cast<std::int16_t>(wParam);
    const Telling watch(*this, Assigning::AddsStep);
    events_.KeyPress(keyAscii);
    const auto unit = static_cast<char16_t>(keyAscii);
    if (watch.IsGone() || !Takes(unit)) {
        return 0;
    }
    if (PairUp(unit)) {
        return 0;
    }
    if (unit == paste) {
        Paste();
        return 0;
    }
    if (unit == undo || unit == redo) {
        unit == redo || (HeldKeys() & shiftHeld) != 0 ? Redo() : Undo();
        return 0;
    }
    LeaveBreak();
    return Pass(WM_CHAR, unit, lParam, KindOf(unit));
}

// Moves a caret between CR and LF before both, where the user sees it, and so each end of a
// selection. Returns whether a caret was moved.
bool TextBox::LeaveBreak() {
    if (!multiLine_) {
        return false;
    }
    const TextView text = GetText();
    const auto left = [&](std::int32_t position) {
        const bool isInBreak =
            position > 0 && text.substr(static_cast<std::size_t>(position) - 1, 2) == crLf;
        return isInBreak ? position - 1 : position;
    };
    const Range selection = Selection();
    const Range shown = {left(selection.start), left(selection.end)};
    if (shown.start == selection.start && shown.end == selection.end) {
        return false;
    }
    Select(shown.start, shown.end);
    return selection.start == selection.end;
}

// Whether the edit control receives the unit. Units at which it would only beep are dropped.
bool TextBox::Takes(char16_t unit) const {
    if (unit == 0 || unit == escape || unit == deleteCharacter) {
        return false;
    }
    return multiLine_ || (unit != u'\t' && unit != u'\r' && unit != u'\n');
}

LRESULT TextBox::KeyGoesUp(UINT message, WPARAM wParam, LPARAM lParam) {
    auto keyCode = static_cast<std::int16_t>(wParam);
    std::int16_t shift = HeldKeys();
    keyIsTaken_ = false;
    const Telling watch(*this, Assigning::AddsStep);
    events_.KeyUp(keyCode, shift);
    return watch.IsGone() || keyCode == 0 ? 0 : Pass(message, static_cast<WPARAM>(keyCode), lParam);
}

// The edit control handles a press of the left button first, so that the receiver sees the new
// focus and caret position. The other buttons open menus and are passed on last.
LRESULT TextBox::ButtonGoesDown(UINT message, WPARAM wParam, LPARAM lParam) {
    host::MouseArguments mouse = MouseArgumentsOf(message, wParam, lParam, PixelsPerInch());
    const Telling watch(*this, Assigning::AddsStep);
    if (message != WM_LBUTTONDOWN) {
        events_.MouseDown(mouse);
        return watch.IsGone() ? 0 : Pass(message, wParam, lParam);
    }
    isPressed_ = true;
    const LRESULT answer = Pass(message, wParam, lParam);
    if (!watch.IsGone()) {
        events_.MouseDown(mouse);
    }
    return answer;
}

LRESULT TextBox::ButtonIsClickedAgain(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_LBUTTONDBLCLK) {
        return ButtonGoesDown(message, wParam, lParam);
    }
    const Telling watch(*this, Assigning::AddsStep);
    const LRESULT answer = Pass(message, wParam, lParam);
    if (!watch.IsGone()) {
        events_.DblClick();
    }
    return answer;
}

LRESULT TextBox::ButtonGoesUp(UINT message, WPARAM wParam, LPARAM lParam) {
    host::MouseArguments mouse = MouseArgumentsOf(message, wParam, lParam, PixelsPerInch());
    const Telling watch(*this, Assigning::AddsStep);
    if (message != WM_LBUTTONUP) {
        events_.MouseUp(mouse);
        return watch.IsGone() ? 0 : Pass(message, wParam, lParam);
    }
    const bool isClick = std::exchange(isPressed_, false) && IsInside(Handle(), lParam);
    const LRESULT answer = Pass(message, wParam, lParam);
    if (!watch.IsGone()) {
        events_.MouseUp(mouse);
    }
    if (!watch.IsGone() && isClick) {
        events_.Click();
    }
    return answer;
}

LRESULT TextBox::MouseMoves(UINT message, WPARAM wParam, LPARAM lParam) {
    host::MouseArguments mouse = MouseArgumentsOf(message, wParam, lParam, PixelsPerInch());
    const Telling watch(*this, Assigning::AddsStep);
    events_.MouseMove(mouse);
    return watch.IsGone() ? 0 : Pass(message, wParam, lParam);
}

// Returns the number of units that may replace the selection.
std::size_t TextBox::Room() const {
    if (maxLength_ == 0) {
        return std::numeric_limits<std::size_t>::max();
    }
    const Range selection = Selection();
    const std::int32_t kept = Length() - (selection.end - selection.start);
    return static_cast<std::size_t>(std::max(maxLength_ - kept, 0));
}

// Replaces the edit control's own paste: no pair is split, and a single-line box takes one line
// only.
void TextBox::Paste() {
    if (locked_) {
        return;
    }
    const Text text = ClipboardText(Handle());
    LeaveBreak();
    const TextView fitting = WithoutHalfPair(multiLine_ ? TextView(text) : FirstLine(text), Room());
    if (!fitting.empty()) {
        const std::wstring wide = ToWide(fitting);
        Ask(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(wide.c_str()));
    }
}

}  // namespace lumenkit::win32
