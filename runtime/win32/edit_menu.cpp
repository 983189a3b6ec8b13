#include "runtime/win32/edit_menu.h"

#include <windowsx.h>

namespace lumenkit::win32 {

namespace {

class PopupMenu {
 public:
    PopupMenu() : menu_(CreatePopupMenu()) {}
    ~PopupMenu() { DestroyMenu(menu_); }
    PopupMenu(const PopupMenu&) = delete;
    PopupMenu& operator=(const PopupMenu&) = delete;

    void Add(EditCommand command, const wchar_t* caption, bool isEnabled) {
        AppendMenuW(menu_, MF_STRING | (isEnabled ? MF_ENABLED : MF_GRAYED),
                    static_cast<UINT_PTR>(command), caption);
    }
    void AddLine() { AppendMenuW(menu_, MF_SEPARATOR, 0, nullptr); }
    EditCommand Ask(HWND owner, POINT place) const {
        constexpr UINT flags = TPM_RIGHTBUTTON | TPM_RETURNCMD | TPM_NONOTIFY;
        return static_cast<EditCommand>(
            TrackPopupMenuEx(menu_, flags, place.x, place.y, owner, nullptr));
    }

 private:
    HMENU menu_;
};

}  // namespace

EditCommand EditMenu::Ask(HWND owner, POINT place) const {
    PopupMenu menu;
    menu.Add(EditCommand::Undo, L"&Undo\tCtrl+Z", undo);
    menu.Add(EditCommand::Redo, L"&Redo\tCtrl+Y", redo);
    menu.AddLine();
    menu.Add(EditCommand::Cut, L"Cu&t\tCtrl+X", cut);
    menu.Add(EditCommand::Copy, L"&Copy\tCtrl+C", copy);
    menu.Add(EditCommand::Paste, L"&Paste\tCtrl+V", paste);
    menu.Add(EditCommand::Delete, L"&Delete", cut);
    menu.AddLine();
    menu.Add(EditCommand::SelectAll, L"Select &All", selectAll);
    return menu.Ask(owner, place);
}

POINT MenuPlace(HWND edit, LPARAM place) {
    if (place != -1) {
        return {GET_X_LPARAM(place), GET_Y_LPARAM(place)};
    }
    POINT caret = {};
    GetCaretPos(&caret);
    ClientToScreen(edit, &caret);
    return caret;
}

bool HasClipboardText() {
    return IsClipboardFormatAvailable(CF_UNICODETEXT) != FALSE;
}

}  // namespace lumenkit::win32
