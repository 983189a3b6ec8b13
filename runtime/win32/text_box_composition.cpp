// Text that an input method enters into a text box.
#include <array>
#include <utility>

#include "runtime/win32/composition.h"
#include "runtime/win32/surrogates.h"
#include "runtime/win32/text_box.h"

namespace lumenkit::win32 {

// The edit control would insert what is being composed into its text, which is no edit yet, and
// enter what is finished without a notification. So the system composes in a window of its own.
LRESULT TextBox::StartComposition(WPARAM wParam, LPARAM lParam) {
    isComposing_ = true;
    POINT caret = {};
    GetCaretPos(&caret);
    PlaceComposition(Handle(), caret, FontHandle());
    return DefWindowProcW(Handle(), WM_IME_STARTCOMPOSITION, wParam, lParam);
}

LRESULT TextBox::Compose(WPARAM wParam, LPARAM lParam) {
    const CompositionChange change = CompositionChange::Of(lParam);
    const Text finished = change.finishes ? FinishedText(Handle()) : Text();
    if (finished.empty()) {
        // Text that cannot be read here is sent by the system as WM_IME_CHAR.
        return DefWindowProcW(Handle(), WM_IME_COMPOSITION, wParam, lParam);
    }
    const Watch watch(*this);
    EnterComposed(finished);
    return watch.IsGone() || change.others == 0
               ? 0
               : DefWindowProcW(Handle(), WM_IME_COMPOSITION, wParam, change.others);
}

LRESULT TextBox::EndComposition(WPARAM wParam, LPARAM lParam) {
    isComposing_ = false;
    return DefWindowProcW(Handle(), WM_IME_ENDCOMPOSITION, wParam, lParam);
}

void TextBox::EnterComposed(TextView units) {
    if (locked_) {
        return;
    }
    const Telling telling(*this, Assigning::AddsStep);
    Text entered;
    for (const char16_t unit : units) {
        auto keyAscii = static_cast<std::int16_t>(unit);
        events_.KeyPress(keyAscii);
        if (telling.IsGone()) {
            return;
        }
        const auto kept = static_cast<char16_t>(keyAscii);
        if (kept >= blank || (multiLine_ && (kept == u'\t' || kept == u'\r' || kept == u'\n'))) {
            entered += kept;
        }
    }
    if (!entered.empty()) {
        LeaveBreak();
        Insert(WithoutHalfPair(entered, Room()), EditKind::None);
    }
}

// Replaces the selection in one edit. The object may be destroyed then.
void TextBox::Insert(TextView text, EditKind kind) {
    if (!text.empty() && !locked_ && text.size() <= Room()) {
        const std::wstring wide = ToWide(text);
        Pass(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(wide.c_str()), kind);
    }
}

// A surrogate pair comes as two units. Neither is entered without the other, because the receiver
// might refuse the second one only. Returns whether it used the unit.
bool TextBox::PairUp(char16_t unit) {
    const char16_t high = std::exchange(heldSurrogate_, u'\0');
    if (IsHighSurrogate(unit)) {
        heldSurrogate_ = unit;
        return true;
    }
    if (high == u'\0' || !IsLowSurrogate(unit)) {
        return false;
    }
    const std::array<char16_t, 2> pair = {high, unit};
    LeaveBreak();
    Insert(TextView(pair.data(), pair.size()), EditKind::Typing);
    return true;
}

}  // namespace lumenkit::win32
