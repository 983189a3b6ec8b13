#include "runtime/win32/label_before.h"

#include "runtime/win32/accessibility.h"
#include "runtime/win32/shown_windows.h"

namespace lumenkit::win32 {

namespace {

// Returns the label in a window that contains nothing else, or the window itself.
HWND Innermost(HWND window) {
    return ShownChildCount(window) == 1 ? Innermost(ShownChild(window, 0)) : window;
}

}  // namespace

Text LabelBefore(HWND window) {
    while ((GetWindowLongW(window, GWL_STYLE) & WS_CHILD) != 0) {
        if (HWND const before = ShownSibling(window, GW_HWNDPREV); before != nullptr) {
            HWND const label = Innermost(before);
            return IsStaticText(label) ? SpokenLabel(label) : Text();
        }
        if (ShownSibling(window, GW_HWNDNEXT) != nullptr) {
            return {};
        }
        window = GetAncestor(window, GA_PARENT);
    }
    return {};
}

}  // namespace lumenkit::win32
