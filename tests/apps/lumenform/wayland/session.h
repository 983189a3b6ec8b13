// The windows of lumenform in the Wayland session, and their user.
#pragma once

#include <QSettings>
#include <QTemporaryDir>
#include <string>

#include <gtest/gtest.h>

#include "apps/lumenform/design/window/design_window.h"
#include "apps/lumenform/run/run_window.h"
#include "tests/apps/lumenform/loaded_view.h"
#include "tests/apps/lumenform/wayland/person.h"

namespace lumenkit::testing {

/// A form with two memos, in the window of "lumenform run".
class RunSession : public ::testing::Test {
 protected:
    RunSession();

    QWidget& Box(TextView memo);
    Object& Automation(TextView memo);
    std::string TextOf(TextView memo);
    /// Clicks into the memo, so that it has the focus.
    void GoTo(TextView memo);
    /// Selects all of the memo's text by the keyboard.
    void SelectAll(TextView memo);

    Surface surface;
    forms::Document document;
    lumenform::RunWindow window{surface.context, document};
    Person person;
};

/// A form with a label and a memo, in the window of "lumenform design".
class DesignSession : public ::testing::Test {
 protected:
    DesignSession();

    lumenform::FormDesign& Design() const { return window.Bench()->GetDesign(); }
    lumenform::Glass& Glass() const { return window.Bench()->GetCanvas().GetGlass(); }
    lumenform::LiveControl& Control(TextView name) const;
    /// Returns the middle of a control, as a position on the glass.
    QPoint MiddleOf(TextView name) const;
    std::string Selected() const;

    QTemporaryDir folder;
    Surface surface;
    QSettings settings{folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat};
    lumenform::DesignWindow window{{.classes = surface.context.classes,
                                    .application = surface.application,
                                    .interaction = surface.interaction,
                                    .settings = settings}};
    Person person;
};

}  // namespace lumenkit::testing
