// List boxes and combo boxes in their styles.
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QTest>
#include <algorithm>
#include <array>

#include <gmock/gmock.h>

#include "apps/lumenform/form_view/simple_combo.h"
#include "forms/file.h"
#include "tests/apps/lumenform/loaded_view.h"

namespace lumenkit::testing {
namespace {

using ::testing::ElementsAre;

// The form choices.frm: its lists hold red, green, blue, yellow, black and white.
class Choices : public ::testing::Test {
 protected:
    LoadedView view{forms::Load(sampleForms / "choices.frm")};
};

TEST_F(Choices, ASimpleComboShowsItsListInTheHeightOfTheControl) {
    const auto& combo = As<lumenform::SimpleCombo>(view, u"cboSimple");
    EXPECT_EQ(combo.size(), QSize(121, 102));
    EXPECT_TRUE(combo.List().isVisible());
    EXPECT_EQ(combo.List().count(), 6);
    EXPECT_EQ(combo.Edit().geometry().bottom() + 1, combo.List().geometry().top());
    EXPECT_EQ(combo.List().geometry().bottom(), combo.rect().bottom());
    EXPECT_EQ(combo.Edit().text(), "blue");
    EXPECT_EQ(combo.List().currentRow(), 2);
}

TEST_F(Choices, TheItemsOfASimpleComboGoIntoItsBox) {
    const auto& combo = As<lumenform::SimpleCombo>(view, u"cboSimple");
    const QRect yellow = combo.List().visualItemRect(combo.List().item(3));
    QTest::mouseClick(combo.List().viewport(), Qt::LeftButton, {}, yellow.center());
    EXPECT_EQ(combo.Edit().text(), "yellow");
    EXPECT_THAT(view.raised, ElementsAre("cboSimple.Click"));
    view.raised.clear();
    combo.Edit().setFocus();
    QTest::keyClick(&combo.Edit(), Qt::Key_Up);
    EXPECT_EQ(combo.Edit().text(), "blue");
    EXPECT_EQ(combo.List().currentRow(), 2);
    QTest::keyClicks(&combo.Edit(), QStringLiteral("x"));
    EXPECT_EQ(combo.Edit().text(), "x") << "the chosen text was selected";
    EXPECT_EQ(combo.List().selectedItems().size(), 0);
    EXPECT_THAT(view.raised, ElementsAre("cboSimple.Click", "cboSimple.Change"));
}

TEST_F(Choices, TabStopsOnceAtASimpleCombo) {
    const auto& combo = As<lumenform::SimpleCombo>(view, u"cboSimple");
    const std::vector<QWidget*> stops = view.view->Client().TabStops();
    EXPECT_EQ(
        std::ranges::count_if(stops, [&](const QWidget* stop) { return combo.isAncestorOf(stop); }),
        1);
}

TEST(SimpleCombo, TheMnemonicOfTheLabelBeforeItLeadsToItsBox) {
    const LoadedView view(
        FormWith("   Begin VB.Label L\n Caption = \"&Colour\"\n TabIndex = 0\n End\n"
                 "   Begin VB.ComboBox C\n Style = 1\n TabIndex = 1\n Height = 1500\n End\n"
                 "   Begin VB.TextBox T\n TabIndex = 2\n End\n"));
    QWidget& text = view.Control(u"T").Widget();
    text.setFocus();
    QTest::keyClick(&text, Qt::Key_C, Qt::AltModifier);
    EXPECT_EQ(view.window.focusWidget(), &As<lumenform::SimpleCombo>(view, u"C").Edit());
}

TEST(SimpleCombo, TakesNoKeysInTheDesigner) {
    const LoadedView view(FormWith("   Begin VB.ComboBox C\n Style = 1\n Height = 1500\n End\n"),
                          lumenform::Mode::Design);
    EXPECT_TRUE(view.view->Client().TabStops().empty());
}

TEST_F(Choices, ADropDownListShowsTheItemThatTheFormNames) {
    EXPECT_EQ(As<QComboBox>(view, u"cboList").currentText(), "yellow");
    EXPECT_EQ(As<QComboBox>(view, u"cboNone").currentIndex(), -1);
    EXPECT_EQ(As<QComboBox>(view, u"cboNone").currentText(), "");
}

TEST_F(Choices, AListHasCheckBoxes) {
    auto& list = As<QListWidget>(view, u"lstChecks");
    for (int row = 0; row < list.count(); ++row) {
        EXPECT_TRUE(list.item(row)->data(Qt::CheckStateRole).isValid());
        EXPECT_EQ(list.item(row)->checkState(), Qt::Unchecked);
    }
    list.setFocus();
    list.setCurrentRow(1);
    view.raised.clear();
    QTest::keyClick(&list, Qt::Key_Space);
    EXPECT_EQ(list.item(1)->checkState(), Qt::Checked);
    EXPECT_THAT(view.raised, ElementsAre("lstChecks.ItemCheck"));
    EXPECT_FALSE(As<QListWidget>(view, u"lstColumns").item(0)->data(Qt::CheckStateRole).isValid());
}

TEST_F(Choices, TheItemsOfAListWithColumnsGoOnInTheNextColumn) {
    const auto& list = As<QListWidget>(view, u"lstColumns");
    const auto rect = [&](int row) { return list.visualItemRect(list.item(row)); };
    const int width = list.viewport()->width() / 3;
    EXPECT_EQ(rect(0).topLeft().y(), rect(2).topLeft().y());
    EXPECT_GT(rect(1).top(), rect(0).top());
    EXPECT_NEAR(rect(2).left() - rect(0).left(), width, 1);
    EXPECT_NEAR(rect(4).left() - rect(0).left(), 2 * width, 1);
    EXPECT_FALSE(list.viewport()->rect().contains(rect(6).center())) << "it scrolls to the side";
    EXPECT_EQ(list.verticalScrollBar()->maximum(), 0);
}

TEST(ListBox, SelectsAsManyItemsAsTheFormSays) {
    const std::array modes = {QListWidget::SingleSelection, QListWidget::MultiSelection,
                              QListWidget::ExtendedSelection, QListWidget::SingleSelection};
    for (int value = 0; value < 4; ++value) {
        const LoadedView view(FormWith(
            "   Begin VB.ListBox L\n MultiSelect = " + std::to_string(value) + "\n End\n"));
        EXPECT_EQ(As<QListWidget>(view, u"L").selectionMode(),
                  modes.at(static_cast<std::size_t>(value)));
    }
}

}  // namespace
}  // namespace lumenkit::testing
