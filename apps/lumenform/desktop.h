// Prepares the Qt application: its arguments, its screen and its palette. All functions but
// UseOwnStyle are called before the application is created.
#pragma once

#include <array>

namespace lumenkit::lumenform {

/// The command line that a QApplication receives: only the program's name, which is also its name
/// on the desktop. Must outlive the application.
struct ApplicationArguments {
    ApplicationArguments() = default;
    ~ApplicationArguments() = default;
    ApplicationArguments(const ApplicationArguments&) = delete;
    ApplicationArguments& operator=(const ApplicationArguments&) = delete;

    std::array<char, 10> name{"lumenform"};
    std::array<char*, 2> values{name.data(), nullptr};
    int count = 1;
};

/// Returns whether there is a display to show windows on.
bool HasDisplay();

/// Uses Qt's platform plugin without a screen, whatever QT_QPA_PLATFORM says.
void DrawOffscreen();

/// Draws with `scale` device pixels per pixel.
void DrawAt(double scale);

/// Uses the same style on every desktop, with a light or dark palette. Needs the application.
void UseOwnStyle(bool dark);

}  // namespace lumenkit::lumenform
