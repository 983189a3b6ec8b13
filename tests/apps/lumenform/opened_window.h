#pragma once

#include <QAction>
#include <QSettings>
#include <QString>
#include <QTemporaryDir>
#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "apps/lumenform/design/window/design_window.h"
#include "tests/apps/lumenform/loaded_view.h"

namespace lumenkit::testing {

/// The designer's window, active, with a folder for forms, settings and copies of unsaved work.
class OpenedWindow : public ::testing::Test {
 protected:
    OpenedWindow();

    QString Path(const QString& name) const { return folder.filePath(name); }
    std::filesystem::path File(const QString& name) const { return lumenform::PathOf(Path(name)); }
    /// Copies a sample and its companion. Returns the path of the copy.
    QString Copy(const std::string& name) const;
    lumenform::FormDesign& Design() const { return window.Bench()->GetDesign(); }
    /// The current form as it would be saved.
    std::string Text() const { return Design().Document().Write().form; }
    void Select(TextView name) const { Design().SelectNamed({lumenkit::Text(name)}); }
    /// Moves the selection with the keyboard.
    void Nudge() const;
    void TypeInto(TextView property, const char* text) const;
    /// Returns a command of any menu by its title.
    QAction& Command(const QString& title) const;

    QTemporaryDir folder;
    Surface surface;
    QSettings settings;
    lumenform::DesignWindow window;
};

}  // namespace lumenkit::testing
