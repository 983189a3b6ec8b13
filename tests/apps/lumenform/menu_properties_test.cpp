// The properties of selected menus in the property list, and menus in the selection.
#include "apps/lumenform/design/properties/menu_properties.h"

#include <gmock/gmock.h>

#include "apps/lumenform/design/outline/outline.h"
#include "tests/apps/lumenform/browsed_form.h"
#include "tests/apps/lumenform/loaded_view.h"
#include "tests/apps/lumenform/outlined_form.h"

namespace lumenkit::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

const std::string listedMenus =
    "   Begin VB.TextBox txtOne\n      Height = 300\n      Left = 0\n      Top = 0\n"
    "      Width = 900\n   End\n"
    "   Begin VB.Menu mnuEdit \n      Caption         =   \"&Edit\"\n"
    "      Begin VB.Menu mnuCut \n         Caption         =   \"Cu&t\"\n"
    "         Shortcut        =   +{DEL}\n         Tag             =   \"more\"\n      End\n"
    "      Begin VB.Menu mnuCopy \n         Caption         =   \"&Copy\"\n      End\n"
    "   End\n";

class MenuProperties : public ::testing::Test {
 protected:
    MenuProperties() { form.Select({u"mnuCut"}); }
    BrowsedForm form{FormWith(listedMenus)};
    const std::string before = form.Saved();
};

TEST_F(MenuProperties, AreListedWithTheOthersInTheBlock) {
    std::vector<std::string> names;
    const lumenform::PropertyModel& model = form.browser->Model();
    for (int row = 0; row < model.rowCount(); ++row) {
        names.push_back(
            model.index(row, lumenform::PropertyModel::NameColumn).data().toString().toStdString());
    }
    EXPECT_THAT(names,
                ElementsAre("(Name)", "Caption", "Checked", "Enabled", "HelpContextID", "Index",
                            "NegotiatePosition", "Shortcut", "Tag", "Visible", "WindowList"));
    EXPECT_EQ(form.Shown(u"Shortcut"), "Shift+Del");
    EXPECT_EQ(form.Shown(u"Visible"), "True");
    EXPECT_EQ(form.browser->Heading(), QStringLiteral("mnuCut  Menu"));
}

TEST_F(MenuProperties, AreEditedInOneStepEach) {
    form.Type(u"Caption", "Cut &out");
    form.Choose(u"Shortcut", "Ctrl+X");
    form.Choose(u"Checked", "True");
    EXPECT_THAT(form.Saved(), HasSubstr("      Begin VB.Menu mnuCut \n"
                                        "         Caption         =   \"Cut &out\"\n"
                                        "         Checked         =   -1  'True\n"
                                        "         Shortcut        =   ^X\n"
                                        "         Tag             =   \"more\"\n      End\n"));
    EXPECT_EQ(form.design.History().count(), 3);
    EXPECT_THAT(form.design.SelectedNames(), ElementsAre(u"mnuCut"));
    for (int i = 0; i < 3; ++i) {
        form.design.History().undo();
    }
    EXPECT_EQ(form.Saved(), before);
    EXPECT_THAT(form.design.SelectedNames(), ElementsAre(u"mnuCut"));
}

TEST_F(MenuProperties, AShortcutIsTakenAway) {
    form.Choose(u"Shortcut", "(None)");
    EXPECT_THAT(form.Saved(), Not(HasSubstr("Shortcut")));
}

TEST_F(MenuProperties, ARenamedMenuStaysSelected) {
    form.Type(u"(Name)", "mnuSnip");
    EXPECT_THAT(form.design.SelectedNames(), ElementsAre(u"mnuSnip"));
    form.Type(u"Index", "4");
    EXPECT_THAT(form.design.SelectedNames(), ElementsAre(u"mnuSnip(4)"));
    EXPECT_THAT(form.Saved(), HasSubstr("         Index           =   4\n         Shortcut"));
    form.Type(u"Index", "");
    EXPECT_THAT(form.Saved(), Not(HasSubstr("Index")));
}

TEST_F(MenuProperties, WhatAFormRefusesIsRefused) {
    form.Type(u"(Name)", "txtOne");
    EXPECT_THAT(form.Message(), HasSubstr("txtOne"));
    form.Select({u"mnuCopy"});
    form.Choose(u"Shortcut", "Shift+Del");
    EXPECT_THAT(form.Message(), HasSubstr("Another menu has the shortcut key Shift+Del"));
    form.Select({u"mnuEdit"});
    form.Choose(u"Checked", "True");
    EXPECT_THAT(form.Message(), HasSubstr("in the menu bar cannot be checked"));
    form.Type(u"Caption", "-");
    EXPECT_THAT(form.Message(), HasSubstr("A separator cannot be in the menu bar itself"));
    EXPECT_EQ(form.Saved(), before);
    EXPECT_EQ(form.design.History().count(), 0);
}

TEST_F(MenuProperties, SeveralMenusAreEditedAtOnce) {
    form.Select({u"mnuCut", u"mnuCopy"});
    EXPECT_EQ(form.browser->Heading(), QStringLiteral("2 menus"));
    EXPECT_FALSE(form.Has(u"(Name)"));
    form.Choose(u"Enabled", "False");
    EXPECT_EQ(form.design.History().count(), 1);
    EXPECT_THAT(form.Saved(), HasSubstr("Cu&t\"\n         Enabled         =   0   'False\n"));
    EXPECT_THAT(form.Saved(), HasSubstr("&Copy\"\n         Enabled         =   0   'False\n"));
}

TEST(MenusInTheOutline, AreSelectedInTheDesign) {
    OutlinedForm form(listedMenus);
    form.Click("mnuCopy");
    EXPECT_THAT(form.design.SelectedNames(), ElementsAre(u"mnuCopy"));
    form.Click("txtOne");
    EXPECT_TRUE(form.design.SelectedMenus().empty());
    form.design.SelectNamed({u"MNUCUT"});
    EXPECT_THAT(form.SelectedRows(), ElementsAre("mnuCut"));
    form.Click("Form1");
    EXPECT_TRUE(form.design.IsFormSelected());
}

TEST(MenusInTheOutline, AreSelectedAgainAfterUndo) {
    OutlinedForm form(listedMenus);
    form.Click("mnuCopy");
    form.Key(Qt::Key_Delete);
    EXPECT_TRUE(form.design.IsFormSelected());
    form.design.History().undo();
    EXPECT_THAT(form.SelectedRows(), ElementsAre("mnuCopy"));
}

}  // namespace
}  // namespace lumenkit::testing
