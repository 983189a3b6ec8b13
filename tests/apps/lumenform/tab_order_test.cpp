// The tab order of a form.
#include <QAbstractButton>
#include <QApplication>
#include <QTest>
#include <vector>

#include <gmock/gmock.h>

#include "frame/utf8.h"
#include "tests/apps/lumenform/loaded_view.h"

namespace lumenkit::testing {
namespace {

using ::testing::ElementsAre;

std::string OwnerOf(const LoadedView& view, const QWidget* widget) {
    for (; widget != nullptr; widget = widget->parentWidget()) {
        for (const auto& control : view.view->Controls()) {
            if (&control->Widget() == widget) {
                return ToUtf8(control->Name());
            }
        }
    }
    return "nobody";
}

std::vector<std::string> Way(LoadedView& view, int steps, Qt::KeyboardModifiers held = {}) {
    view.view->FocusFirst();
    std::vector<std::string> way{OwnerOf(view, QApplication::focusWidget())};
    for (int step = 0; step < steps; ++step) {
        QTest::keyClick(QApplication::focusWidget(),
                        held == Qt::NoModifier ? Qt::Key_Tab : Qt::Key_Backtab, held);
        way.push_back(OwnerOf(view, QApplication::focusWidget()));
    }
    return way;
}

const std::string form =
    "   Begin VB.TextBox C\n TabIndex = 5\n End\n"
    "   Begin VB.Frame F\n TabIndex = 1\n Width = 3000\n Height = 2000\n"
    "      Begin lumenkit.VMemo B\n TabIndex = 2\n Width = 900\n Height = 600\n End\n"
    "   End\n"
    "   Begin lumenkit.VOptList O\n TabIndex = 4\n Contents = \"1;One|2;Two\"\n ListIndex = 1\n"
    "      Width = 900\n Height = 900\n End\n"
    "   Begin VB.CommandButton A\n TabIndex = 0\n End\n"
    "   Begin VB.CommandButton Skipped\n TabIndex = 3\n TabStop = 0 'False\n End\n"
    "   Begin VB.CommandButton Off\n TabIndex = 6\n Enabled = 0 'False\n End\n";

TEST(TabOrder, GoesByTabIndexAndAround) {
    LoadedView view(FormWith(form));
    EXPECT_THAT(Way(view, 4), ElementsAre("A", "B", "O", "C", "A"));
    EXPECT_THAT(Way(view, 4, Qt::ShiftModifier), ElementsAre("A", "C", "O", "B", "A"));
}

TEST(TabOrder, GoesOnFromWhatIsNoStop) {
    LoadedView view(FormWith(form));
    QWidget& skipped = view.Control(u"Skipped").Widget();
    skipped.setFocus();
    QTest::keyClick(&skipped, Qt::Key_Tab);
    EXPECT_EQ(OwnerOf(view, QApplication::focusWidget()), "O");
    skipped.setFocus();
    QTest::keyClick(&skipped, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(OwnerOf(view, QApplication::focusWidget()), "B");
}

TEST(TabOrder, StopsOnceAtOptionButtonsOfOneContainer) {
    const auto option = [](const std::string& index, const std::string& value) {
        return "   Begin VB.OptionButton Opt\n Index = " + index + "\n TabIndex = " + index +
               "\n Value = " + value + "\n End\n";
    };
    LoadedView view(FormWith(option("0", "0 'False") + option("1", "-1 'True") +
                             option("2", "0 'False") +
                             "   Begin VB.TextBox T\n TabIndex = 3\n End\n"));
    EXPECT_THAT(Way(view, 2), ElementsAre("Opt(1)", "T", "Opt(1)"));
}

TEST(TabOrder, EntersOptionsAtTheFirstIfNoneIsChosen) {
    LoadedView view(
        FormWith("   Begin VB.TextBox T\n TabIndex = 0\n End\n"
                 "   Begin VB.OptionButton A\n TabIndex = 1\n End\n"
                 "   Begin VB.OptionButton B\n TabIndex = 2\n End\n"));
    EXPECT_THAT(Way(view, 2), ElementsAre("T", "A", "T"));
}

TEST(OptionButtons, ReleaseThoseOfTheSameContainerOnly) {
    LoadedView view(
        FormWith("   Begin VB.OptionButton A\n Value = -1 'True\n Width = 600\n End\n"
                 "   Begin VB.OptionButton B\n Left = 900\n Width = 600\n End\n"
                 "   Begin VB.Frame F\n Top = 900\n Width = 3000\n Height = 900\n"
                 "      Begin VB.OptionButton F1\n Value = -1 'True\n Width = 600\n End\n"
                 "      Begin VB.OptionButton F2\n Left = 900\n Width = 600\n End\n   End\n"));
    const auto button = [&](TextView name) {
        return qobject_cast<QAbstractButton*>(&view.Control(name).Widget());
    };
    const auto chosen = [&] {
        std::vector<bool> all;
        for (const TextView name : {u"A", u"B", u"F1", u"F2"}) {
            all.push_back(button(name)->isChecked());
        }
        return all;
    };
    EXPECT_THAT(chosen(), ElementsAre(true, false, true, false));
    QTest::mouseClick(button(u"B"), Qt::LeftButton);
    EXPECT_THAT(chosen(), ElementsAre(false, true, true, false));
    QTest::mouseClick(button(u"F2"), Qt::LeftButton);
    EXPECT_THAT(chosen(), ElementsAre(false, true, false, true));
}

TEST(TabOrder, LabelsLeadToTheControlBehindThem) {
    LoadedView view(FormWith(
        "   Begin VB.TextBox Last\n TabIndex = 2\n End\n"
        "   Begin VB.Label L\n Caption = \"&Name\"\n TabIndex = 0\n End\n"
        "   Begin lumenkit.VMemo Next\n TabIndex = 1\n Width = 900\n Height = 600\n End\n"));
    view.Control(u"Last").Widget().setFocus();
    QTest::keyClick(&view.Control(u"Last").Widget(), Qt::Key_N, Qt::AltModifier);
    EXPECT_EQ(OwnerOf(view, QApplication::focusWidget()), "Next");
}

TEST(TabOrder, NobodyTakesTheKeyboardInDesign) {
    LoadedView view(FormWith(form), lumenform::Mode::Design);
    EXPECT_TRUE(view.view->Client().TabStops().empty());
}

}  // namespace
}  // namespace lumenkit::testing
