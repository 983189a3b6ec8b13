// Where the constituents of the caption page lie, in twips. From top to bottom: the caption with
// its shortcuts and magnifier, the bullet settings, the preview. The page is made for 8.25 points;
// boxes and labels leave a third more for longer fonts.
#pragma once

#include "frame/host/constituent.h"

namespace lumenkit::page_layout {

inline constexpr float pageWidth = 7200;
inline constexpr float pageHeight = 5520;

inline constexpr host::Placement lblCaption = {120, 105, 6960, 255};
inline constexpr host::Placement txtCaption = {120, 375, 6960, 1125};
inline constexpr host::Placement Label1 = {120, 1545, 6960, 255};

// The magnifier: up to four characters, the character or selection, up to four characters. The
// last three are lined up with the first one when the page starts.
inline constexpr float magnifierFontSize = 12;
inline constexpr host::Placement labLeft = {120, 1860, 600, 315};
inline constexpr host::Placement labChar = {720, 1860, 165, 315};
inline constexpr host::Placement labSelect = {720, 1860, 900, 315};
inline constexpr host::Placement labRight = {1620, 1860, 600, 315};

inline constexpr host::Placement lblBulletPrefix = {120, 2355, 1155, 255};
inline constexpr host::Placement txtBulletPrefix = {1290, 2310, 750, 315};
inline constexpr host::Placement lblBulletIndent = {2220, 2355, 1155, 255};
inline constexpr host::Placement txtBulletIndent = {3390, 2310, 750, 315};
inline constexpr host::Placement chkWordWrap = {4320, 2325, 1335, 285};
inline constexpr host::Placement cmdHelp = {5790, 2280, 1290, 375};

inline constexpr host::Placement Picture1 = {120, 2790, 6960, 2610};
/// Thickness of the preview's scroll bars; their place and length follow from the preview.
inline constexpr float scrollBarSize = 255;

}  // namespace lumenkit::page_layout
