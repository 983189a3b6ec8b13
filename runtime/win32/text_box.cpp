#include "runtime/win32/text_box.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <utility>

#include "frame/host/accepted_values.h"
#include "runtime/win32/label_before.h"
#include "runtime/win32/surrogates.h"

namespace lumenkit::win32 {

namespace {

DWORD BarsOf(host::ScrollBars bars) {
    switch (bars) {
        case host::ScrollBars::Horizontal:
            return WS_HSCROLL | ES_AUTOHSCROLL;
        case host::ScrollBars::Vertical:
            return WS_VSCROLL;
        case host::ScrollBars::Both:
            return WS_HSCROLL | ES_AUTOHSCROLL | WS_VSCROLL;
        case host::ScrollBars::None:
            break;
    }
    return 0;
}

// Lines wrap if there is no horizontal scroll bar.
DWORD StyleOf(const host::TextBoxDesign& design) {
    return WS_TABSTOP | (design.multiLine ? ES_MULTILINE | ES_WANTRETURN | ES_AUTOVSCROLL |
                                                BarsOf(design.scrollBars)
                                          : ES_AUTOHSCROLL);
}

}  // namespace

TextBox::TextBox(const Elements& elements, const host::TextBoxDesign& design,
                 host::TextBoxEvents& events)
    : BasicTextConstituent(
          elements,
          {.className = L"EDIT", .style = StyleOf(design), .extendedStyle = WS_EX_CLIENTEDGE},
          design, design.text),
      events_(events),
      multiLine_(design.multiLine) {
    Ask(EM_SETLIMITTEXT, 0);
}

TextBox::~TextBox() {
    GiveBufferBack();
}

// After EM_GETHANDLE the buffer may count as the caller's. EM_SETHANDLE returns it to the box.
void TextBox::GiveBufferBack() {
    if (multiLine_) {
        isAssigning_ = true;
        Ask(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L""));  // no lines to count again
        Ask(EM_SETHANDLE, static_cast<WPARAM>(Ask(EM_GETHANDLE)));
        isAssigning_ = false;
    }
}

std::int32_t TextBox::Length() const {
    return static_cast<std::int32_t>(Ask(WM_GETTEXTLENGTH));
}

// Returns a view without data if the edit control does not expose its buffer.
TextView TextBox::TextInPlace() const {
    const auto buffer = multiLine_ ? reinterpret_cast<HLOCAL>(Ask(EM_GETHANDLE)) : nullptr;
    if (buffer == nullptr) {
        return {};
    }
    const auto length = static_cast<std::size_t>(Length());
    if (LocalSize(buffer) <= length * sizeof(char16_t)) {
        return {};
    }
    const auto* const text = static_cast<const char16_t*>(LocalLock(buffer));
    LocalUnlock(buffer);  // only the edit control moves the buffer
    return text == nullptr ? TextView{} : TextView(text, length);
}

void TextBox::KeepCopy() const {
    if (isCopied_ || Handle() == nullptr) {
        return;
    }
    copy_.resize(static_cast<std::size_t>(Length()) + 1);
    const LRESULT length =
        Ask(WM_GETTEXT, copy_.size(), reinterpret_cast<LPARAM>(AsWide(copy_.data())));
    copy_.resize(static_cast<std::size_t>(length));
    isCopied_ = true;
}

TextView TextBox::GetText() const {
    if (const TextView text = TextInPlace(); text.data() != nullptr) {
        return text;
    }
    KeepCopy();
    return copy_;
}

void TextBox::SetText(TextView text) {
    caretIsPlaced_ = false;
    text = text.substr(0, text.find(u'\0'));
    if (maxLength_ > 0) {
        text = WithoutHalfPair(text, static_cast<std::size_t>(maxLength_));
    }
    if (text != GetText() && Assign(text)) {
        events_.Change();
    }
}

// Returns whether the box still exists.
bool TextBox::Assign(TextView text) {
    RecordAssignment(text);
    if (Handle() == nullptr) {
        copy_ = Text(text);
        return true;
    }
    const std::wstring wide = ToWide(text);
    const Watch watch(*this);
    isAssigning_ = true;
    const LRESULT isDone = Ask(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(wide.c_str()));
    if (watch.IsGone()) {
        return false;
    }
    isAssigning_ = false;
    isCopied_ = false;
    if (isDone == FALSE) {
        history_.Forget();
        Raise(ErrorNumber::OutOfMemory);
    }
    return true;
}

void TextBox::SetVisible(bool visible) {
    TextBox* const twin = visible || !IsVisible() ? nullptr : Twin();
    if (twin != nullptr && !twin->caretIsPlaced_) {
        const Range selection = Selection();
        const std::int32_t length = twin->Length();
        std::int32_t anchor = std::min(selection.start, length);
        std::int32_t caret = std::min(selection.end, length);
        if (ShowsCaretAt(selection.start)) {
            std::swap(anchor, caret);
        }
        twin->Select(anchor, caret);
    }
    caretIsPlaced_ = caretIsPlaced_ && visible;
    BecomeVisible(visible);
}

const Element* TextBox::Heir() const {
    const TextBox* const twin = Twin();
    return twin != nullptr && twin->IsUsable() ? twin : nullptr;
}

// Returns the visible box of the same control array that has the same place; null if there is none.
// A box that must look different is hidden and its twin is shown.
TextBox* TextBox::Twin() const {
    const HWND first =
        Handle() == nullptr || Index() < 0 ? nullptr : GetWindow(Handle(), GW_HWNDFIRST);
    for (HWND window = first; window != nullptr; window = GetWindow(window, GW_HWNDNEXT)) {
        auto* const box = dynamic_cast<TextBox*>(Window::Of(window));
        if (box != nullptr && box != this && box->Name() == Name() && box->IsVisible() &&
            box->Where() == Where()) {
            return box;
        }
    }
    return nullptr;
}

TextBox::Range TextBox::Selection() const {
    DWORD start = 0;
    DWORD end = 0;
    Ask(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    return {static_cast<std::int32_t>(start), static_cast<std::int32_t>(end)};
}

// The edit control does not say at which end of its selection the caret is, but shows it.
bool TextBox::ShowsCaretAt(std::int32_t position) const {
    POINT caret = {};
    if (GetFocus() != Handle() || GetCaretPos(&caret) == FALSE) {
        return false;
    }
    const auto place = static_cast<DWORD>(Ask(EM_POSFROMCHAR, static_cast<WPARAM>(position)));
    const int left = static_cast<std::int16_t>(LOWORD(place));
    const int top = static_cast<std::int16_t>(HIWORD(place));
    return caret.y == top && std::abs(static_cast<int>(caret.x) - left) <= 1;
}

// The caret is at `end`, which may be before `start`.
void TextBox::Select(std::int32_t start, std::int32_t end) {
    Ask(EM_SETSEL, static_cast<WPARAM>(start), end);
    Ask(EM_SCROLLCARET);
}

std::int32_t TextBox::SelStart() const {
    return Selection().start;
}

void TextBox::SetSelStart(std::int32_t position) {
    Require(position >= 0);
    caretIsPlaced_ = true;
    const std::int32_t caret = std::min(position, Length());
    Select(caret, caret);
}

std::int32_t TextBox::SelLength() const {
    const Range selection = Selection();
    return selection.end - selection.start;
}

void TextBox::SetSelLength(std::int32_t length) {
    Require(length >= 0);
    caretIsPlaced_ = true;
    const std::int32_t start = Selection().start;
    Select(start, start + std::min(length, Length() - start));
}

void TextBox::GetSelection(std::int32_t& start, std::int32_t& end) const {
    const Range selection = Selection();
    start = selection.start;
    end = selection.end;
}

void TextBox::SetSelection(std::int32_t start, std::int32_t end) {
    caretIsPlaced_ = true;
    if (start == -1) {
        Select(-1, 0);
        return;
    }
    // The numbers of the message are unsigned: a negative position is beyond the end.
    const std::int32_t length = Length();
    const auto placed = [&](std::int32_t position) {
        return position < 0 ? length : std::min(position, length);
    };
    const auto [first, last] = std::minmax({placed(start), placed(end)});
    Select(first, last);
}

void TextBox::SetForeColor(Color color) {
    foreColor_ = color;
    Invalidate();
}

void TextBox::SetLocked(bool locked) {
    locked_ = locked;
    Ask(EM_SETREADONLY, locked ? TRUE : FALSE);
}

void TextBox::SetMaxLength(std::int32_t length) {
    Require(length >= 0);
    maxLength_ = length;
    Ask(EM_SETLIMITTEXT, static_cast<WPARAM>(length));
}

void TextBox::SetPointer(host::MousePointer pointer) {
    RequirePointer(static_cast<std::int32_t>(pointer));
    pointer_ = pointer;
}

std::int32_t TextBox::WindowHandle() const {
    // Handles have 32 significant bits.
    return static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(Handle()));
}

std::optional<Description> TextBox::Describe() {
    return Description{.role = textRole,
                       .name = LabelBefore(Handle()),
                       .hint = OwnersHint(),
                       .value = Text(GetText())};
}

std::optional<LRESULT> TextBox::HandleNotification(UINT message, WPARAM wParam, LPARAM /*lParam*/) {
    if (message == WM_CTLCOLOREDIT || message == WM_CTLCOLORSTATIC) {
        return AnswerColors(wParam, foreColor_, Color::WindowBackground);
    }
    if (message != WM_COMMAND) {
        return std::nullopt;
    }
    const WORD code = HIWORD(wParam);
    if (code == EN_UPDATE || code == EN_CHANGE) {
        isCopied_ = false;
    }
    if (code == EN_CHANGE && !isAssigning_) {
        hasChanged_ = true;
    }
    return 0;
}

}  // namespace lumenkit::win32
