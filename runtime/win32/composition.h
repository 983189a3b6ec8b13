// Text that an input method composes from several keys.
#pragma once

#include "frame/text.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// What WM_IME_COMPOSITION tells of: finished text, and other changes of the composition.
struct CompositionChange {
    bool finishes = false;
    LPARAM others = 0;  ///< the parameter of the message without the finished text

    static CompositionChange Of(LPARAM changes);
};

/// Returns the text that the input method of a window has finished. It is available while the
/// window handles the message that tells of it.
Text FinishedText(HWND window);

/// Lets the input method show what it composes at `place` (in the window's client area) in `font`.
void PlaceComposition(HWND window, POINT place, HFONT font);

/// Makes the input method finish what it composes. The window receives the text before the call
/// returns.
void FinishComposition(HWND window);

}  // namespace lumenkit::win32
