// The keyboard among the constituents of one control or page. The tab order is that of the windows,
// which is the order in which they were made; the option buttons of one parent are one stop, and
// arrows choose among them.
#pragma once

#include <string>

#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// Gives the focus to the first (or last) constituent in `root` that takes it. False where there is
/// none.
bool FocusFirst(HWND root, bool last);

/// Whether the window with the focus is `root` or lies in it.
bool HasFocusInside(HWND root);

/// Acts on a message of the queue for a window in `root` as a dialog would: Tab, arrows among
/// option buttons, mnemonics. Keys that the window with the focus wants for itself (arrows and what
/// edits text, Return where it breaks lines) are handed to it. Return on buttons, Escape, and a
/// Tab that leads out are left to the container. True where the message was used up.
bool TranslateKeyInside(HWND root, const MSG& message);

/// The mnemonics of the usable captions in `root`, in lower case, each once.
std::wstring MnemonicsInside(HWND root);

/// Does what the mnemonic stands for: clicks the button, goes to what the label or frame names.
/// False where no caption in `root` has it.
bool UseMnemonicInside(HWND root, wchar_t unit);

/// Whether `text`, a caption with mnemonics ("&Open", "&&" is no mnemonic), answers to `unit`
/// without regard to case.
bool AnswersTo(const wchar_t* text, wchar_t unit);

}  // namespace lumenkit::win32
