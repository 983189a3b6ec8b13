// Sessions in which the menus of a form are edited.
#include <QTest>

#include <gmock/gmock.h>

#include "tests/apps/lumenform/menus_user.h"
#include "tests/apps/lumenform/sessions/session.h"
#include "tests/support/qt_windows.h"

namespace lumenkit::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

const std::string menuLines =
    "   Begin VB.Menu mnuFile \r\n      Caption         =   \"&File\"\r\n"
    "      Begin VB.Menu mnuOpen \r\n         Caption         =   \"&Open\"\r\n"
    "         Tag             =   \"kept\" ' by hand\r\n      End\r\n"
    "      Begin VB.Menu mnuQuit \r\n         Caption         =   \"&Quit\"\r\n      End\r\n"
    "   End\r\n";

class MenuSession : public UserSession {
 protected:
    // Presses Ctrl+E.
    MenusUser OpenMenus() {
        Key(Qt::Key_E, Qt::ControlModifier);
        auto* const dialog = window.Bench()->findChild<lumenform::MenusDialog*>();
        if (dialog == nullptr) {
            throw std::logic_error("no dialog for menus");
        }
        ShowActive(*dialog);
        return MenusUser(*dialog);
    }
};

TEST_F(MenuSession, MenusAreEditedAddedAndReordered) {
    OpenWith(QStringLiteral("menus.frm"), menuLines);
    const MenusUser menus = OpenMenus();
    EXPECT_THAT(menus.Rows(), ElementsAre("mnuFile", "..mnuOpen", "..mnuQuit"));
    menus.GoTo(QStringLiteral("mnuOpen"));
    menus.Type(QStringLiteral("Caption"), QStringLiteral("&Load..."));
    menus.Choose(QStringLiteral("Shortcut"), QStringLiteral("Ctrl+L"));
    menus.Toggle(QStringLiteral("Checked"));
    menus.Press(QStringLiteral("Add after"));
    menus.Type(QStringLiteral("Caption"), QStringLiteral("&Hidden"));
    menus.Type(QStringLiteral("Name"), QStringLiteral("mnuHidden"));
    menus.Toggle(QStringLiteral("Enabled"));
    menus.Toggle(QStringLiteral("Visible"));
    menus.GoTo(QStringLiteral("mnuQuit"));
    menus.TreeKey(Qt::Key_Up, Qt::AltModifier);
    EXPECT_THAT(menus.Rows(), ElementsAre("mnuFile", "..mnuOpen", "..mnuQuit", "..mnuHidden"));
    menus.Accept();
    QTest::qWait(0);
    Save();
    EXPECT_THAT(
        Stored(QStringLiteral("menus.frm")),
        HasSubstr("   Begin VB.Menu mnuFile \r\n      Caption         =   \"&File\"\r\n"
                  "      Begin VB.Menu mnuOpen \r\n"
                  "         Caption         =   \"&Load...\"\r\n"
                  "         Checked         =   -1  'True\r\n"
                  "         Shortcut        =   ^L\r\n"
                  "         Tag             =   \"kept\" ' by hand\r\n      End\r\n"
                  "      Begin VB.Menu mnuQuit \r\n         Caption         =   \"&Quit\"\r\n"
                  "      End\r\n"
                  "      Begin VB.Menu mnuHidden \r\n         Caption         =   \"&Hidden\"\r\n"
                  "         Enabled         =   0   'False\r\n"
                  "         Visible         =   0   'False\r\n      End\r\n   End\r\n"));
    Key(Qt::Key_Z, Qt::ControlModifier);
    Save();
    EXPECT_THAT(Stored(QStringLiteral("menus.frm")), HasSubstr(menuLines)) << "one step";
}

TEST_F(MenuSession, AMenuOfTheFormIsSelectedAndOpensItsDialog) {
    OpenWith(QStringLiteral("menus.frm"), menuLines);
    Tree().Click("mnuQuit");
    EXPECT_TRUE(Properties().Has(u"Shortcut"));
    Properties().Type(u"Caption", "E&xit");
    Save();
    EXPECT_THAT(Stored(QStringLiteral("menus.frm")), HasSubstr("\"E&xit\""));
    Tree().Click("mnuQuit");
    const MenusUser menus = OpenMenus();
    EXPECT_EQ(menus.Field<QLineEdit>(QStringLiteral("Name")).text(), QStringLiteral("mnuQuit"));
    menus.Type(QStringLiteral("Name"), QStringLiteral("mnuOpen"));
    EXPECT_FALSE(menus.CanAccept()) << "the name is taken";
    EXPECT_THAT(menus.Message(), HasSubstr("mnuOpen"));
    menus.Press(QStringLiteral("Cancel"));
}

}  // namespace
}  // namespace lumenkit::testing
