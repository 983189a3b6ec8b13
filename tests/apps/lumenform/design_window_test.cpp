// The designer's window: start screen, files, questions, running, menus.
#include "apps/lumenform/design/window/design_window.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QCommandLinkButton>
#include <QHelpEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <fstream>
#include <functional>
#include <set>
#include <utility>

#include <gmock/gmock.h>

#include "apps/lumenform/design/model/arrange.h"
#include "apps/lumenform/design/model/clipboard.h"
#include "project/lumenkit_classes.h"
#include "runtime/qt/element.h"
#include "tests/apps/lumenform/answer.h"
#include "tests/apps/lumenform/grabbed.h"
#include "tests/apps/lumenform/loaded_view.h"
#include "tests/apps/lumenform/opened_window.h"
#include "tests/support/file_bytes.h"
#include "tests/support/qt_keys.h"
#include "tests/support/qt_windows.h"

namespace lumenkit::testing {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

class DesignWindowTest : public OpenedWindow {};

TEST_F(DesignWindowTest, BeginsWithWhatCanBeDone) {
    EXPECT_TRUE(window.Start().isVisible());
    EXPECT_EQ(window.Bench(), nullptr);
    EXPECT_EQ(window.windowTitle(), QStringLiteral("lumenform"));
    EXPECT_FALSE(Command(QStringLiteral("Save")).isEnabled());
    EXPECT_FALSE(Command(QStringLiteral("Run the form")).isEnabled());
    EXPECT_FALSE(Command(QStringLiteral("Select all")).isEnabled());
    const auto choices = window.Start().findChildren<QCommandLinkButton*>();
    ASSERT_EQ(choices.size(), 2);
    QTest::mouseClick(choices.back(), Qt::LeftButton);
    ASSERT_NE(window.Bench(), nullptr);
    EXPECT_EQ(window.windowTitle(), QStringLiteral("Form1.frm[*] – lumenform"));
    EXPECT_FALSE(window.isWindowModified());
    EXPECT_TRUE(window.Bench()->isVisible());
}

TEST_F(DesignWindowTest, DrawsAControlOfTheToolbox) {
    window.StartNew();
    QListWidget& toolbox = window.Bench()->GetToolbox().List();
    EXPECT_EQ(toolbox.item(0)->text(), QStringLiteral("VLabel"));
    const QRect first = toolbox.visualItemRect(toolbox.item(0));
    QTest::mouseClick(toolbox.viewport(), Qt::LeftButton, {}, first.center());
    EXPECT_TRUE(window.Bench()->GetCanvas().IsDrawing());
    lumenform::Glass& glass = window.Bench()->GetCanvas().GetGlass();
    const QPoint origin = glass.mapFromGlobal(Design().View().Client().mapToGlobal(QPoint()));
    QTest::mousePress(&glass, Qt::LeftButton, {}, origin + QPoint(16, 16));
    QTest::mouseMove(&glass, origin + QPoint(100, 60));
    QTest::mouseMove(&glass, origin + QPoint(160, 80));
    QTest::mouseRelease(&glass, Qt::LeftButton, {}, origin + QPoint(160, 80));
    ASSERT_NE(Design().View().Find(u"VLabel1"), nullptr);
    EXPECT_EQ(Design().View().Find(u"VLabel1")->Place(),
              (host::Placement{.left = 240, .top = 240, .width = 2160, .height = 960}));
    EXPECT_TRUE(window.isWindowModified());
    EXPECT_TRUE(window.Commands().CaptionAction().isEnabled());
    EXPECT_TRUE(toolbox.selectedItems().isEmpty());
}

TEST_F(DesignWindowTest, PutsAControlIntoTheMiddle) {
    window.StartNew();
    QListWidget& toolbox = window.Bench()->GetToolbox().List();
    toolbox.setFocus();
    toolbox.setCurrentRow(1);
    QTest::keyClick(&toolbox, Qt::Key_Return);
    ASSERT_NE(Design().View().Find(u"VMemo1"), nullptr);
    const host::Placement place = Design().View().Find(u"VMemo1")->Place();
    EXPECT_NEAR(place.left + place.width / 2, 2400, 120);
    EXPECT_NEAR(place.top + place.height / 2, 1800, 120);
    EXPECT_FALSE(window.Bench()->GetCanvas().IsDrawing());
}

TEST_F(DesignWindowTest, TheOutlineIsHiddenUntilItIsWantedAgain) {
    window.StartNew();
    EXPECT_TRUE(window.Bench()->GetOutline().isVisible());
    Command(QStringLiteral("Outline")).trigger();
    EXPECT_FALSE(window.Bench()->GetOutline().isVisible());
    window.Load(Copy("all_three"));
    EXPECT_FALSE(window.Bench()->GetOutline().isVisible());
    EXPECT_EQ(settings.value(QStringLiteral("outline/shown")), false);
    Command(QStringLiteral("Outline")).trigger();
    EXPECT_TRUE(window.Bench()->GetOutline().isVisible());
    EXPECT_EQ(window.Bench()->GetOutline().Tree().model()->rowCount(), 1);
}

TEST_F(DesignWindowTest, TheOutlineLeadsToTheProperties) {
    window.Load(Copy("all_three"));
    lumenform::OutlineTree& tree = window.Bench()->GetOutline().Tree();
    tree.setFocus();
    QTest::keyClick(&tree, Qt::Key_Down);
    EXPECT_EQ(Design().Selected().size(), 1U);
    QTest::keyClick(&tree, Qt::Key_Return);
    EXPECT_TRUE(window.Bench()->Properties().Table().hasFocus());
}

// Writes a form of 300 by 2000 pixels with a text box near its upper edge and one below it.
void WriteTallForm(const fs::path& path) {
    std::ofstream(path) << "VERSION 5.00\nBegin VB.Form Tall\n   ClientHeight = 30000\n"
                           "   ClientWidth = 4500\n   Begin VB.TextBox A\n      Height = 300\n"
                           "      Left = 150\n      Top = 150\n      Width = 900\n   End\n"
                           "   Begin VB.TextBox Lost\n      Height = 300\n      Left = 150\n"
                           "      Top = 31000\n      Width = 900\n   End\nEnd\n";
}

QRectF RectOfPlace(const host::Placement& place) {
    return {place.left, place.top, place.width, place.height};
}

TEST_F(DesignWindowTest, APasteLandsInThePartOfTheFormThatIsSeen) {
    WriteTallForm(File(QStringLiteral("tall.frm")));
    window.Load(Path(QStringLiteral("tall.frm")));
    Select(u"A");
    Command(QStringLiteral("Copy")).trigger();
    QScrollBar& scroll = *window.Bench()->GetCanvas().verticalScrollBar();
    scroll.setValue(scroll.maximum());
    QRectF seen = window.Bench()->GetCanvas().GetGlass().SeenPart();
    ASSERT_GT(seen.top(), 1000);
    ASSERT_EQ(seen.bottom(), 30000);
    for (int copies = 1; copies <= 3; ++copies) {
        Command(QStringLiteral("Paste")).trigger();
        ASSERT_EQ(Design().Selected().size(), 1U);
        EXPECT_EQ(Design().View().Controls().size(), static_cast<std::size_t>(copies) + 2);
        const host::Placement place = Design().Selected().front()->Place();
        EXPECT_TRUE(seen.contains(RectOfPlace(place)));
        EXPECT_EQ(place.left, 150 + (copies - 1) * 120) << "aside of the copy before";
        seen = window.Bench()->GetCanvas().GetGlass().SeenPart();
        EXPECT_TRUE(seen.contains(RectOfPlace(place)));
    }
}

TEST_F(DesignWindowTest, BringsBackWhatIsOutOfView) {
    WriteTallForm(File(QStringLiteral("tall.frm")));
    window.Load(Path(QStringLiteral("tall.frm")));
    QAction& command = Command(QStringLiteral("Bring into view"));
    EXPECT_TRUE(command.isEnabled());
    command.trigger();
    ASSERT_EQ(Design().Selected().size(), 1U);
    EXPECT_EQ(Design().Selected().front()->Place().top, 30000 - 300);
    EXPECT_TRUE(window.Bench()->GetCanvas().GetGlass().SeenPart().contains(
        RectOfPlace(Design().Selected().front()->Place())));
    Design().Select({});
    EXPECT_FALSE(command.isEnabled());
}

TEST_F(DesignWindowTest, ControlsOfTheToolboxDoNotCoverEachOther) {
    window.StartNew();
    QListWidget& toolbox = window.Bench()->GetToolbox().List();
    const auto add = [&] {
        toolbox.setFocus();
        toolbox.setCurrentRow(1);
        QTest::keyClick(&toolbox, Qt::Key_Return);
    };
    for (int count = 0; count < 4; ++count) {
        add();
    }
    const auto place = [&](TextView name) { return Design().View().Find(name)->Place(); };
    const float step = window.Bench()->GetCanvas().GetGrid().step;
    for (const auto& [former, next] :
         {std::pair(u"VMemo1", u"VMemo2"), {u"VMemo2", u"VMemo3"}, {u"VMemo3", u"VMemo4"}}) {
        EXPECT_EQ(place(next).left, place(former).left + step);
        EXPECT_EQ(place(next).top, place(former).top + step);
    }
    const QSizeF room = Design().View().Inside().room;
    std::set<std::pair<float, float>> corners;
    for (int count = 0; count < 30; ++count) {
        add();
    }
    for (const auto& control : Design().View().Controls()) {
        const host::Placement at = control->Place();
        corners.emplace(at.left, at.top);
        EXPECT_LE(at.left + at.width, room.width());
        EXPECT_LE(at.top + at.height, room.height());
    }
    EXPECT_GE(corners.size(), 15U) << "until the form is full";
}

TEST_F(DesignWindowTest, SavesAndOpensAgain) {
    const QString path = Copy("memo");
    const std::string before = FileBytes(File(QStringLiteral("memo.frm")));
    window.Load(path);
    EXPECT_EQ(window.windowTitle(), QStringLiteral("memo.frm[*] – lumenform"));
    Select(u"VMemo1");
    Nudge();
    EXPECT_TRUE(window.isWindowModified());
    EXPECT_TRUE(window.Save());
    EXPECT_FALSE(window.isWindowModified());
    const std::string saved = FileBytes(File(QStringLiteral("memo.frm")));
    EXPECT_EQ(saved, Text());
    EXPECT_NE(saved, before);
    Command(QStringLiteral("Close the form")).trigger();
    EXPECT_TRUE(window.Start().isVisible());
    window.Load(path);
    EXPECT_EQ(Text(), saved);
    Design().History().undo();
    EXPECT_FALSE(window.isWindowModified());
}

TEST_F(DesignWindowTest, UndoingWhatWasSavedIsAChange) {
    window.Load(Copy("label"));
    Select(u"VLabel1");
    Nudge();
    ASSERT_TRUE(window.Save());
    window.Commands().UndoAction().trigger();
    EXPECT_TRUE(window.isWindowModified());
    window.Commands().RedoAction().trigger();
    EXPECT_FALSE(window.isWindowModified());
}

TEST_F(DesignWindowTest, SavingUnderAnotherNameLeavesTheFirstAlone) {
    window.Load(Copy("memo"));
    const std::string form = FileBytes(File(QStringLiteral("memo.frm")));
    const std::string companion = FileBytes(File(QStringLiteral("memo.frx")));
    Select(u"VMemo1");
    Design().Edit(QStringLiteral("Text"), [&] {
        Design().View().Find(u"VMemo1")->Hosted()->Automation().Let(u"Text",
                                                                    lumenkit::Text(u"new\r\ntext"));
    });
    ASSERT_TRUE(window.SaveTo(Path(QStringLiteral("other.frm"))));
    EXPECT_EQ(FileBytes(File(QStringLiteral("memo.frm"))), form);
    EXPECT_EQ(FileBytes(File(QStringLiteral("memo.frx"))), companion);
    EXPECT_THAT(FileBytes(File(QStringLiteral("other.frm"))), HasSubstr("$\"other.frx\""));
    EXPECT_EQ(window.windowTitle(), QStringLiteral("other.frm[*] – lumenform"));
    Command(QStringLiteral("Close the form")).trigger();
    window.Load(Path(QStringLiteral("other.frm")));
    EXPECT_EQ(std::get<lumenkit::Text>(
                  Design().View().Find(u"VMemo1")->Hosted()->Automation().Get(u"Text")),
              u"new\r\ntext");
}

TEST_F(DesignWindowTest, SavingUnderAnotherNameReplacesNoCompanionOfOthers) {
    window.Load(Copy("memo"));
    std::ofstream(File(QStringLiteral("other.frx"))) << "somebody else's";
    const std::string text = Text();
    Answer answer(QStringLiteral("Close"));
    EXPECT_FALSE(window.SaveTo(Path(QStringLiteral("other.frm")), forms::Replacing::Confirmed));
    EXPECT_THAT(answer.said, HasSubstr("other.frx"));
    EXPECT_THAT(answer.said, HasSubstr("it is not replaced"));
    EXPECT_EQ(FileBytes(File(QStringLiteral("other.frx"))), "somebody else's");
    EXPECT_FALSE(fs::exists(File(QStringLiteral("other.frm"))));
    EXPECT_EQ(Text(), text);
    EXPECT_EQ(window.windowTitle(), QStringLiteral("memo.frm[*] – lumenform"));
}

TEST_F(DesignWindowTest, AFailedSaveKeepsTheNameOfTheCompanion) {
    fs::copy_file(sampleForms / "memo.frm", File(QStringLiteral("copy.frm")));
    fs::copy_file(sampleForms / "memo.frx", File(QStringLiteral("memo.frx")));
    window.Load(Path(QStringLiteral("copy.frm")));
    const std::string text = Text();
    const Answer answer(QStringLiteral("Close"));
    EXPECT_FALSE(window.SaveTo(Path(QStringLiteral("no/such/folder/x.frm"))));
    EXPECT_EQ(Text(), text);
    EXPECT_TRUE(window.Save());
    EXPECT_FALSE(fs::exists(File(QStringLiteral("copy.frx"))));
}

TEST_F(DesignWindowTest, AConfirmedSaveReplacesAFormWithItsCompanion) {
    Copy("memo");
    window.Load(Copy("label"));
    const std::string companion = FileBytes(File(QStringLiteral("memo.frx")));
    EXPECT_TRUE(window.SaveTo(Path(QStringLiteral("memo.frm")), forms::Replacing::Confirmed));
    EXPECT_EQ(FileBytes(File(QStringLiteral("memo.frm"))), Text());
    window.Load(Path(QStringLiteral("memo.frm")));
    Command(QStringLiteral("Close the form")).trigger();
    Copy("memo");
    window.Load(Copy("options"));
    Select(u"VOptList1");
    Design().Edit(QStringLiteral("Contents"), [&] {
        Design()
            .View()
            .Find(u"VOptList1")
            ->Hosted()
            ->Automation()
            .Let(u"Contents", lumenkit::Text(200, u'x'));
    });
    ASSERT_TRUE(window.SaveTo(Path(QStringLiteral("memo.frm")), forms::Replacing::Confirmed));
    EXPECT_THAT(Text(), HasSubstr("\"memo.frx\""));
    EXPECT_NE(FileBytes(File(QStringLiteral("memo.frx"))), companion);
    EXPECT_EQ(FileBytes(File(QStringLiteral("memo.frm"))), Text());
}

TEST_F(DesignWindowTest, AReadOnlyFormIsNotReplaced) {
    window.Load(Copy("label"));
    Select(u"VLabel1");
    Nudge();
    const std::string before = FileBytes(File(QStringLiteral("label.frm")));
    fs::permissions(File(QStringLiteral("label.frm")), fs::perms::owner_read);
    Answer answer(QStringLiteral("Close"));
    EXPECT_FALSE(window.Save());
    EXPECT_THAT(answer.said, HasSubstr("label.frm: is read-only"));
    EXPECT_EQ(FileBytes(File(QStringLiteral("label.frm"))), before);
    EXPECT_TRUE(window.isWindowModified());
    EXPECT_TRUE(window.SaveTo(Path(QStringLiteral("other.frm"))));
}

TEST_F(DesignWindowTest, AFailedSaveSaysSoAndLosesNothing) {
    window.Load(Copy("label"));
    Select(u"VLabel1");
    Nudge();
    const std::string text = Text();
    Answer answer(QStringLiteral("Close"));
    EXPECT_FALSE(window.SaveTo(Path(QStringLiteral("no/such/folder/x.frm"))));
    EXPECT_THAT(answer.said, HasSubstr("not saved"));
    EXPECT_THAT(answer.said, HasSubstr("no/such/folder/x.frm"));
    EXPECT_TRUE(window.isWindowModified());
    EXPECT_EQ(Text(), text);
    EXPECT_EQ(window.windowTitle(), QStringLiteral("label.frm[*] – lumenform"));
    EXPECT_TRUE(window.Save());
    EXPECT_EQ(FileBytes(File(QStringLiteral("label.frm"))), text);
}

TEST_F(DesignWindowTest, ABadFileIsToldWithItsLineAndChangesNothing) {
    window.Load(Copy("label"));
    const std::string text = Text();
    std::ofstream(File(QStringLiteral("bad.frm"))) << "VERSION 5.00\nBegin VB.Form f\n";
    lumenform::RecentFiles(settings).Add(Path(QStringLiteral("bad.frm")));
    Answer answer(QStringLiteral("OK"));
    Q_EMIT window.Start().Recent().OpenWanted(Path(QStringLiteral("bad.frm")));
    EXPECT_THAT(answer.said, HasSubstr("bad.frm cannot be opened."));
    EXPECT_THAT(answer.said, HasSubstr("bad.frm:3:1: expected End of f"));
    EXPECT_EQ(Text(), text);
}

TEST_F(DesignWindowTest, TheStatusLineShowsTheFirstOddValue) {
    const std::string odd =
        "VERSION 5.00\nBegin VB.Form f\n   X\n   Begin VB.Label L\n      Left = 1,5\n"
        "      Text = $\"odd.frx\":0000\n   End\nEnd\n";
    std::ofstream(File(QStringLiteral("odd.frm"))) << odd;
    window.Load(Path(QStringLiteral("odd.frm")));
    EXPECT_EQ(window.statusBar()->currentMessage(),
              QStringLiteral("odd.frm:3:5: expected '=', found the end of the line (and 2 more; "
                             "\"lumenkit check\" lists them)"));
    Select(u"L");
    Nudge();
    TypeInto(u"Caption", "new\r");
    const std::string changed = Text();
    EXPECT_THAT(changed, HasSubstr("   X\n"));
    EXPECT_THAT(changed, HasSubstr("$\"odd.frx\":0000\n"));
    EXPECT_TRUE(window.Save());
    EXPECT_EQ(FileBytes(File(QStringLiteral("odd.frm"))), changed);
    EXPECT_FALSE(fs::exists(File(QStringLiteral("odd.frx"))));
    Design().History().undo();
    Design().History().undo();
    EXPECT_EQ(Text(), odd);
}

TEST_F(DesignWindowTest, AsksBeforeChangesAreLost) {
    const QString path = Copy("label");
    window.Load(path);
    const std::string before = FileBytes(File(QStringLiteral("label.frm")));
    EXPECT_TRUE(window.MayLeave());
    Select(u"VLabel1");
    Nudge();
    {
        Answer answer(QStringLiteral("Cancel"));
        EXPECT_FALSE(window.close());
        EXPECT_THAT(answer.said, HasSubstr("Save the changes to label.frm?"));
    }
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(FileBytes(File(QStringLiteral("label.frm"))), before);
    {
        const Answer answer(QStringLiteral("Save"));
        EXPECT_TRUE(window.MayLeave());
    }
    EXPECT_EQ(FileBytes(File(QStringLiteral("label.frm"))), Text());
    const std::string saved = Text();
    Nudge();
    {
        const Answer answer(QStringLiteral("Discard"));
        EXPECT_TRUE(window.close());
    }
    EXPECT_EQ(FileBytes(File(QStringLiteral("label.frm"))), saved);
}

TEST_F(DesignWindowTest, AsksBeforeItReplacesWhatOthersWrote) {
    window.Load(Copy("label"));
    Select(u"VLabel1");
    Nudge();
    std::ofstream(File(QStringLiteral("label.frm")), std::ios::app) << "' by others\r\n";
    const std::string theirs = FileBytes(File(QStringLiteral("label.frm")));
    {
        Answer answer(QStringLiteral("Cancel"));
        EXPECT_FALSE(window.Save());
        EXPECT_THAT(answer.said, HasSubstr("Another program has changed"));
    }
    EXPECT_EQ(FileBytes(File(QStringLiteral("label.frm"))), theirs);
    {
        const Answer answer(QStringLiteral("Keep mine"));
        EXPECT_TRUE(window.Save());
    }
    EXPECT_EQ(FileBytes(File(QStringLiteral("label.frm"))), Text());
    EXPECT_TRUE(window.Save());
}

TEST_F(DesignWindowTest, RunsACopyAndComesBackToTheSame) {
    window.Load(Copy("order"));
    Select(u"memPrint");
    Nudge();
    const std::string text = Text();
    QTest::keyClick(&window, Qt::Key_F5);
    ASSERT_NE(window.Running(), nullptr);
    EXPECT_THAT(window.windowTitle().toStdString(), HasSubstr("(running)"));
    EXPECT_FALSE(Command(QStringLiteral("Save")).isEnabled());
    EXPECT_FALSE(Command(QStringLiteral("Delete")).isEnabled());
    lumenform::LiveControl& memo = *window.Running()->View().Find(u"memPrint");
    TypeKeys(*memo.Hosted()->Parts().Find(u"Text1", 0)->Widget(), u"x");
    EXPECT_GE(window.Running()->Log().topLevelItemCount(), 1);
    // The desk around the form is dark; the controls on the form are not.
    EXPECT_EQ(window.Running()->View().Find(u"lblPrint")->Widget().backgroundRole(),
              QPalette::Window);
    QTest::keyClick(&window, Qt::Key_F5);
    EXPECT_EQ(window.Running(), nullptr);
    EXPECT_EQ(Text(), text);
    EXPECT_EQ(Design().SelectedNames(), std::vector{lumenkit::Text(u"memPrint")});
    EXPECT_TRUE(window.isWindowModified());
    window.Commands().UndoAction().trigger();
    EXPECT_FALSE(window.isWindowModified());
}

TEST_F(DesignWindowTest, CommandsAreThereWhenTheyMakeSense) {
    window.Load(Copy("all_three"));
    QAction& lefts = Command(QStringLiteral("Lefts"));
    QAction& copy = Command(QStringLiteral("Copy"));
    EXPECT_FALSE(copy.isEnabled());
    EXPECT_FALSE(window.Commands().CaptionAction().isEnabled());
    Select(u"VMemo1");
    EXPECT_TRUE(copy.isEnabled());
    EXPECT_FALSE(lefts.isEnabled());
    EXPECT_FALSE(window.Commands().CaptionAction().isEnabled());
    Select(u"VLabel1");
    EXPECT_TRUE(window.Commands().CaptionAction().isEnabled());
    Command(QStringLiteral("Select all")).trigger();
    EXPECT_EQ(Design().Selected().size(), 5U);
    EXPECT_TRUE(lefts.isEnabled());
}

TEST_F(DesignWindowTest, CutsAndPastes) {
    window.Load(Copy("all_three"));
    const std::string before = Text();
    QApplication::clipboard()->setText(QStringLiteral("no controls"));
    EXPECT_FALSE(Command(QStringLiteral("Paste")).isEnabled());
    Select(u"VMemo1");
    Command(QStringLiteral("Cut")).trigger();
    EXPECT_EQ(Design().View().Find(u"VMemo1"), nullptr);
    EXPECT_TRUE(Command(QStringLiteral("Paste")).isEnabled());
    Command(QStringLiteral("Paste")).trigger();
    ASSERT_NE(Design().View().Find(u"VMemo1"), nullptr);
    EXPECT_EQ(Design().View().Find(u"VMemo1")->Place().left, 2400);
    window.Commands().UndoAction().trigger();
    window.Commands().UndoAction().trigger();
    EXPECT_EQ(Text(), before);
}

TEST_F(DesignWindowTest, SavingTakesWhatIsBeingTyped) {
    window.Load(Copy("order"));
    TypeInto(u"Caption", "typed");
    Command(QStringLiteral("Save")).trigger();
    EXPECT_THAT(FileBytes(File(QStringLiteral("order.frm"))), HasSubstr("\"typed\""));
    EXPECT_FALSE(window.isWindowModified());
}

TEST_F(DesignWindowTest, NothingIsSavedWhileWhatIsTypedIsRefused) {
    window.Load(Copy("order"));
    const std::string before = FileBytes(File(QStringLiteral("order.frm")));
    Select(u"txtName");
    Nudge();
    TypeInto(u"Height", "tall");
    Command(QStringLiteral("Save")).trigger();
    EXPECT_EQ(FileBytes(File(QStringLiteral("order.frm"))), before);
    EXPECT_THAT(window.Bench()->Properties().Message().toStdString(), HasSubstr("Height"));
    Command(QStringLiteral("Save")).trigger();
    EXPECT_NE(FileBytes(File(QStringLiteral("order.frm"))), before) << "the line was left";
}

TEST_F(DesignWindowTest, LeavingAsksForWhatIsBeingTyped) {
    window.Load(Copy("order"));
    TypeInto(u"Caption", "typed");
    const Answer answer(QStringLiteral("Cancel"));
    EXPECT_FALSE(window.close());
    EXPECT_THAT(answer.said, HasSubstr("order.frm"));
}

TEST_F(DesignWindowTest, RunningAndUndoTakeWhatIsBeingTyped) {
    window.Load(Copy("order"));
    const std::string before = Text();
    TypeInto(u"Caption", "typed");
    Command(QStringLiteral("Run the form")).trigger();
    EXPECT_THAT(Text(), HasSubstr("\"typed\""));
    Command(QStringLiteral("Run the form")).trigger();
    TypeInto(u"Caption", "other");
    window.Commands().UndoAction().trigger();
    EXPECT_THAT(Text(), HasSubstr("\"typed\""));
    window.Commands().UndoAction().trigger();
    EXPECT_EQ(Text(), before);
}

TEST_F(DesignWindowTest, DeleteInThePropertyListIsForTheValue) {
    window.Load(Copy("order"));
    Select(u"txtName");
    lumenform::PropertyTable& table = window.Bench()->Properties().Table();
    table.setFocus();
    QTest::keyClick(&table, Qt::Key_Delete);
    EXPECT_NE(Design().View().Find(u"txtName"), nullptr);
}

TEST_F(DesignWindowTest, WhatIsRefusedStandsBelow) {
    window.StartNew();
    QString refused;
    QObject::connect(window.Bench(), &lumenform::Workbench::Refused,
                     [&](const QString& why) { refused = why; });
    auto data = std::make_unique<QMimeData>();
    data->setData(QLatin1String(lumenform::controlsFormat), "nonsense");
    QApplication::clipboard()->setMimeData(data.release());
    const std::string before = Text();
    Command(QStringLiteral("Paste")).trigger();
    EXPECT_THAT(refused.toStdString(), HasSubstr("expected controls"));
    EXPECT_EQ(Text(), before);
}

TEST_F(DesignWindowTest, ReasonOutlivesAClickOnAnotherControl) {
    window.Load(Copy("order"));
    Select(u"txtName");
    const std::string before = Text();
    TypeInto(u"Left", "wide");
    window.Bench()->GetCanvas().GetGlass().setFocus(Qt::MouseFocusReason);
    Select(u"memPrint");
    EXPECT_EQ(window.Bench()->Properties().Message(), QString());
    EXPECT_EQ(window.statusBar()->currentMessage(), QStringLiteral("Left: Type mismatch"));
    EXPECT_EQ(Text(), before);
}

TEST_F(DesignWindowTest, AReasonGoesWithTheNextActionAndTheNextTab) {
    window.Load(Copy("memo"));
    window.Load(Copy("order"));
    const auto refuse = [&] {
        Select(u"txtName");
        TypeInto(u"Left", "wide");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        ASSERT_EQ(window.statusBar()->currentMessage(), QStringLiteral("Left: Type mismatch"));
    };
    refuse();
    TypeInto(u"Left", "300\r");
    EXPECT_EQ(window.statusBar()->currentMessage(), QString()) << "the value is corrected";
    refuse();
    Nudge();
    EXPECT_EQ(window.statusBar()->currentMessage(), QString()) << "another action is done";
    refuse();
    window.Tabs().setCurrentIndex(0);
    EXPECT_EQ(window.statusBar()->currentMessage(), QString()) << "it is about another form";
}

TEST_F(DesignWindowTest, ALongMessageEndsBeforeThePlaceOfTheSelection) {
    window.Load(Copy("order"));
    Select(u"txtName");
    QStatusBar& bar = *window.statusBar();
    const auto parts = bar.findChildren<QLabel*>();
    const auto selection = std::ranges::find_if(
        parts, [](const QLabel* part) { return part->text().contains(QStringLiteral("txtName")); });
    ASSERT_NE(selection, parts.end());
    const QRect place = (*selection)->geometry();
    const Grabbed before(bar);
    bar.showMessage(QString(400, u'x'));
    const QRect changed = Grabbed(bar).DifferenceFrom(before);
    EXPECT_GT(changed.width(), 100);
    EXPECT_LT(changed.right(), place.left());
    QHelpEvent help(QEvent::ToolTip, QPoint(20, 5), bar.mapToGlobal(QPoint(20, 5)));
    QApplication::sendEvent(&bar, &help);
    EXPECT_EQ(bar.toolTip(), bar.currentMessage());
    bar.showMessage(QStringLiteral("short"));
    QApplication::sendEvent(&bar, &help);
    EXPECT_EQ(bar.toolTip(), QString());
}

TEST_F(DesignWindowTest, TheStatusLineShowsTheCodePageAndTheMenuChangesIt) {
    const auto shown = [&] {
        return window.findChild<QToolButton*>(QStringLiteral("codePage"))->text().toStdString();
    };
    const auto caption = [&] {
        return Design().Document().TextOf(*Design().Document().Root().FindProperty(u"Caption"));
    };
    EXPECT_EQ(shown(), "");
    window.Load(Copy("chinese"));
    EXPECT_EQ(shown(), "Code page 936");
    EXPECT_EQ(caption(), u"订单");
    EXPECT_EQ(window.statusBar()->currentMessage(),
              QStringLiteral("chinese.frm:3:18: read as Chinese, simplified (GBK), code page 936, "
                             "because its fonts have this character set; File > Read in code page "
                             "changes this"));
    QAction& korean = Command(QStringLiteral("949  Korean (UHC)"));
    EXPECT_FALSE(korean.isChecked());
    EXPECT_TRUE(Command(QStringLiteral("936  Chinese, simplified (GBK)")).isChecked());
    korean.trigger();
    EXPECT_EQ(shown(), "Code page 949");
    EXPECT_TRUE(korean.isChecked());
    EXPECT_NE(caption(), u"订单");
    EXPECT_EQ(window.statusBar()->currentMessage(), QString());
    EXPECT_EQ(Text(), FileBytes(sampleForms / "chinese.frm"));
    // Changes are not lost without a question.
    Select(u"VLabel1");
    Nudge();
    const Answer answer(QStringLiteral("Cancel"));
    Command(QStringLiteral("936  Chinese, simplified (GBK)")).trigger();
    EXPECT_EQ(shown(), "Code page 949");
    EXPECT_TRUE(korean.isChecked());
    Design().History().undo();
    window.Load(Copy("utf8"));
    EXPECT_EQ(shown(), "UTF-8");
}

TEST_F(DesignWindowTest, ANameThatDiffersInCaseOnlyIsRefused) {
    window.Load(Copy("all_three"));
    const std::string before = Text();
    Select(u"VMemo1");
    TypeInto(u"(Name)", "vlabel1");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(Text(), before);
    EXPECT_THAT(window.Bench()->Properties().Message().toStdString(),
                HasSubstr("\"VLabel1\" is already a control of another class"));
}

TEST_F(DesignWindowTest, RemembersFormsAndTheGrid) {
    const QString path = Copy("label");
    window.Load(path);
    window.Load(Copy("options"));
    lumenform::RecentFiles recent(settings);
    EXPECT_EQ(recent.Existing(), (QStringList{Path(QStringLiteral("options.frm")), path}));
    fs::remove(File(QStringLiteral("options.frm")));
    EXPECT_EQ(recent.Existing(), QStringList{path});
    Command(QStringLiteral("60 twips")).trigger();
    Command(QStringLiteral("Snap to the grid")).trigger();
    EXPECT_EQ(window.Bench()->GetCanvas().GetGrid(),
              (lumenform::Grid{.step = 60, .isShown = true, .snaps = false}));
    const lumenform::DesignWindow next({.classes = lumenkitClasses,
                                        .application = surface.application,
                                        .interaction = surface.interaction,
                                        .settings = settings});
    EXPECT_EQ(lumenform::ViewMenu(settings).GetGrid().step, 60);
    EXPECT_FALSE(lumenform::ViewMenu(settings).GetGrid().snaps);
}

TEST_F(DesignWindowTest, ADoubleClickOpensTheCaptionPage) {
    window.Load(Copy("label"));
    Select(u"VLabel1");
    bool wasThere = false;
    QTimer::singleShot(0, [&] {
        if (QWidget* dialog = QApplication::activeModalWidget()) {
            wasThere = true;
            dialog->close();
        }
    });
    lumenform::Glass& glass = window.Bench()->GetCanvas().GetGlass();
    const QWidget& label = Design().View().Find(u"VLabel1")->Widget();
    const QPoint middle = label.mapTo(&window, label.rect().center());
    QTest::mouseDClick(&glass, Qt::LeftButton, {}, glass.mapFrom(&window, middle));
    QTRY_VERIFY(wasThere);
}

}  // namespace
}  // namespace lumenkit::testing
