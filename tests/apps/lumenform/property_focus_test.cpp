// The property list shows which of its fields has the keyboard.
#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <cstdlib>

#include <gmock/gmock.h>

#include "apps/lumenform/design/properties/cell_editors.h"
#include "tests/apps/lumenform/browsed_form.h"
#include "tests/apps/lumenform/loaded_view.h"

namespace lumenkit::testing {
namespace {

QPalette DarkColors() {
    QPalette palette(QColor(45, 45, 45), QColor(53, 53, 53));
    palette.setColor(QPalette::Base, QColor(30, 30, 30));
    palette.setColor(QPalette::Text, QColor(240, 240, 240));
    palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
    return palette;
}

// Whether the palette is dark.
class PropertyFocus : public ::testing::TestWithParam<bool> {
 protected:
    PropertyFocus() {
        if (GetParam()) {
            form.window.setPalette(DarkColors());
        }
        form.Select({u"Text1"});
    }

    static QColor LeftEdge(QWidget& widget) {
        const QImage shown = widget.grab().toImage();
        return shown.pixelColor(0, shown.height() / 2);
    }
    static QColor HighlightOf(const QWidget& widget) {
        return widget.palette().color(QPalette::Highlight);
    }
    // The background of the current row, at its right end.
    QColor CurrentRow() const {
        lumenform::PropertyTable& table = form.browser->Table();
        const QRect cell = table.visualRect(table.currentIndex());
        const QImage shown = table.viewport()->grab().toImage();
        const double scale = shown.devicePixelRatio();
        return shown.pixelColor(static_cast<int>((cell.right() - 12) * scale),
                                static_cast<int>(cell.center().y() * scale));
    }

    // The style may draw a translucent focus rectangle over the color.
    static bool LooksLike(const QColor& one, const QColor& other) {
        constexpr int most = 16;
        return std::abs(one.red() - other.red()) <= most &&
               std::abs(one.green() - other.green()) <= most &&
               std::abs(one.blue() - other.blue()) <= most;
    }

    BrowsedForm form{
        FormWith("   Begin VB.TextBox Text1\n      Height          =   375\n   End\n"
                 "   Begin lumenkit.VLabel Label1\n      Height          =   375\n   End\n")};
};

TEST_P(PropertyFocus, TheListHasAFrameAndAFullSelection) {
    lumenform::PropertyTable& table = form.browser->Table();
    table.setFocus();
    table.GoTo(form.Row(u"MaxLength"));
    EXPECT_EQ(LeftEdge(*table.viewport()), HighlightOf(table));
    EXPECT_TRUE(LooksLike(CurrentRow(), HighlightOf(table)));
    form.browser->Filter().Field().setFocus();
    EXPECT_NE(LeftEdge(*table.viewport()), HighlightOf(table));
    EXPECT_FALSE(LooksLike(CurrentRow(), HighlightOf(table)));
    EXPECT_NE(CurrentRow(), table.palette().color(QPalette::Base)) << "still to be seen";
}

TEST_P(PropertyFocus, TheLineThatIsEditedHasAFrame) {
    form.browser->Edit(u"MaxLength");
    auto* const line = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(LeftEdge(*line->parentWidget()), HighlightOf(*line));
    EXPECT_NE(LeftEdge(*form.browser->Table().viewport()), HighlightOf(*line));
}

TEST_P(PropertyFocus, TheChoiceThatIsEditedHasAFrame) {
    form.browser->Edit(u"ScrollBars");
    auto* const box = qobject_cast<lumenform::ChoiceBox*>(QApplication::focusWidget());
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(LeftEdge(*box), HighlightOf(*box));
}

INSTANTIATE_TEST_SUITE_P(Palettes, PropertyFocus, ::testing::Bool(),
                         [](const ::testing::TestParamInfo<bool>& tested) {
                             return tested.param ? "Dark" : "Light";
                         });

}  // namespace
}  // namespace lumenkit::testing
