// The code shared by the commands that show a window.
#pragma once

#include <QWidget>
#include <functional>
#include <memory>

#include <CLI/CLI.hpp>

#include "forms/known_code_pages.h"
#include "runtime/qt/context.h"

namespace lumenkit::lumenform {

struct DesktopOptions {
    bool dark = false;
    int codePage = forms::guessedCodePage;
};

/// Adds --dark and --code-page to the command.
void AddDesktopOptions(CLI::App& command, DesktopOptions& options);

using MakeWindow = std::function<std::unique_ptr<QWidget>(const qt::Context& context)>;

/// Shows the window until it is closed and returns the exit status. Without a display, only prints
/// an error that ends with `instead`, the alternative.
int ShowOnDesktop(const DesktopOptions& options, const char* instead, const MakeWindow& make);

}  // namespace lumenkit::lumenform
