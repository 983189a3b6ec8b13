// The positions of the caption page's constituents, in twips. From top to bottom: the caption with
// its shortcuts and magnifier, the bullet settings, the preview. Labels leave room for fonts up to
// a fifth wider than the 8.25-point design font; the line of shortcuts wraps to a second line
// instead. All positions are whole pixels at 96 dpi and its multiples.
//
// On a page that is shown larger, the caption box grows. The parts below it move down; the preview
// keeps its size, because its scroll bars are laid out once.
#pragma once

#include "frame/host/constituent.h"

namespace lumenkit::page_layout {

inline constexpr float pageWidth = 7200;
inline constexpr float pageHeight = 5580;

/// A constituent in the designed size of the page, and what it does in a larger one.
struct Part {
    host::Placement placement;
    host::MovingEdges movingEdges = {};
};

inline constexpr host::MovingEdges moveDown = {.top = true, .bottom = true};

inline constexpr Part lblCaption = {{120, 90, 6960, 225}};
inline constexpr Part txtCaption = {{120, 330, 6960, 1125}, {.right = true, .bottom = true}};
inline constexpr Part Label1 = {{120, 1530, 5580, 450},
                                {.top = true, .right = true, .bottom = true}};
inline constexpr Part cmdHelp = {{5850, 1530, 1230, 390},
                                 {.left = true, .top = true, .right = true, .bottom = true}};

// The magnifier: up to four characters, the character or selection, up to four characters. At run
// time, the last three labels are aligned with the first one.
inline constexpr float magnifierFontSize = 12;
inline constexpr Part labLeft = {{120, 2055, 600, 315}, moveDown};
inline constexpr Part labChar = {{720, 2055, 165, 315}, moveDown};
inline constexpr Part labSelect = {{720, 2055, 900, 315}, moveDown};
inline constexpr Part labRight = {{1620, 2055, 600, 315}, moveDown};

inline constexpr Part lblBulletPrefix = {{120, 2565, 1260, 225}, moveDown};
inline constexpr Part txtBulletPrefix = {{1395, 2505, 900, 315}, moveDown};
inline constexpr Part lblBulletIndent = {{2565, 2565, 1260, 225}, moveDown};
inline constexpr Part txtBulletIndent = {{3840, 2505, 900, 315}, moveDown};
inline constexpr Part chkWordWrap = {{5340, 2520, 1740, 285}, moveDown};

inline constexpr Part Picture1 = {{120, 2940, 6960, 2520}, moveDown};
/// Thickness of the preview's scroll bars; their position and length are derived from the preview.
inline constexpr float scrollBarSize = 255;

}  // namespace lumenkit::page_layout
