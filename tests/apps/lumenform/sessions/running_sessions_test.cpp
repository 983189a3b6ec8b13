// Sessions in which a form runs: all keys are for the form.
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

#include <gmock/gmock.h>

#include "apps/lumenform/run/run_window.h"
#include "forms/file.h"
#include "tests/apps/lumenform/sessions/session.h"
#include "tests/support/qt_windows.h"

namespace lumenkit::testing {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;

const std::string formWithMenus =
    ControlLines("VB.TextBox", "Text1", 120, 120, 1800, 300) +
    ControlLines("VB.CommandButton", "cmdQuit", 120, 900, 1200, 375,
                 "      Cancel = -1  'True\r\n      Caption = \"Quit\"\r\n") +
    "   Begin VB.Menu mnuFile \r\n      Caption = \"&File\"\r\n"
    "      Begin VB.Menu mnuOpen \r\n         Caption = \"&Open\"\r\n"
    "         Shortcut = ^O\r\n      End\r\n   End\r\n";

class RunningSession : public UserSession {
 protected:
    std::vector<std::string> Events() const {
        std::vector<std::string> events;
        const QTreeWidget& log = window.Running()->Log();
        for (int row = 0; row < log.topLevelItemCount(); ++row) {
            const QTreeWidgetItem& item = *log.topLevelItem(row);
            events.push_back((item.text(0) + u'.' + item.text(1)).toStdString());
        }
        return events;
    }
};

// Returns the number of menu bars that are seen in a window.
int SeenMenuBars(const QWidget& window) {
    int seen = 0;
    for (const QMenuBar* bar : window.findChildren<QMenuBar*>()) {
        seen += bar->isVisible() && !bar->isHidden() && bar->height() > 0 ? 1 : 0;
    }
    return seen;
}

TEST_F(RunningSession, EscapeAltAndShortcutsAreForTheForm) {
    OpenWith(QStringLiteral("menus.frm"), formWithMenus);
    const std::string before = Stored(QStringLiteral("menus.frm"));
    Key(Qt::Key_F5);
    ASSERT_NE(window.Running(), nullptr);
    EXPECT_EQ(SeenMenuBars(window), 1);
    Key(Qt::Key_O, Qt::ControlModifier);  // no file dialog
    EXPECT_THAT(Events(), Contains("mnuOpen.Click"));
    Key(Qt::Key_Escape);
    EXPECT_THAT(Events(), Contains("cmdQuit.Click"));
    ASSERT_NE(window.Running(), nullptr) << "Escape does not end the trial run";
    Key(Qt::Key_F, Qt::AltModifier);
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->actions().front()->text(), QStringLiteral("&Open")) << "the menu of the form";
    menu->close();
    Key(Qt::Key_F5);
    EXPECT_EQ(window.Running(), nullptr);
    EXPECT_TRUE(window.menuBar()->isVisible());
    EXPECT_FALSE(window.isWindowModified());
    EXPECT_EQ(Stored(QStringLiteral("menus.frm")), before);
}

TEST_F(RunningSession, TheProgramThatRunsAFormShowsOneMenuBar) {
    Write(QStringLiteral("menus.frm"),
          "VERSION 5.00\r\nBegin VB.Form Form1 \r\n   ClientHeight = 4800\r\n"
          "   ClientWidth = 6000\r\n" +
              formWithMenus + "End\r\n");
    forms::Document document = forms::Load(File(QStringLiteral("menus.frm")));
    lumenform::RunWindow program(surface.context, document);
    ShowActive(program);
    EXPECT_EQ(SeenMenuBars(program), 1);
}

}  // namespace
}  // namespace lumenkit::testing
