// The order of the property list: its filter and groups, changed properties and their defaults.
#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <gmock/gmock.h>

#include "apps/lumenform/design/properties/property_browser.h"
#include "apps/lumenform/design/properties/property_groups.h"
#include "frame/utf8.h"
#include "tests/apps/lumenform/browsed_form.h"
#include "tests/apps/lumenform/loaded_view.h"

namespace lumenkit::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

constexpr const char* filteredControls =
    "   Begin lumenkit.VLabel Label1\n      Caption         =   \"Hello\"\n"
    "      Height          =   900\n      Left            =   120\n   End\n"
    "   Begin lumenkit.VOptList List1\n      Height          =   1200\n"
    "      Left            =   120\n   End\n"
    "   Begin VB.TextBox Text1\n      ForeColor       =   &H000000FF&\n"
    "      Height          =   375\n      Left            =   2400\n"
    "      MaxLength       =   5\n      Text            =   \"plain\"\n"
    "      Top             =   1200\n      Width           =   1500\n   End\n"
    "   Begin Other.Thing Thing1\n      Height          =   375\n      Odd             =   3\n"
    "      ScaleWidth      =   70\n      Width           =   1500\n   End\n";

class PropertyOrder : public ::testing::Test {
 protected:
    // Returns the names in the list, headings in brackets.
    std::vector<std::string> Lines() const {
        std::vector<std::string> lines;
        const lumenform::PropertyModel& model = form.browser->Model();
        for (int line = 0; line < model.rowCount(); ++line) {
            const std::string text = model.index(line, 0).data().toString().toStdString();
            lines.push_back(model.IsHeading(line) ? "[" + text + "]" : text);
        }
        return lines;
    }
    bool IsBold(TextView property, int column = 0) const {
        const QModelIndex index = form.browser->Model().index(form.Row(property), column);
        return index.data(Qt::FontRole).value<QFont>().bold();
    }
    std::string Current() const {
        return form.browser->Table()
            .currentIndex()
            .siblingAtColumn(0)
            .data()
            .toString()
            .toStdString();
    }
    void GoTo(TextView property) {
        form.browser->Table().setFocus();
        form.browser->Table().GoTo(form.Row(property));
    }
    void PressReset(TextView property) {
        GoTo(property);
        QTest::keyClick(&form.browser->Table(), Qt::Key_Delete, Qt::ControlModifier);
    }
    void TypeFilter(const QString& text) {
        QTest::keyClick(&form.browser->Table(), Qt::Key_F, Qt::ControlModifier);
        ASSERT_EQ(QApplication::focusWidget(), &form.browser->Filter().Field());
        QTest::keyClicks(&form.browser->Filter().Field(), text);
    }
    int Steps() { return form.design.History().index(); }
    void Undo() { form.design.History().undo(); }
    std::string Original() const { return FormWith(filteredControls).Write().form; }

    BrowsedForm form{FormWith(filteredControls)};
};

// ---- The filter

TEST_F(PropertyOrder, CtrlFFiltersTheListByNameAndEscShowsAllAgain) {
    form.Select({u"List1"});
    const std::vector<std::string> all = Lines();
    GoTo(u"LeftMargin");
    TypeFilter(QStringLiteral("MARG"));
    EXPECT_THAT(Lines(), ElementsAre("LeftMargin", "TopMargin"));
    EXPECT_EQ(Current(), "LeftMargin");
    QTest::keyClick(&form.browser->Filter().Field(), Qt::Key_Escape);
    EXPECT_EQ(Lines(), all);
    EXPECT_EQ(QApplication::focusWidget(), &form.browser->Table());
    EXPECT_EQ(Current(), "LeftMargin");
}

TEST_F(PropertyOrder, TheFilterStaysForTheNextSelectionAndEscInTheListEndsIt) {
    form.Select({u"List1"});
    TypeFilter(QStringLiteral("border"));
    EXPECT_THAT(Lines(), ElementsAre("BorderStyle"));
    form.Select({u"Text1"});
    EXPECT_THAT(Lines(), ElementsAre("BorderStyle"));
    QTest::keyClick(&form.browser->Filter().Field(), Qt::Key_Down);
    EXPECT_EQ(QApplication::focusWidget(), &form.browser->Table());
    QTest::keyClick(&form.browser->Table(), Qt::Key_Escape);
    EXPECT_TRUE(form.Has(u"MaxLength"));
}

TEST_F(PropertyOrder, AFilteredPropertyIsEditedInItsRow) {
    form.Select({u"Text1"});
    TypeFilter(QStringLiteral("maxl"));
    QTest::keyClick(&form.browser->Filter().Field(), Qt::Key_Return);
    QTest::keyClicks(&form.browser->Table(), "7");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_THAT(form.Saved(), HasSubstr("MaxLength       =   7\n"));
    EXPECT_THAT(Lines(), ElementsAre("MaxLength"));
}

TEST_F(PropertyOrder, AFilterWithoutAPropertySaysSo) {
    form.Select({u"Text1"});
    TypeFilter(QStringLiteral("xyz"));
    EXPECT_TRUE(Lines().empty());
    EXPECT_EQ(form.browser->Help().toStdString(), "No property contains \"xyz\".");
    EXPECT_TRUE(form.browser->Edit(u"Text")) << "the filter ends for a property that is asked for";
    EXPECT_EQ(form.browser->Filter().Field().text(), QString());
}

// ---- Groups

TEST_F(PropertyOrder, GroupsHaveHeadings) {
    form.Select({u"List1"});
    QTest::mouseClick(&form.browser->Filter().Groups(), Qt::LeftButton);
    const std::vector<std::string> lines = Lines();
    std::vector<std::string> headings;
    for (const std::string& line : lines) {
        if (line.front() == '[') {
            headings.push_back(line);
        }
    }
    EXPECT_THAT(headings, ElementsAre("[Appearance]", "[Behaviour]", "[Data]", "[Font]",
                                      "[Position]", "[Misc]"));
    const auto font = std::ranges::find(lines, "[Font]");
    EXPECT_THAT(std::vector(font, font + 6),
                ElementsAre("[Font]", "Font", "ItemFontBold", "ItemFontItalic", "ItemFontName",
                            "ItemFontSize"));
    QTest::mouseClick(&form.browser->Filter().Groups(), Qt::LeftButton);
    EXPECT_EQ(Lines().front(), "(Name)");
}

TEST_F(PropertyOrder, TheKeyboardSkipsHeadings) {
    form.Select({u"List1"});
    form.browser->Filter().Groups().setChecked(true);
    lumenform::PropertyTable& table = form.browser->Table();
    GoTo(u"ItemFontSize");
    const int row = table.currentIndex().row();
    ASSERT_TRUE(form.browser->Model().IsHeading(row + 1));
    QTest::keyClick(&table, Qt::Key_Down);
    EXPECT_EQ(table.currentIndex().row(), row + 2);
    QTest::keyClick(&table, Qt::Key_Up);
    EXPECT_EQ(table.currentIndex().row(), row);
    QTest::keyClick(&table, Qt::Key_Home);
    EXPECT_EQ(table.currentIndex().row(), 1);
    QTest::keyClick(&table, Qt::Key_Up);
    EXPECT_EQ(table.currentIndex().row(), 1);
    GoTo(u"ItemFontSize");
    QTest::keyClick(&table, Qt::Key_F2);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(table.currentIndex().row(), row + 2) << "from the editor of a value too";
}

TEST_F(PropertyOrder, AClickOnAHeadingDoesNothing) {
    form.Select({u"List1"});
    form.browser->Filter().Groups().setChecked(true);
    lumenform::PropertyTable& table = form.browser->Table();
    GoTo(u"Caption");
    const QRect heading = table.visualRect(form.browser->Model().index(0, 0));
    EXPECT_GT(heading.width(), table.columnWidth(0)) << "it spans both columns";
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, heading.center());
    EXPECT_EQ(Current(), "Caption");
    EXPECT_EQ(Steps(), 0);
}

TEST_F(PropertyOrder, TheGroupsAreRemembered) {
    const QTemporaryDir folder;
    QSettings settings(folder.filePath(QStringLiteral("s.ini")), QSettings::IniFormat);
    form.browser->RememberIn(settings);
    EXPECT_FALSE(form.browser->Filter().Groups().isChecked());
    form.browser->Filter().Groups().click();
    BrowsedForm other{FormWith(filteredControls)};
    other.browser->RememberIn(settings);
    EXPECT_TRUE(other.browser->Model().IsHeading(0));
}

TEST(PropertyGroups, UnknownNamesAreInTheGroupOfTheirKind) {
    using lumenform::GroupOf;
    using lumenform::PropertyGroup;
    using lumenform::PropertyKind;
    EXPECT_EQ(GroupOf(u"GridColor", PropertyKind::Color), PropertyGroup::Appearance);
    EXPECT_EQ(GroupOf(u"HeadFont", PropertyKind::Font), PropertyGroup::Font);
    EXPECT_EQ(GroupOf(u"Odd", PropertyKind::Number), PropertyGroup::Misc);
    EXPECT_EQ(GroupOf(u"LEFT", PropertyKind::Number), PropertyGroup::Position);
}

// ---- Changed properties

TEST_F(PropertyOrder, ChangedPropertiesAreBold) {
    form.Select({u"Text1"});
    EXPECT_TRUE(IsBold(u"MaxLength"));
    EXPECT_TRUE(IsBold(u"MaxLength", 1));
    EXPECT_TRUE(IsBold(u"ForeColor"));
    EXPECT_FALSE(IsBold(u"BackColor"));
    EXPECT_FALSE(IsBold(u"Left")) << "a place has no default";
    form.Select({u"Label1"});
    EXPECT_TRUE(IsBold(u"Caption"));
    EXPECT_FALSE(IsBold(u"BackColor"));
    EXPECT_FALSE(IsBold(u"Font"));
    form.Type(u"BulletIndent", "300");
    EXPECT_TRUE(IsBold(u"BulletIndent"));
    form.Type(u"Font", "Arial, 12 pt");
    EXPECT_TRUE(IsBold(u"Font"));
    form.Select({u"Thing1"});
    EXPECT_TRUE(IsBold(u"Odd")) << "the file states it, and its default is not known";
    EXPECT_FALSE(IsBold(u"ScaleWidth"));
}

TEST_F(PropertyOrder, CtrlDelResetsAPlainControl) {
    form.Select({u"Text1"});
    PressReset(u"MaxLength");
    EXPECT_THAT(form.Saved(), Not(HasSubstr("MaxLength")));
    EXPECT_EQ(form.Shown(u"MaxLength"), "0");
    EXPECT_FALSE(IsBold(u"MaxLength"));
    EXPECT_EQ(form.design.History().undoText(), "Reset MaxLength");
    PressReset(u"MaxLength");
    EXPECT_EQ(Steps(), 1) << "it has its default already";
    Undo();
    EXPECT_EQ(form.Saved(), Original());
}

TEST_F(PropertyOrder, CtrlDelResetsAControlOfTheLibrary) {
    form.Select({u"Label1"});
    form.Type(u"Font", "Arial, 12 pt");
    form.Type(u"ForeColor", "255");
    const std::string changed = form.Saved();
    PressReset(u"ForeColor");
    EXPECT_EQ(ToColor(form.Automation(u"Label1").Get(u"ForeColor")), Color::ButtonText);
    EXPECT_THAT(form.Saved(), Not(HasSubstr("&H000000FF&\n      Height          =   900")));
    PressReset(u"Font");
    EXPECT_EQ(form.Shown(u"Font"), "MS Sans Serif, 8.25 pt");
    EXPECT_FALSE(IsBold(u"Font"));
    PressReset(u"Caption");
    EXPECT_EQ(form.Shown(u"Caption"), "VLabel");
    EXPECT_EQ(Steps(), 5);
    Undo();
    Undo();
    Undo();
    EXPECT_EQ(form.Saved(), changed);
}

TEST_F(PropertyOrder, WhatIsRequiredIsNotReset) {
    form.Select({u"Text1"});
    for (const TextView name : {u"Left", u"(Name)", u"TabIndex"}) {
        PressReset(name);
    }
    form.Select({});
    PressReset(u"ClientWidth");
    EXPECT_EQ(Steps(), 0);
}

TEST_F(PropertyOrder, SeveralControlsAreResetInOneStep) {
    form.Select({u"Label1", u"Text1"});
    form.Choose(u"Enabled", "False");
    PressReset(u"Enabled");
    EXPECT_EQ(Steps(), 2);
    EXPECT_EQ(form.Saved(), Original());
    EXPECT_EQ(form.design.SelectedNames(), (std::vector<Text>{u"Label1", u"Text1"}));
}

TEST_F(PropertyOrder, TheContextMenuResets) {
    form.Select({u"Text1"});
    lumenform::PropertyTable& table = form.browser->Table();
    const auto open = [&](TextView property) {
        const QPoint at =
            table.visualRect(form.browser->Model().index(form.Row(property), 1)).center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, table.viewport()->mapToGlobal(at));
        QApplication::sendEvent(table.viewport(), &event);
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    };
    QMenu* menu = open(u"BackColor");
    ASSERT_NE(menu, nullptr);
    EXPECT_FALSE(menu->actions().at(1)->isEnabled());
    menu->close();
    menu = open(u"ForeColor");
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(Current(), "ForeColor");
    EXPECT_EQ(menu->actions().at(1)->text().remove(u'&'), "Reset to default\tCtrl+Del");
    QTest::mouseClick(menu, Qt::LeftButton, {},
                      menu->actionGeometry(menu->actions().at(1)).center());
    EXPECT_THAT(form.Saved(), Not(HasSubstr("ForeColor")));
}

}  // namespace
}  // namespace lumenkit::testing
