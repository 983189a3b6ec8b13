// Controls that are not of this library, as plain widgets.
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

#include <gmock/gmock.h>

#include "apps/lumenform/form_view/companion_records.h"
#include "apps/lumenform/form_view/labelled_box.h"
#include "apps/lumenform/form_view/menu_bar.h"
#include "forms/file.h"
#include "tests/apps/lumenform/loaded_view.h"

namespace lumenkit::testing {
namespace {

using namespace std::string_literals;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

TEST(PlainControl, ShowsWhatTheFormSays) {
    const LoadedView view(FormWith(
        "   Begin VB.TextBox T\n Text = \"abc\"\n MaxLength = 4\n Locked = -1 'True\n End\n"
        "   Begin vb.checkbox C\n Caption = \"On\"\n Value = 1\n End\n"
        "   Begin VB.HScrollBar H\n Min = 10\n Max = -10\n Value = 3\n End\n"
        "   Begin VB.TextBox M\n MultiLine = -1 'True\n ScrollBars = 2\n End\n"
        "   Begin VB.ComboBox L\n Style = 2\n End\n"
        "   Begin Other.Thing X\n Width = 900\n End\n"));
    EXPECT_EQ(As<QLineEdit>(view, u"T").text(), "abc");
    EXPECT_EQ(As<QLineEdit>(view, u"T").maxLength(), 4);
    EXPECT_TRUE(As<QLineEdit>(view, u"T").isReadOnly());
    EXPECT_TRUE(As<QCheckBox>(view, u"C").isChecked());
    EXPECT_EQ(As<QScrollBar>(view, u"H").minimum(), -10);
    EXPECT_EQ(As<QScrollBar>(view, u"H").value(), 3);
    EXPECT_EQ(As<QPlainTextEdit>(view, u"M").verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
    EXPECT_FALSE(As<QComboBox>(view, u"L").isEditable());
    EXPECT_EQ(As<lumenform::LabelledBox>(view, u"X").accessibleName(), "X Other.Thing");
}

TEST(PlainControl, ShowsTheItemsOfLists) {
    const LoadedView view(forms::Load(sampleForms / "lists.frm"));
    const auto& list = As<QListWidget>(view, u"lstColors");
    ASSERT_EQ(list.count(), 3);
    EXPECT_EQ(list.item(0)->text(), "red");
    EXPECT_EQ(list.item(2)->text(), "blue");
    EXPECT_EQ(As<QComboBox>(view, u"cboEmpty").currentText(), "Combo1");
    EXPECT_EQ(As<QComboBox>(view, u"cboEmpty").count(), 0);
}

TEST(PlainControl, TellsWhatThePersonDoes) {
    const LoadedView view(
        FormWith("   Begin VB.CommandButton B\n End\n"
                 "   Begin VB.TextBox T\n Left = 2000\n End\n"));
    QTest::mouseClick(&view.Control(u"B").Widget(), Qt::LeftButton);
    QTest::keyClick(&view.Control(u"T").Widget(), Qt::Key_A);
    EXPECT_THAT(view.raised, ElementsAre("B.Click", "T.Change"));
}

TEST(PlainControl, AnInputMethodThatCommitsNothingChangesNothing) {
    const LoadedView view(FormWith("   Begin VB.TextBox M\n MultiLine = -1 'True\n End\n"));
    QWidget& box = view.Control(u"M").Widget();
    box.setFocus();
    QInputMethodEvent composing(QStringLiteral("a"), {});
    QInputMethodEvent dropping;
    QApplication::sendEvent(&box, &composing);
    QApplication::sendEvent(&box, &dropping);
    EXPECT_THAT(view.raised, IsEmpty());
    QInputMethodEvent committing;
    committing.setCommitString(QStringLiteral("a"));
    QApplication::sendEvent(&box, &committing);
    EXPECT_THAT(view.raised, ElementsAre("M.Change"));
}

TEST(PlainControl, TextThatABoxHasNoRoomForStaysWhereItComesFrom) {
    const LoadedView view(
        FormWith("   Begin VB.TextBox T\n MaxLength = 6\n Text = \"abcd\"\n End\n"));
    auto& box = As<QLineEdit>(view, u"T");
    QMimeData data;
    const auto drop = [&](const char* text) {
        data.setText(QString::fromLatin1(text));
        const Qt::DropActions both = Qt::CopyAction | Qt::MoveAction;
        QDragEnterEvent entering({1, 1}, both, &data, Qt::LeftButton, Qt::ShiftModifier);
        QApplication::sendEvent(&box, &entering);
        EXPECT_EQ(entering.dropAction(), Qt::CopyAction) << "another program";
        QDropEvent event({1, 1}, both, &data, Qt::LeftButton, Qt::ShiftModifier);
        QApplication::sendEvent(&box, &event);
        return event.dropAction();
    };
    EXPECT_EQ(drop("x"), Qt::MoveAction);
    EXPECT_EQ(drop("yz"), Qt::CopyAction) << "a part of it";
    EXPECT_EQ(drop("yz"), Qt::CopyAction) << "nothing of it";
    EXPECT_EQ(box.text().size(), 6);
    EXPECT_EQ(box.maxLength(), 6);
}

TEST(PlainControl, EnterAndEscPressTheirButtonsFromAfar) {
    LoadedView view(
        FormWith("   Begin VB.CommandButton Ok\n Default = -1 'True\n End\n"
                 "   Begin VB.CommandButton Gone\n Cancel = -1 'True\n Visible = 0 'False\n End\n"
                 "   Begin VB.CommandButton No\n Cancel = -1 'True\n End\n"
                 "   Begin VB.CommandButton Other\n End\n"
                 "   Begin VB.TextBox T\n End\n"
                 "   Begin VB.CheckBox C\n End\n"
                 "   Begin VB.TextBox M\n MultiLine = -1 'True\n End\n"));
    const auto press = [&](TextView name, Qt::Key key) {
        QWidget& widget = view.Control(name).Widget();
        widget.setFocus();
        QTest::keyClick(&widget, key);
    };
    press(u"T", Qt::Key_Return);
    press(u"C", Qt::Key_Enter);
    press(u"T", Qt::Key_Escape);
    press(u"M", Qt::Key_Escape);
    EXPECT_THAT(view.raised, ElementsAre("Ok.Click", "Ok.Click", "No.Click", "No.Click"));
    view.raised.clear();
    press(u"Other", Qt::Key_Return);
    press(u"M", Qt::Key_Return);  // a line break
    EXPECT_EQ(view.raised.front(), "Other.Click");
    EXPECT_EQ(view.raised.back(), "M.Change");
    EXPECT_THAT(view.raised, Not(Contains("Ok.Click")));
}

TEST(PlainControl, TheButtonForEnterLooksSoWhereverTheKeyboardWas) {
    const LoadedView view(
        FormWith("   Begin VB.CommandButton Ok\n Default = -1 'True\n End\n"
                 "   Begin VB.CommandButton Other\n End\n"
                 "   Begin VB.TextBox T\n End\n"));
    const auto& ok = As<QPushButton>(view, u"Ok");
    const auto& other = As<QPushButton>(view, u"Other");
    for (const TextView name : {u"Ok", u"T", u"Other", u"T"}) {
        view.Control(name).Widget().setFocus();
        EXPECT_TRUE(ok.isDefault());
        EXPECT_EQ(other.isDefault(), other.hasFocus());
    }
}

TEST(PlainControl, AFormWithoutAButtonForEnterLeavesItAlone) {
    const LoadedView view(
        FormWith("   Begin VB.CommandButton Ok\n Default = -1 'True\n Enabled = 0 'False\n End\n"
                 "   Begin VB.CommandButton Other\n End\n"
                 "   Begin VB.CheckBox C\n End\n"));
    QTest::keyClick(&view.Control(u"C").Widget(), Qt::Key_Return);
    QTest::keyClick(&view.Control(u"C").Widget(), Qt::Key_Escape);
    EXPECT_TRUE(view.raised.empty());
}

TEST(PlainControl, RefusesANegativeSize) {
    const LoadedView view(FormWith("   Begin VB.TextBox T\n End\n"));
    const host::Placement before = view.Control(u"T").Place();
    EXPECT_THROW(view.Control(u"T").Move({.width = -1}), RuntimeError);
    EXPECT_EQ(view.Control(u"T").Place(), before);
}

TEST(TextList, ReadsWholeItemsOfAnyRecord) {
    EXPECT_THAT(lumenform::ItemsOf("\x02\0\x05\0\x01\0a\x02\0b\xE4"s, 1252),
                ElementsAre(u"a", u"bä"));
    EXPECT_THAT(lumenform::ItemsOf("\x02\0\x05\0\x01\0a\x09\0b"s, 1252), ElementsAre(u"a"));
    EXPECT_THAT(lumenform::ItemsOf("\x01\0\0\0\x01\0\xB9"s, 1250), ElementsAre(u"ą"));
    EXPECT_THAT(lumenform::ItemsOf("\x01\0\0\0\x02\0\x83\x5C"s, 932), ElementsAre(u"ソ"));
    for (const std::string& record : {""s, "\x01"s, "\xFF\xFF"s, "\xFF\xFF\0\0\x01"s}) {
        EXPECT_TRUE(lumenform::ItemsOf(record, 1252).empty());
    }
}

TEST(StoredPicture, IsReadOrNothing) {
    // A bitmap of 2 by 1 pixels, 24 bits: blue and red.
    const std::string bitmap =
        "BM\x3E\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\x02\0\0\0\x01\0\0\0\x01\0\x18\0\0\0\0\0\x08\0\0\0"
        "\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\xFF\0\0\0\0\xFF\0\0"s;
    const std::string head = "\x46\0\0\0lt\0\0\x3E\0\0\0"s;
    const QImage picture = lumenform::PictureIn(head + bitmap).toImage();
    ASSERT_EQ(picture.size(), QSize(2, 1));
    EXPECT_EQ(picture.pixelColor(0, 0), QColor(0, 0, 255));
    EXPECT_EQ(picture.pixelColor(1, 0), QColor(255, 0, 0));
    for (const std::string& record :
         {""s, head, head + "BM", "\x46\0\0\0lx\0\0\x3E\0\0\0"s + bitmap}) {
        EXPECT_TRUE(lumenform::PictureIn(record).isNull());
    }
}

TEST(MenuBar, HasTheKeysOfTheForm) {
    EXPECT_EQ(lumenform::KeysOf(u"^N"), QKeySequence(Qt::CTRL | Qt::Key_N));
    EXPECT_EQ(lumenform::KeysOf(u"+^{F12}"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_F12));
    EXPECT_EQ(lumenform::KeysOf(u"{DEL}"), QKeySequence(Qt::Key_Delete));
    EXPECT_TRUE(lumenform::KeysOf(u"").isEmpty());
}

TEST(MenuBar, TellsItsClicks) {
    const LoadedView view(forms::Load(sampleForms / "menus.frm"));
    auto* const bar = view.view->findChild<QMenuBar*>();
    ASSERT_NE(bar, nullptr);
    const auto menus = bar->actions();
    ASSERT_EQ(menus.size(), 2);
    EXPECT_EQ(menus[0]->text(), "&File");
    menus[0]->menu()->actions()[0]->trigger();
    menus[0]->menu()->actions()[2]->menu()->actions()[1]->trigger();
    EXPECT_TRUE(menus[0]->menu()->actions()[1]->isSeparator());
    EXPECT_FALSE(menus[1]->menu()->actions()[2]->isEnabled());
    EXPECT_THAT(view.raised, ElementsAre("mnuFileNew.Click", "mnuRecent(1).Click"));
}

}  // namespace
}  // namespace lumenkit::testing
