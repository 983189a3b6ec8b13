// The items of an option list, edited as a table.
#include "apps/lumenform/design/properties/contents/contents_dialog.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPointer>
#include <QRadioButton>
#include <QTest>
#include <memory>

#include <gmock/gmock.h>

#include "apps/lumenform/design/properties/text_dialog.h"
#include "frame/utf8.h"
#include "tests/apps/lumenform/browsed_form.h"
#include "tests/apps/lumenform/loaded_view.h"
#include "tests/support/qt_windows.h"

namespace lumenkit::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using widgets::ContentsModel;
using widgets::OptionRows;

// ---- The texts of the rows

TEST(OptionRows, KeepTheTextsOfRowsThatAreNotEdited) {
    for (const TextView contents : {u"", u"|", u"||", u"0;Item 0", u"Red", u"a|b;|;c|",
                                    u"1;a;b||2;Two", u" 1 ; One|", u"|0;A", u"0;A||"}) {
        EXPECT_EQ(OptionRows(contents).Contents(), contents);
    }
}

TEST(OptionRows, HaveValuesAndCaptions) {
    const OptionRows rows(u"Red|1;a;b||;x|");
    ASSERT_EQ(rows.Count(), 4U);
    EXPECT_EQ(rows.At(0).value, u"Red");
    EXPECT_EQ(rows.At(0).caption, u"Red");
    EXPECT_EQ(rows.At(1).value, u"1");
    EXPECT_EQ(rows.At(1).caption, u"a;b");
    EXPECT_EQ(rows.At(2).caption, u"");
    EXPECT_EQ(rows.At(3).value, u"");
    EXPECT_EQ(rows.At(3).caption, u"x");
}

TEST(OptionRows, OnlyAnEditedRowGetsANewText) {
    OptionRows rows(u"Red|Green|1;x|");
    rows.Set(0, u"Red", u"Red");
    EXPECT_EQ(rows.Contents(), u"Red|Green|1;x|");
    rows.Set(1, u"g", u"Green");
    EXPECT_EQ(rows.Contents(), u"Red|g;Green|1;x|");
}

TEST(OptionRows, AnEmptyLastRowIsNotLost) {
    OptionRows rows(u"|a");
    rows.Move(0, 1);
    EXPECT_EQ(rows.Contents(), u"a||");
    EXPECT_EQ(OptionRows(rows.Contents()).Count(), 2U);
}

TEST(OptionRows, AreAddedMovedAndRemoved) {
    OptionRows rows(u"0;a|7;b|x;c");
    rows.Add();
    EXPECT_EQ(rows.Contents(), u"0;a|7;b|x;c|8;Item 8");
    rows.Move(3, 0);
    rows.Move(1, 2);
    EXPECT_EQ(rows.Contents(), u"8;Item 8|7;b|0;a|x;c");
    rows.Remove(1);
    EXPECT_EQ(rows.Contents(), u"8;Item 8|0;a|x;c");
}

// ---- The dialog

class ContentsDialog : public ::testing::Test {
 protected:
    ContentsDialog() {
        form.Select({u"List1"});
        dialog = form.More<lumenform::ContentsDialog>(u"Contents");
        constexpr QSize roomForAll(700, 400);  // on a small screen, too
        dialog->resize(roomForAll);
        ShowActive(*dialog);
        Table().setFocus();
    }

    widgets::ContentsTable& Table() const { return dialog->Table(); }
    std::string Result() const { return ToUtf8(dialog->Result()); }
    std::string Stored() const {
        const forms::Block& block = form.design.View().Find(u"List1")->Block();
        return ToUtf8(block.FindProperty(u"Contents")->Source().value);
    }
    void GoTo(int row, int column = ContentsModel::CaptionColumn) const {
        Table().setCurrentIndex(Table().model()->index(row, column));
    }
    // Begins to edit the current cell.
    static QLineEdit* Edit(widgets::ContentsTable& table) {
        QTest::keyClick(&table, Qt::Key_F2);
        return qobject_cast<QLineEdit*>(QApplication::focusWidget());
    }
    // Ends the edit of a cell, and returns when its text is taken over.
    static void Enter(QLineEdit* line) {
        const QPointer<QLineEdit> kept = line;
        QTest::keyClick(line, Qt::Key_Return);
        EXPECT_TRUE(QTest::qWaitFor([&] { return kept == nullptr; })) << "the editor stays open";
    }
    void Press(const QString& text) const {
        for (QPushButton* button : dialog->findChildren<QPushButton*>()) {
            if (button->text() == text) {
                QTest::mouseClick(button, Qt::LeftButton);
                return;
            }
        }
        ADD_FAILURE() << "no button " << text.toStdString();
    }
    std::vector<std::string> Preview() const {
        std::vector<std::string> captions;
        for (const QRadioButton* button : dialog->findChildren<QRadioButton*>()) {
            captions.push_back(button->text().toStdString());
        }
        return captions;
    }

    BrowsedForm form{
        FormWith("   Begin lumenkit.VOptList List1\n      Height          =   1200\n"
                 "      Contents        =   \"Red|1;Green|2;Blue\"\n   End\n")};
    lumenform::ContentsDialog* dialog = nullptr;
};

TEST_F(ContentsDialog, ShowsValuesCaptionsAndTheButtons) {
    const QAbstractItemModel& model = *Table().model();
    EXPECT_EQ(model.rowCount(), 3);
    EXPECT_EQ(model.index(0, 0).data(), "Red");
    EXPECT_EQ(model.index(1, 0).data(), "1");
    EXPECT_EQ(model.index(1, 1).data(), "Green");
    EXPECT_THAT(Preview(), ElementsAre("Red", "Green", "Blue"));
}

TEST_F(ContentsDialog, OkWithoutAnEditChangesNothing) {
    dialog->accept();
    EXPECT_EQ(form.design.History().index(), 0);
}

TEST_F(ContentsDialog, ACaptionIsTyped) {
    GoTo(1);
    QLineEdit* const line = Edit(Table());
    ASSERT_NE(line, nullptr);
    line->selectAll();
    QTest::keyClicks(line, "Lime;bright");
    Enter(line);
    EXPECT_THAT(Preview(), ElementsAre("Red", "Lime;bright", "Blue"));
    dialog->accept();
    EXPECT_EQ(Stored(), "\"Red|1;Lime;bright|2;Blue\"") << "the other rows keep their texts";
    EXPECT_EQ(form.design.History().index(), 1);
}

TEST_F(ContentsDialog, BarsAndSemicolonsAreRefusedWhereTheyAreTyped) {
    GoTo(1, ContentsModel::ValueColumn);
    QLineEdit* line = Edit(Table());
    ASSERT_NE(line, nullptr);
    QTest::keyClicks(line, "a;");
    EXPECT_EQ(line->text(), "a");
    EXPECT_THAT(dialog->Message().toStdString(), HasSubstr("; separates the value"));
    QTest::keyClicks(line, "b");
    EXPECT_EQ(dialog->Message(), QString());
    QApplication::clipboard()->setText(QStringLiteral("x|y"));
    QTest::keyClick(line, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(line->text(), "ab");
    EXPECT_THAT(dialog->Message().toStdString(), HasSubstr("| separates the items"));
    Enter(line);
    EXPECT_EQ(Result(), "Red|ab;Green|2;Blue");
    GoTo(1);
    line = Edit(Table());
    ASSERT_NE(line, nullptr);
    QTest::keyClicks(line, "|");
    EXPECT_EQ(line->text(), "Green");
    EXPECT_THAT(dialog->Message().toStdString(), HasSubstr("| separates the items"));
}

TEST_F(ContentsDialog, TheModelRefusesThemToo) {
    QString why;
    ContentsModel model(u"a", nullptr);
    QObject::connect(&model, &ContentsModel::Refused, [&](const QString& said) { why = said; });
    EXPECT_FALSE(model.setData(model.index(0, 1), QStringLiteral("x|y"), Qt::EditRole));
    EXPECT_FALSE(why.isEmpty());
    EXPECT_EQ(model.Rows().Contents(), u"a");
}

TEST_F(ContentsDialog, RowsAreAddedAndRemoved) {
    Press(QStringLiteral("&Add"));
    auto* const line = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_NE(line, nullptr) << "its caption is edited";
    QTest::keyClicks(line, "Black");
    Enter(line);
    EXPECT_EQ(Result(), "Red|1;Green|2;Blue|3;Black");
    GoTo(0);
    Press(QStringLiteral("&Remove"));
    EXPECT_EQ(Result(), "1;Green|2;Blue|3;Black");
    Press(QStringLiteral("&Remove"));
    Press(QStringLiteral("&Remove"));
    Press(QStringLiteral("&Remove"));
    EXPECT_EQ(Result(), "3;Black") << "the last row stays";
}

TEST_F(ContentsDialog, RowsAreMovedByKeysAndButtons) {
    GoTo(0);
    QTest::keyClick(&Table(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(Result(), "1;Green|Red|2;Blue");
    EXPECT_EQ(Table().CurrentRow(), 1) << "the row stays current";
    QTest::keyClick(&Table(), Qt::Key_Down, Qt::AltModifier);
    QTest::keyClick(&Table(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(Result(), "1;Green|2;Blue|Red");
    Press(QStringLiteral("Move &up"));
    EXPECT_EQ(Result(), "1;Green|Red|2;Blue");
    QTest::keyClick(&Table(), Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(Result(), "Red|1;Green|2;Blue");
    Press(QStringLiteral("Move &down"));
    EXPECT_EQ(Result(), "1;Green|Red|2;Blue");
}

TEST_F(ContentsDialog, ARowIsDraggedToAnotherPlace) {
    QAbstractItemModel& model = *Table().model();
    const auto drop = [&](int from, QPoint at) {
        const std::unique_ptr<QMimeData> data(model.mimeData({model.index(from, 0)}));
        QWidget* const viewport = Table().viewport();
        QDragEnterEvent enter(at, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(viewport, &enter);
        QDragMoveEvent move(at, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(viewport, &move);
        QDropEvent end(at, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(viewport, &end);
    };
    drop(2, Table().visualRect(model.index(0, 0)).topLeft() + QPoint(10, 1));
    EXPECT_EQ(Result(), "2;Blue|Red|1;Green");
    drop(0, Table().visualRect(model.index(2, 0)).bottomLeft() + QPoint(10, 60));
    EXPECT_EQ(Result(), "Red|1;Green|2;Blue") << "below the last row";
    EXPECT_EQ(model.rowCount(), 3);
}

TEST_F(ContentsDialog, TheTextCanBeEditedInstead) {
    GoTo(0);
    Press(QStringLiteral("Move &down"));
    Press(QStringLiteral("As &text..."));
    QTest::qWait(0);
    auto* const text = form.browser->findChild<lumenform::TextDialog*>();
    ASSERT_NE(text, nullptr);
    auto* const edit = text->findChild<QPlainTextEdit*>();
    EXPECT_EQ(edit->toPlainText(), "1;Green\nRed\n2;Blue") << "with the edits of the table";
    QTest::keyClick(edit, Qt::Key_Return);
    QTest::keyClicks(edit, "3;more");
    text->accept();
    EXPECT_EQ(Stored(), "\"1;Green|Red|2;Blue|3;more\"");
    EXPECT_EQ(form.design.History().index(), 1);
}

TEST_F(ContentsDialog, TheTextThatIsOnlyLookedAtKeepsTheEditsOfTheTable) {
    GoTo(0);
    Press(QStringLiteral("Move &down"));
    Press(QStringLiteral("As &text..."));
    QTest::qWait(0);
    form.browser->findChild<lumenform::TextDialog*>()->accept();
    EXPECT_EQ(Stored(), "\"1;Green|Red|2;Blue\"");
}

}  // namespace
}  // namespace lumenkit::testing
