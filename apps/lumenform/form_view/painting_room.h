#pragma once

#include <cstddef>

namespace lumenkit::lumenform {

/// The number of controls in one container that are shown at most.
inline constexpr std::size_t mostSiblings = 100'000;

/// Qt paints the children of a widget by recursion: painting one of them first calls the painting
/// of all behind it. With some ten thousand children, the usual stack overflows. This function
/// enlarges the stack of the main thread for `count` children, if it must. Returns the number of
/// children for which there is room, at most `count` and mostSiblings.
std::size_t MakeRoomToPaint(std::size_t count);

}  // namespace lumenkit::lumenform
