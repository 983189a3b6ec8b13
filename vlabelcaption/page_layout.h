// The positions of the caption page's constituents, in twips. From top to bottom: the caption with
// its shortcuts and magnifier, the bullet settings, the preview. Labels leave room for fonts up to
// a fifth wider than the 8.25-point design font; the line of shortcuts wraps to a second line
// instead. All positions are whole pixels at 96 dpi and its multiples.
#pragma once

#include "frame/host/constituent.h"

namespace lumenkit::page_layout {

inline constexpr float pageWidth = 7200;
inline constexpr float pageHeight = 5580;

inline constexpr host::Placement lblCaption = {120, 90, 6960, 225};
inline constexpr host::Placement txtCaption = {120, 330, 6960, 1125};
inline constexpr host::Placement Label1 = {120, 1530, 5580, 450};
inline constexpr host::Placement cmdHelp = {5850, 1530, 1230, 390};

// The magnifier: up to four characters, the character or selection, up to four characters. At run
// time, the last three labels are aligned with the first one.
inline constexpr float magnifierFontSize = 12;
inline constexpr host::Placement labLeft = {120, 2055, 600, 315};
inline constexpr host::Placement labChar = {720, 2055, 165, 315};
inline constexpr host::Placement labSelect = {720, 2055, 900, 315};
inline constexpr host::Placement labRight = {1620, 2055, 600, 315};

inline constexpr host::Placement lblBulletPrefix = {120, 2565, 1260, 225};
inline constexpr host::Placement txtBulletPrefix = {1395, 2505, 900, 315};
inline constexpr host::Placement lblBulletIndent = {2565, 2565, 1260, 225};
inline constexpr host::Placement txtBulletIndent = {3840, 2505, 900, 315};
inline constexpr host::Placement chkWordWrap = {5340, 2520, 1740, 285};

inline constexpr host::Placement Picture1 = {120, 2940, 6960, 2520};
/// Thickness of the preview's scroll bars; their position and length are derived from the preview.
inline constexpr float scrollBarSize = 255;

}  // namespace lumenkit::page_layout
