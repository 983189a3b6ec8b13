// The units that a key enters into a text box, as KeyPress receives them.
#pragma once

#include "frame/text.h"

class QKeyEvent;

namespace lumenkit::qt {

namespace key {

inline constexpr char16_t selectAll = 1;
inline constexpr char16_t copy = 3;
inline constexpr char16_t backspace = 8;
inline constexpr char16_t tabulator = 9;
inline constexpr char16_t lineFeed = 10;
inline constexpr char16_t enter = 13;
inline constexpr char16_t paste = 22;
inline constexpr char16_t cut = 24;
inline constexpr char16_t redo = 25;
inline constexpr char16_t undo = 26;
inline constexpr char16_t deleteWord = 127;

}  // namespace key

/// Returns nothing for keys that enter nothing.
Text EnteredBy(const QKeyEvent& event);

/// Whether the key is a character together with Alt, which is for mnemonics and menus. AltGr is
/// Ctrl with Alt, a group of its own, or neither.
bool IsMnemonic(const QKeyEvent& event);

/// Whether the key is Backspace with Alt, which undoes, or redoes with Shift, and enters no unit.
bool IsUndoKey(const QKeyEvent& event);

/// Whether the key is a letter together with Ctrl, which enters a control unit.
bool IsControlLetter(const QKeyEvent& event);

}  // namespace lumenkit::qt
