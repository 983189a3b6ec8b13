#pragma once

#include <cstdint>

namespace lumenkit::memory {

/// The key that enters a unit: its virtual key code and the modifier keys held down (2 is Ctrl;
/// capitals are typed without Shift, as with Caps Lock on).
struct KeyStroke {
    std::int16_t keyCode = 0;
    std::int16_t shift = 0;
};

/// Returns the key for `unit`. Letters and digits have their upper-case ASCII code, Enter 13,
/// Backspace 8, Tab 9, blank 32. Other control characters from 1 to 26 are a letter with Ctrl.
/// Everything else is the packet key (231).
KeyStroke KeyFor(char16_t unit);

/// The codes of the keys that move the caret or delete, and enter nothing.
enum class EditingKey : std::int16_t { End = 35, Home = 36, Left = 37, Right = 39, Delete = 46 };

inline constexpr char16_t backspace = 8;
inline constexpr char16_t tabulator = 9;
inline constexpr char16_t enter = 13;

}  // namespace lumenkit::memory
