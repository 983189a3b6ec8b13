#include "runtime/win32/pointer_cursor.h"

#include <array>
#include <cstddef>

namespace lumenkit::win32 {

namespace {

// The platform's cursors by MousePointer's numbers. Two it has given up: a small square, for which
// the arrow stands, and the old one for sizes, which the one for all directions replaced.
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

}  // namespace

HCURSOR CursorOf(host::MousePointer pointer) {
    if (pointer == host::MousePointer::Default) {
        return nullptr;
    }
    const auto index = static_cast<std::size_t>(pointer);
    return LoadCursorW(nullptr, MAKEINTRESOURCEW(index < cursors.size() ? cursors[index] : arrow));
}

}  // namespace lumenkit::win32
