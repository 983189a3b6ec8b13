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

}  // namespace lumenkit::lumenform
