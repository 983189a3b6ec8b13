// The undo steps of a text box, and its menu.
#include <utility>

#include "runtime/win32/edit_menu.h"
#include "runtime/win32/text_box.h"

namespace lumenkit::win32 {

TextBox::Telling::Telling(TextBox& box, Assigning assigning)
    : watch_(box), box_(box), former_(std::exchange(box.assigning_, assigning)) {}

TextBox::Telling::~Telling() {
    if (!watch_.IsGone()) {
        box_.assigning_ = former_;
    }
}

// Whether the message may edit the text. The first edit makes the history copy the text; messages
// that are frequent and edit nothing must not.
bool TextBox::MayEdit(UINT message, WPARAM wParam) const {
    switch (message) {
        case WM_KEYDOWN:
            return !locked_ && (wParam == VK_DELETE || wParam == VK_INSERT || wParam == VK_BACK);
        case WM_CHAR:
        case WM_CUT:
        case WM_CLEAR:
        case WM_MBUTTONDOWN:
        case WM_MBUTTONUP:
            return !locked_;
        case EM_REPLACESEL:
            return true;
        default:
            return false;
    }
}

void TextBox::RecordEdit(UINT message, WPARAM wParam, EditKind kind) {
    if (message == EM_REPLACESEL && wParam == FALSE) {
        history_.Forget();  // the sender asks for an edit that cannot be undone
    } else {
        history_.Record(kind, GetText(), static_cast<std::size_t>(Selection().end));
    }
}

void TextBox::RecordAssignment(TextView text) {
    switch (assigning_) {
        case Assigning::Forgets:
            history_.Forget();
            break;
        case Assigning::AddsStep:
            history_.Begin(GetText());
            history_.Record(text);
            assigning_ = Assigning::AmendsStep;
            break;
        case Assigning::AmendsStep:
            if (history_.TakeBack(text)) {
                assigning_ = Assigning::AddsStep;
            } else {
                history_.Amend(text);
            }
            break;
    }
}

bool TextBox::Undo() {
    return !locked_ && NotifyMove(history_.Undo([this](const auto& patch) { Perform(patch); }));
}

bool TextBox::Redo() {
    return !locked_ && NotifyMove(history_.Redo([this](const auto& patch) { Perform(patch); }));
}

// An undone text may be longer than what the user may enter.
void TextBox::Perform(const shared::EditHistory::Patch& patch) {
    const std::wstring text = ToWide(patch.text);
    isAssigning_ = true;
    Default(EM_SETLIMITTEXT, 0, 0);
    Default(EM_SETSEL, patch.start, static_cast<LPARAM>(patch.start + patch.length));
    Default(EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(text.c_str()));
    Default(EM_SETLIMITTEXT, static_cast<WPARAM>(maxLength_), 0);
    isAssigning_ = false;
    isCopied_ = false;
    const auto caret = static_cast<std::int32_t>(patch.caret);
    Select(caret, caret);
}

// Notifies an undo or redo, which is an edit for the receiver of the events.
bool TextBox::NotifyMove(bool moved) {
    if (moved) {
        if (!history_.IsAt(GetText())) {
            history_.Forget();  // the edit control could not hold the text
        }
        const Telling telling(*this, Assigning::AmendsStep);
        events_.Change();
    }
    return moved;
}

// Replaces the edit control's own menu, which knows nothing of the undo steps.
void TextBox::ShowMenu(LPARAM place) {
    const Watch watch(*this);
    SetFocus(Handle());
    if (watch.IsGone()) {
        return;
    }
    const Range selection = Selection();
    const bool hasSelection = selection.start < selection.end;
    const EditMenu menu = {.undo = !locked_ && history_.CanUndo(),
                           .redo = !locked_ && history_.CanRedo(),
                           .cut = !locked_ && hasSelection,
                           .copy = hasSelection,
                           .paste = !locked_ && HasClipboardText(),
                           .selectAll = Length() > 0};
    const EditCommand command = menu.Ask(Handle(), MenuPlace(Handle(), place));
    if (watch.IsGone()) {
        return;
    }
    switch (command) {
        case EditCommand::Undo:
            Undo();
            break;
        case EditCommand::Redo:
            Redo();
            break;
        case EditCommand::Cut:
            Ask(WM_CUT);
            break;
        case EditCommand::Copy:
            Ask(WM_COPY);
            break;
        case EditCommand::Paste:
            Ask(WM_PASTE);
            break;
        case EditCommand::Delete:
            Ask(WM_CLEAR);
            break;
        case EditCommand::SelectAll:
            Select(0, -1);
            break;
        case EditCommand::None:
            break;
    }
}

}  // namespace lumenkit::win32
