// The dialog for the menus of a form, driven with mouse and keys, and the bytes that it changes.
#include "apps/lumenform/design/menus/menus_dialog.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>
#include <QTest>
#include <QTreeWidgetItemIterator>
#include <fstream>
#include <memory>
#include <random>
#include <stdexcept>

#include <gmock/gmock.h>

#include "apps/lumenform/design/menus/apply_menus.h"
#include "apps/lumenform/design/menus/menu_moves.h"
#include "frame/utf8.h"
#include "tests/apps/lumenform/designed_form.h"
#include "tests/apps/lumenform/menus_user.h"
#include "tests/apps/lumenform/opened_window.h"
#include "tests/support/qt_windows.h"
#include "tests/support/test_rounds.h"
#include "tests/support/test_seed.h"

namespace lumenkit::testing {
namespace {

using lumenform::MenuEntries;
using lumenform::MenuEntry;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

// Spaces, comments and properties of which the designer knows nothing are here on purpose.
const std::string menusForm =
    "   Begin VB.CommandButton cmdGo\n      Height = 495\n      Left = 120\n      Top = 240\n"
    "      Width = 1215\n   End\n"
    "   Begin VB.Menu mnuFile \n      Caption         =   \"&File\"\n"
    "      Begin VB.Menu mnuOpen \n         Caption  = \"&Open\"\n"
    "         Shortcut        =   ^O\n         Tag = \"kept\" ' by hand\n      End\n"
    "      ' the bar\n"
    "      Begin VB.Menu mnuBar \n         Caption         =   \"-\"\n      End\n"
    "      Begin VB.Menu mnuQuit \n         Caption         =   \"&Quit\"\n"
    "         Enabled         =   0   'False\n      End\n"
    "   End\n"
    "   ' help\n"
    "   Begin VB.Menu mnuHelp \n      Caption         =   \"&Help\"\n"
    "      NegotiatePosition=   3  'Right\n   End\n";

std::string Replaced(std::string text, const std::string& part, const std::string& by) {
    const std::size_t at = text.find(part);
    if (at == std::string::npos) {
        throw std::out_of_range("no " + part);
    }
    return text.replace(at, part.size(), by);
}

class MenusDialog : public ::testing::Test, public MenusUser {
 protected:
    MenusDialog() { Open(menusForm); }

    void Open(const std::string& inner) {
        dialog.reset();
        form = std::make_unique<DesignedForm>(inner);
        before = form->Saved();
        OpenAgain();
    }
    void OpenAgain() {
        dialog = std::make_unique<lumenform::MenusDialog>(form->design, &form->window);
        Use(*dialog);
        constexpr QSize roomForAll(900, 600);  // on a small screen, too
        dialog->resize(roomForAll);
        ShowActive(*dialog);
    }

    std::string Saved() const { return form->Saved(); }
    int Steps() const { return form->design.History().count(); }

    std::unique_ptr<DesignedForm> form;
    std::unique_ptr<lumenform::MenusDialog> dialog;
    std::string before;
};

// ---- What it shows

TEST_F(MenusDialog, ShowsTheTreeWithCaptionsNamesAndShortcuts) {
    EXPECT_THAT(Rows(), ElementsAre("mnuFile", "..mnuOpen", "..mnuBar", "..mnuQuit", "mnuHelp"));
    const QTreeWidgetItem* open = dialog->Tree().topLevelItem(0)->child(0);
    EXPECT_EQ(open->text(lumenform::MenuTree::Caption), QStringLiteral("&Open"));
    EXPECT_EQ(open->text(lumenform::MenuTree::Shortcut), QStringLiteral("Ctrl+O"));
}

TEST_F(MenusDialog, FieldsShowTheCurrentMenu) {
    GoTo("mnuQuit");
    EXPECT_EQ(Field<QLineEdit>("Caption").text(), QStringLiteral("&Quit"));
    EXPECT_EQ(Field<QLineEdit>("Name").text(), QStringLiteral("mnuQuit"));
    EXPECT_FALSE(ButtonWith<QCheckBox>("Enabled").isChecked());
    EXPECT_TRUE(ButtonWith<QCheckBox>("Visible").isChecked());
    GoTo("mnuOpen");
    EXPECT_EQ(Field<QComboBox>("Shortcut").currentText(), QStringLiteral("Ctrl+O"));
    GoTo("mnuHelp");
    EXPECT_EQ(Field<QComboBox>("Negotiate position").currentIndex(), 3);
}

TEST_F(MenusDialog, BeginsWithTheSelectedMenu) {
    form->design.SelectNamed({u"mnuQuit"});
    OpenAgain();
    EXPECT_EQ(Field<QLineEdit>("Name").text(), QStringLiteral("mnuQuit"));
}

TEST_F(MenusDialog, EveryFieldAndButtonHasAName) {
    for (const QWidget* widget : dialog->findChildren<QWidget*>()) {
        const auto* button = qobject_cast<const QAbstractButton*>(widget);
        const bool isField = qobject_cast<const QComboBox*>(widget) != nullptr ||
                             qobject_cast<const QSpinBox*>(widget) != nullptr ||
                             qobject_cast<const QTreeView*>(widget) != nullptr;
        if (isField) {
            EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->metaObject()->className();
        } else if (button != nullptr) {
            EXPECT_FALSE(button->text().isEmpty());
        }
    }
}

// ---- Bytes

TEST_F(MenusDialog, OkWithoutAnEditChangesNothing) {
    GoTo("mnuOpen");
    Accept();
    EXPECT_EQ(Saved(), before);
    EXPECT_EQ(Steps(), 0);
}

TEST_F(MenusDialog, CancelChangesNothing) {
    Type("Caption", "Other");
    GoTo("mnuHelp");
    TreeKey(Qt::Key_Delete);
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(Saved(), before);
    EXPECT_EQ(Steps(), 0);
}

TEST_F(MenusDialog, AnEditChangesOnlyItsLines) {
    GoTo("mnuOpen");
    Type("Caption", "Op&en");
    Choose("Shortcut", "Ctrl+Shift+F12");
    GoTo("mnuQuit");
    Toggle("Enabled");
    Toggle("Checked");
    Accept();
    std::string expected = Replaced(before, "Caption  = \"&Open\"", "Caption  = \"Op&en\"");
    expected = Replaced(expected, "=   ^O\n", "=   +^{F12}\n");
    expected = Replaced(expected, "         Enabled         =   0   'False\n",
                        "         Checked         =   -1  'True\n");
    EXPECT_EQ(Saved(), expected);
    EXPECT_EQ(Steps(), 1);
    form->design.History().undo();
    EXPECT_EQ(Saved(), before);
}

TEST_F(MenusDialog, AllPropertiesAreWrittenInTheirOrder) {
    GoTo("mnuQuit");
    Press("Add after");
    Type("Caption", "&New");
    Type("Name", "mnuNew");
    Type("Index", "3");
    Choose("Shortcut", "Alt+Backspace");
    Choose("Negotiate position", "2 - Middle");
    auto& help = Field<QSpinBox>("Help context");
    help.setFocus();
    help.selectAll();
    QTest::keyClicks(&help, "1200");
    Toggle("Checked");
    Toggle("Enabled");
    Toggle("Visible");
    Toggle("Window list");
    Accept();
    EXPECT_EQ(Saved(), Replaced(before, "         Enabled         =   0   'False\n      End\n",
                                "         Enabled         =   0   'False\n      End\n"
                                "      Begin VB.Menu mnuNew \n"
                                "         Caption         =   \"&New\"\n"
                                "         Checked         =   -1  'True\n"
                                "         Enabled         =   0   'False\n"
                                "         HelpContextID   =   1200\n"
                                "         Index           =   3\n"
                                "         NegotiatePosition=   2\n"
                                "         Shortcut        =   %{BKSP}\n"
                                "         Visible         =   0   'False\n"
                                "         WindowList      =   -1  'True\n"
                                "      End\n"));
    EXPECT_EQ(form->design.SelectedNames(), std::vector<Text>{u"mnuNew(3)"});
}

TEST_F(MenusDialog, EveryOfferedShortcutIsReadBack) {
    GoTo("mnuOpen");
    const auto& box = Field<QComboBox>("Shortcut");
    const int count = box.count();
    EXPECT_EQ(count, 1 + 26 + 4 * 12 + 5);
    for (int i = 1; i < count; ++i) {
        const QString written = box.itemData(i).toString();
        const DesignedForm other(Replaced(menusForm, "^O", written.toStdString()));
        EXPECT_THAT(other.design.Document().Warnings(), IsEmpty()) << written.toStdString();
        const MenuEntries menus = lumenform::ReadMenus(other.design.Document());
        EXPECT_EQ(ToUtf8(menus.at(1).shortcut), written.toStdString());
    }
}

TEST_F(MenusDialog, AnUnusualShortcutIsKept) {
    Open(Replaced(menusForm, "^O", "%{F4}"));
    GoTo("mnuOpen");
    EXPECT_EQ(Field<QComboBox>("Shortcut").currentText(), QStringLiteral("%{F4}"));
    Type("Caption", "X");
    Accept();
    EXPECT_EQ(Saved(), Replaced(before, "\"&Open\"", "\"X\""));
}

TEST_F(MenusDialog, MenusAreInsertedAndSeparated) {
    GoTo("mnuQuit");
    TreeKey(Qt::Key_Insert);
    EXPECT_EQ(QApplication::focusWidget(), &Field<QLineEdit>("Caption"));
    QTest::keyClicks(QApplication::focusWidget(), "&Print");
    Press("Add separator");
    EXPECT_THAT(Rows(), ElementsAre("mnuFile", "..mnuOpen", "..mnuBar", "..Menu1", "..Menu2",
                                    "..mnuQuit", "mnuHelp"));
    Accept();
    EXPECT_EQ(Saved(), Replaced(before, "      Begin VB.Menu mnuQuit",
                                "      Begin VB.Menu Menu1 \n"
                                "         Caption         =   \"&Print\"\n      End\n"
                                "      Begin VB.Menu Menu2 \n"
                                "         Caption         =   \"-\"\n      End\n"
                                "      Begin VB.Menu mnuQuit"));
}

TEST_F(MenusDialog, TheFirstMenusOfAFormAreAdded) {
    Open("");
    EXPECT_THAT(Rows(), IsEmpty());
    EXPECT_FALSE(Field<QLineEdit>("Caption").isEnabled());
    EXPECT_FALSE(ButtonWith<QPushButton>("Delete").isEnabled());
    Press("Add after");
    Type("Caption", "&File");
    Press("Add after");
    Press("Move right");
    Type("Caption", "&Open");
    Accept();
    EXPECT_THAT(Saved(), HasSubstr("   Begin VB.Menu Menu1 \n      Caption         =   \"&File\"\n"
                                   "      Begin VB.Menu Menu2 \n"
                                   "         Caption         =   \"&Open\"\n      End\n   End\n"));
}

TEST_F(MenusDialog, DeleteRemovesAMenuWithItsEntries) {
    GoTo("mnuFile");
    TreeKey(Qt::Key_Delete);
    EXPECT_THAT(Rows(), ElementsAre("mnuHelp"));
    Accept();
    const std::size_t from = before.find("   Begin VB.Menu mnuFile");
    const std::size_t to = before.find("   ' help");
    EXPECT_EQ(Saved(), before.substr(0, from) + before.substr(to));
}

TEST_F(MenusDialog, DeleteInAFieldDeletesOnlyText) {
    GoTo("mnuOpen");
    Type("Caption", "");
    EXPECT_EQ(Rows().size(), 5U);
}

TEST_F(MenusDialog, MovingKeepsTheLinesOfAMenu) {
    GoTo("mnuQuit");
    TreeKey(Qt::Key_Up, Qt::AltModifier);
    TreeKey(Qt::Key_Up, Qt::AltModifier);
    EXPECT_FALSE(ButtonWith<QPushButton>("Move up").isEnabled());
    EXPECT_THAT(Rows(), ElementsAre("mnuFile", "..mnuQuit", "..mnuOpen", "..mnuBar", "mnuHelp"));
    Accept();
    const std::string quit =
        "      Begin VB.Menu mnuQuit \n         Caption         =   \"&Quit\"\n"
        "         Enabled         =   0   'False\n      End\n";
    EXPECT_EQ(Saved(), Replaced(Replaced(before, quit, ""), "      Begin VB.Menu mnuOpen",
                                quit + "      Begin VB.Menu mnuOpen"));
}

TEST_F(MenusDialog, MovingThereAndBackChangesNothing) {
    GoTo("mnuFile");
    Press("Move down");
    EXPECT_THAT(Rows(), ElementsAre("mnuHelp", "mnuFile", "..mnuOpen", "..mnuBar", "..mnuQuit"));
    Press("Move up");
    Accept();
    EXPECT_EQ(Saved(), before);
    EXPECT_EQ(Steps(), 0);
}

TEST_F(MenusDialog, IndentingMovesLinesIntoAnotherMenu) {
    GoTo("mnuHelp");
    TreeKey(Qt::Key_Right, Qt::AltModifier);
    EXPECT_THAT(Rows(), ElementsAre("mnuFile", "..mnuOpen", "..mnuBar", "..mnuQuit", "..mnuHelp"));
    Accept();
    std::string expected = Replaced(before,
                                    "   Begin VB.Menu mnuHelp \n      Caption         =   "
                                    "\"&Help\"\n      NegotiatePosition=   3  'Right\n   End\n",
                                    "");
    expected = Replaced(expected, "0   'False\n      End\n",
                        "0   'False\n      End\n      Begin VB.Menu mnuHelp \n"
                        "         Caption         =   \"&Help\"\n"
                        "         NegotiatePosition=   3  'Right\n      End\n");
    EXPECT_EQ(Saved(), expected);
}

TEST_F(MenusDialog, OutdentingTakesTheEntriesThatFollowAlong) {
    GoTo("mnuBar");
    Press("Move left");
    EXPECT_THAT(Rows(), ElementsAre("mnuFile", "..mnuOpen", "mnuBar", "..mnuQuit", "mnuHelp"));
    EXPECT_FALSE(CanAccept());
    EXPECT_THAT(Message(), HasSubstr("mnuBar: A separator cannot be in the menu bar itself"));
    Type("Caption", "&More");
    Accept();
    EXPECT_THAT(Saved(), HasSubstr("   Begin VB.Menu mnuBar \n"
                                   "      Caption         =   \"&More\"\n"
                                   "      Begin VB.Menu mnuQuit \n"));
}

TEST_F(MenusDialog, AMenuCanGetIntoOneThatItContained) {
    Open(
        "   Begin VB.Menu A\n      Caption = \"A\"\n"
        "      Begin VB.Menu B\n         Caption = \"B\"\n      End\n   End\n");
    GoTo("B");
    Press("Move left");
    Press("Move up");
    GoTo("A");
    Press("Move right");
    Accept();
    EXPECT_THAT(Saved(), HasSubstr("   Begin VB.Menu B\n      Caption = \"B\"\n"
                                   "      Begin VB.Menu A\n         Caption = \"A\"\n"
                                   "      End\n   End\n"));
}

TEST_F(MenusDialog, NamesCanBeExchanged) {
    GoTo("mnuOpen");
    Type("Name", "mnuQuit");
    EXPECT_THAT(Message(), HasSubstr("Another menu has the name \"mnuQuit\""));
    const QTreeWidgetItem* quit = dialog->Tree().topLevelItem(0)->child(2);
    EXPECT_FALSE(quit->icon(lumenform::MenuTree::Name).isNull());
    dialog->Tree().setFocus();
    QTest::keyClick(&dialog->Tree(), Qt::Key_Down);
    QTest::keyClick(&dialog->Tree(), Qt::Key_Down);
    Type("Name", "mnuOpen");
    Accept();
    std::string expected = Replaced(before, "Menu mnuOpen", "Menu mnuX");
    expected = Replaced(expected, "Menu mnuQuit", "Menu mnuOpen");
    EXPECT_EQ(Saved(), Replaced(expected, "Menu mnuX", "Menu mnuQuit"));
}

// ---- What it refuses

TEST_F(MenusDialog, NamesAreRefusedWhereTheyAreTyped) {
    const std::vector<std::pair<const char*, const char*>> names = {
        {"", "needs a name"},
        {"1st", "begins with a letter"},
        {"a b", "begins with a letter"},
        {"CMDGO", "\"cmdGo\" is already taken"},
        {"form1", "already taken"},
        {"mnufile", "Another menu has the name"}};
    GoTo("mnuOpen");
    for (const auto& [name, why] : names) {
        Type("Name", name);
        EXPECT_FALSE(CanAccept()) << name;
        EXPECT_THAT(Message(), HasSubstr(why));
        QTest::keyClick(&Field<QLineEdit>("Name"), Qt::Key_Return);
        EXPECT_TRUE(dialog->isVisible());
    }
    Type("Name", "mnuLoad");
    EXPECT_EQ(Message(), "");
    Accept();
    EXPECT_EQ(Saved(), Replaced(before, "Menu mnuOpen", "Menu mnuLoad"));
}

TEST_F(MenusDialog, ElementsOfAnArrayFollowEachOtherWithRisingIndices) {
    GoTo("mnuOpen");
    Type("Name", "mnuBar");
    EXPECT_THAT(Message(), HasSubstr("Give both an index"));
    Type("Index", "1");
    EXPECT_FALSE(CanAccept());
    GoTo("mnuBar");
    Type("Index", "1");
    EXPECT_THAT(Message(), HasSubstr("Another menu is \"mnuBar(1)\""));
    Type("Index", "0");
    EXPECT_THAT(Message(), HasSubstr("must rise"));
    Type("Index", "2");
    EXPECT_EQ(Message(), "");
    Type("Index", "40000");
    EXPECT_THAT(Message(), HasSubstr("0 to 32767"));
    Type("Index", "2");
    GoTo("mnuQuit");
    Press("Move up");
    EXPECT_THAT(Message(), HasSubstr("must follow each other"));
    Press("Move down");
    Accept();
    EXPECT_THAT(Saved(), HasSubstr("Begin VB.Menu mnuBar \n         Caption  = \"&Open\"\n"
                                   "         Index           =   1\n"));
}

TEST_F(MenusDialog, TitlesInTheMenuBarAreNeitherCheckedNorHaveShortcuts) {
    GoTo("mnuHelp");
    Toggle("Checked");
    EXPECT_THAT(Message(), HasSubstr("in the menu bar cannot be checked"));
    EXPECT_FALSE(CanAccept());
    Toggle("Checked");
    Choose("Shortcut", "F1");
    EXPECT_THAT(Message(), HasSubstr("in the menu bar cannot have a shortcut"));
    EXPECT_FALSE(CanAccept());
}

TEST_F(MenusDialog, MenusThatContainOthersAreNeitherCheckedNorHaveShortcuts) {
    GoTo("mnuOpen");
    Press("Add after");
    Press("Move right");
    GoTo("mnuOpen");
    EXPECT_THAT(Message(), HasSubstr("contains others cannot have a shortcut"));
    Field<QComboBox>("Shortcut").setFocus();
    QTest::keyClick(&Field<QComboBox>("Shortcut"), Qt::Key_Home);
    EXPECT_EQ(Message(), "");
    Toggle("Checked");
    EXPECT_THAT(Message(), HasSubstr("contains others cannot be checked"));
    EXPECT_FALSE(CanAccept());
}

TEST_F(MenusDialog, SeparatorsAreNeitherCheckedNorContainMenus) {
    GoTo("mnuBar");
    Toggle("Checked");
    EXPECT_THAT(Message(), HasSubstr("A separator cannot be checked"));
    Toggle("Checked");
    GoTo("mnuQuit");
    Press("Move right");
    EXPECT_THAT(Message(), HasSubstr("mnuBar: A separator cannot contain menus"));
}

TEST_F(MenusDialog, AShortcutBelongsToOneMenu) {
    GoTo("mnuQuit");
    Choose("Shortcut", "Ctrl+O");
    EXPECT_THAT(Message(), HasSubstr("Another menu has the shortcut key Ctrl+O"));
    EXPECT_FALSE(CanAccept());
}

TEST_F(MenusDialog, OneMenuListsTheWindows) {
    GoTo("mnuHelp");
    Toggle("Window list");
    EXPECT_TRUE(CanAccept());
    GoTo("mnuFile");
    Toggle("Window list");
    EXPECT_THAT(Message(), HasSubstr("Only one menu"));
}

TEST_F(MenusDialog, MenusHaveFiveLevelsBelowTheMenuBar) {
    Open("");
    Press("Add after");
    for (int level = 1; level <= 5; ++level) {
        Press("Add after");
        for (int step = 0; step < level; ++step) {
            EXPECT_EQ(ButtonWith<QPushButton>("Move right").isEnabled(), step < 1) << level;
            if (step == 0) {
                Press("Move right");
            }
        }
    }
    Press("Add after");
    EXPECT_FALSE(ButtonWith<QPushButton>("Move right").isEnabled());
    EXPECT_EQ(Rows().back(), "..........Menu7");
    Accept();
}

TEST_F(MenusDialog, WhatTheFileBrokeBeforeIsTolerated) {
    Open(Replaced(menusForm, "      NegotiatePosition=   3  'Right\n",
                  "      Checked = -1 'True\n      Shortcut = ^O\n"));
    EXPECT_EQ(Message(), "");
    GoTo("mnuHelp");
    Type("Caption", "?");
    Accept();
    EXPECT_EQ(Saved(), Replaced(before, "\"&Help\"", "\"?\""));
}

TEST_F(MenusDialog, ACaptionThatTheFormCannotHoldIsRefused) {
    dialog.reset();
    form = std::make_unique<DesignedForm>(forms::Document::Parse(
        "x.frm",
        "VERSION 5.00\nBegin VB.Form F\n   ClientHeight = 2000\n   ClientWidth = 3000\n"
        "   Begin VB.Menu mnuA\n      Caption = \"\xE9\"\n   End\nEnd\n",
        {}, 1252));
    OpenAgain();
    Field<QLineEdit>("Caption").setFocus();
    Field<QLineEdit>("Caption").selectAll();
    Field<QLineEdit>("Caption").insert(QStringLiteral("\u65e5"));
    EXPECT_FALSE(CanAccept());
    EXPECT_THAT(Message(), HasSubstr("mnuA: "));
}

// ---- Places of many menus

// The names in preorder with their levels, as they are in the form.
std::vector<std::string> Structure(const MenuEntries& menus) {
    std::vector<std::string> rows;
    for (const MenuEntry& entry : menus) {
        rows.push_back(std::string(static_cast<std::size_t>(entry.level), '.') +
                       ToUtf8(entry.name));
    }
    return rows;
}

// Moves, adds and removes entries at random.
void Shuffle(MenuEntries& menus, std::mt19937& random) {
    const auto pick = [&](std::size_t count) { return random() % count; };
    static int added = 0;
    for (int step = 0; step < 12; ++step) {
        const std::size_t at = menus.empty() ? 0 : pick(menus.size());
        const auto way = pick(6);
        if (way == 0 || menus.empty()) {
            const Text name = FromUtf8("New" + std::to_string(++added));
            lumenform::AddMenuAfter(menus, at, {.name = name, .caption = name});
        } else if (way == 1 && menus.size() > 6) {
            lumenform::RemoveMenu(menus, at);
        } else if (way == 2 && lumenform::CanMoveMenuUp(menus, at)) {
            lumenform::MoveMenuUp(menus, at);
        } else if (way == 3 && lumenform::CanMoveMenuDown(menus, at)) {
            lumenform::MoveMenuDown(menus, at);
        } else if (way == 4 && lumenform::CanMoveMenuIn(menus, at)) {
            lumenform::MoveMenuIn(menus, at);
        } else if (way == 5 && lumenform::CanMoveMenuOut(menus, at)) {
            lumenform::MoveMenuOut(menus, at);
        }
    }
}

TEST(ApplyMenus, GivesTheFormAnyOrderAndUndoBringsTheBytesBack) {
    std::mt19937 random(TestSeed());
    DesignedForm form(menusForm);
    for (int round = 0; round < Rounds(40); ++round) {
        const std::string before = form.Saved();
        const MenuEntries former = lumenform::ReadMenus(form.design.Document());
        MenuEntries menus = former;
        Shuffle(menus, random);
        lumenform::ApplyMenus(form.design, former, menus, 0);
        SCOPED_TRACE(before + "-- becomes --\n" + form.Saved());
        ASSERT_EQ(Structure(lumenform::ReadMenus(form.design.Document())), Structure(menus));
        if (form.Saved() != before) {
            form.design.History().undo();
            ASSERT_EQ(form.Saved(), before);
            form.design.History().redo();
        }
    }
}

TEST(ApplyMenus, RefusesMenusThatHaveChangedMeanwhile) {
    DesignedForm form(menusForm);
    const MenuEntries former = lumenform::ReadMenus(form.design.Document());
    MenuEntries menus = former;
    lumenform::RemoveMenu(menus, 0);
    lumenform::ApplyMenus(form.design, former, menus, 0);
    EXPECT_THROW(lumenform::ApplyMenus(form.design, former, menus, 0), RuntimeError);
}

// ---- From the window

class MenusInTheWindow : public OpenedWindow {
 protected:
    MenusInTheWindow() { window.Load(Copy("menus")); }
    lumenform::MenusDialog* Dialog() const { return window.findChild<lumenform::MenusDialog*>(); }
    lumenform::Glass& Glass() const { return window.Bench()->GetCanvas().GetGlass(); }
    QPoint TitleOf(int number) const {
        const auto* bar = qobject_cast<QMenuBar*>(Design().View().layout()->menuBar());
        const QRect title = bar->actionGeometry(bar->actions().at(number));
        return Glass().mapFromGlobal(bar->mapToGlobal(title.center()));
    }
};

TEST_F(MenusInTheWindow, CtrlEOpensTheDialog) {
    EXPECT_TRUE(Command(QStringLiteral("Menus…")).isEnabled());
    QTest::keyClick(&Glass(), Qt::Key_E, Qt::ControlModifier);
    ASSERT_NE(Dialog(), nullptr);
    EXPECT_TRUE(Dialog()->isModal());
}

TEST_F(MenusInTheWindow, AClickOnATitleSelectsItsMenu) {
    QTest::mouseClick(&Glass(), Qt::LeftButton, {}, TitleOf(1));
    EXPECT_EQ(Design().SelectedNames(), std::vector<lumenkit::Text>{u"mnuHelp"});
    EXPECT_EQ(window.Bench()->GetOutline().Tree().currentIndex().data().toString(),
              QStringLiteral("mnuHelp"));
    EXPECT_THAT(window.Bench()->Properties().Heading().toStdString(), HasSubstr("mnuHelp"));
    EXPECT_THAT(Glass().accessibleDescription().toStdString(), HasSubstr("mnuHelp"));
    QTest::keyClick(&Glass(), Qt::Key_Escape);
    EXPECT_TRUE(Design().IsFormSelected());
}

TEST_F(MenusInTheWindow, ADoubleClickOnATitleOpensTheDialogAtItsMenu) {
    QTest::mouseClick(&Glass(), Qt::LeftButton, {}, TitleOf(1));
    QTest::mouseDClick(&Glass(), Qt::LeftButton, {}, TitleOf(1));
    ASSERT_NE(Dialog(), nullptr);
    EXPECT_EQ(Dialog()->Tree().currentItem()->text(lumenform::MenuTree::Name),
              QStringLiteral("mnuHelp"));
}

TEST_F(MenusInTheWindow, DelDeletesTheMenuThatWasClicked) {
    const std::string before = Text();
    QTest::mouseClick(&Glass(), Qt::LeftButton, {}, TitleOf(0));
    QTest::keyClick(&Glass(), Qt::Key_Delete);
    EXPECT_EQ(lumenform::MenuBlocks(Design().Document().Root()).size(), 4U);
    EXPECT_THAT(Text(), Not(HasSubstr("mnuFile ")));
    Design().History().undo();
    EXPECT_EQ(Text(), before);
    EXPECT_EQ(Design().SelectedNames(), std::vector<lumenkit::Text>{u"mnuFile"});
}

TEST_F(MenusInTheWindow, APropertyPageHasNoMenus) {
    std::ofstream(File(QStringLiteral("page.pag")))
        << "VERSION 5.00\nBegin VB.PropertyPage Page1\n   ClientHeight = 2000\n"
           "   ClientWidth = 3000\nEnd\n";
    window.Load(Path(QStringLiteral("page.pag")));
    EXPECT_FALSE(Command(QStringLiteral("Menus…")).isEnabled());
}

TEST_F(MenusInTheWindow, TheFormIsNotResizedWhileAMenuIsSelected) {
    QTest::mouseClick(&Glass(), Qt::LeftButton, {}, TitleOf(0));
    QTest::keyClick(&Glass(), Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(Design().History().count(), 0);
}

}  // namespace
}  // namespace lumenkit::testing
