#pragma once

#include <array>

namespace lumenkit::form {

/// What an application of Qt is told of the command line: the program's name, which it also bears
/// for the desktop. It must outlive the application.
struct ApplicationArguments {
    ApplicationArguments() = default;
    ~ApplicationArguments() = default;
    ApplicationArguments(const ApplicationArguments&) = delete;
    ApplicationArguments& operator=(const ApplicationArguments&) = delete;

    std::array<char, 10> name{"lumenform"};
    std::array<char*, 2> values{name.data(), nullptr};
    int count = 1;
};

}  // namespace lumenkit::form
