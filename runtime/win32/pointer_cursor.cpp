#include "runtime/win32/pointer_cursor.h"

#include <array>
#include <cstddef>

namespace lumenkit::win32 {

namespace {

// The platform's cursors, indexed by MousePointer. The platform no longer has two of them: Icon, a
// small square, becomes the arrow, and SizePointer becomes the cursor for all directions.
constexpr WORD arrow = 32512;
constexpr std::array<WORD, 16> cursors = {
    0,      // Default
    arrow,  // Arrow
    32515,  // Crosshair
    32513,  // IBeam
    arrow,  // Icon
    32646,  // SizePointer
    32643,  // SizeNESW
    32645,  // SizeNS
    32642,  // SizeNWSE
    32644,  // SizeWE
    32516,  // UpArrow
    32514,  // Hourglass
    32648,  // NoDrop
    32650,  // ArrowHourglass
    32651,  // ArrowQuestion
    32646,  // SizeAll
};

// The platform owns its cursors.
HCURSOR CursorOf(host::MousePointer pointer) {
    const auto index = static_cast<std::size_t>(pointer);
    return LoadCursorW(nullptr, MAKEINTRESOURCEW(index < cursors.size() ? cursors[index] : arrow));
}

}  // namespace

bool ShowPointer(HWND window, host::MousePointer pointer, WPARAM wParam, LPARAM lParam) {
    const bool isOver = reinterpret_cast<HWND>(wParam) == window && LOWORD(lParam) == HTCLIENT;
    const HCURSOR cursor =
        isOver && pointer != host::MousePointer::Default ? CursorOf(pointer) : nullptr;
    if (cursor == nullptr) {
        return false;
    }
    SetCursor(cursor);
    return true;
}

}  // namespace lumenkit::win32
