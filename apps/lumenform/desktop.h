// Selects screen and palette. All functions but UseOwnStyle are called before the application is
// created.
#pragma once

namespace lumenkit::lumenform {

/// Returns whether there is a display to show windows on.
bool HasDisplay();

/// Uses Qt's platform plugin without a screen, unless QT_QPA_PLATFORM is set.
void DrawOffscreen();

/// Draws with `scale` device pixels per pixel.
void DrawAt(double scale);

/// Uses the same style on every desktop, with a light or dark palette. Needs the application.
void UseOwnStyle(bool dark);

}  // namespace lumenkit::lumenform
