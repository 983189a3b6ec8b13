// The surroundings of the program: screen and palette. To be set up before there is an application.
#pragma once

namespace lumenkit::form {

/// Whether windows would be seen by anybody.
bool HasDisplay();

/// Draws without a screen, unless QT_QPA_PLATFORM says otherwise.
void DrawOffscreen();

/// Draws with `scale` real pixels to a pixel.
void DrawAt(double scale);

/// One look on every desktop, light or dark. Needs the application.
void UseOwnStyle(bool dark);

}  // namespace lumenkit::form
