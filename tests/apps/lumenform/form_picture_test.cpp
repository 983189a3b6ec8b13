// Pictures and icons of forms, and the boxes of unknown classes.
#include <QApplication>
#include <QPainter>
#include <array>

#include <gmock/gmock.h>

#include "apps/lumenform/form_view/labelled_box.h"
#include "apps/lumenform/run/run_window.h"
#include "forms/file.h"
#include "tests/apps/lumenform/grabbed.h"
#include "tests/apps/lumenform/loaded_view.h"

namespace lumenkit::testing {
namespace {

using lumenform::Mode;

TEST(FormPicture, IsAtTheUpperLeftBehindTheControls) {
    const std::string inner =
        "   BackColor = &H0000FF00&\n   Picture = \"x.frx\":0000\n"
        "   Begin VB.Shape S\n BackColor = &H000000FF&\n BackStyle = 1\n BorderStyle = 0\n"
        " Height = 300\n Left = 300\n Top = 300\n Width = 300\n End\n";
    for (const Mode mode : {Mode::Run, Mode::Design}) {
        const LoadedView view(FormWith(inner, PictureRecord({60, 40}, Qt::blue)), mode);
        const Grabbed picture(view.view->Client());
        EXPECT_EQ(picture.At({0, 0}), QColor(Qt::blue));
        EXPECT_EQ(picture.At({59, 39}), QColor(Qt::blue));
        EXPECT_EQ(picture.At({60, 20}), QColor(Qt::green));
        EXPECT_EQ(picture.At({30, 40}), QColor(Qt::green));
        EXPECT_EQ(picture.At({25, 25}), QColor(Qt::red));
    }
}

TEST(FormPicture, OfAPictureBoxIsBehindItsControls) {
    const LoadedView view(
        FormWith("   Begin VB.PictureBox P\n BorderStyle = 0\n Height = 1500\n Width = 1500\n"
                 " Picture = \"x.frx\":0000\n"
                 "      Begin VB.Shape S\n BackColor = &H000000FF&\n BackStyle = 1\n"
                 " BorderStyle = 0\n Height = 300\n Left = 300\n Top = 300\n Width = 300\n End\n"
                 "   End\n",
                 PictureRecord({60, 40}, Qt::blue)));
    const Grabbed picture(view.Control(u"P").Widget());
    EXPECT_EQ(picture.At({1, 1}), QColor(Qt::blue));
    EXPECT_EQ(picture.At({25, 25}), QColor(Qt::red));
    EXPECT_NE(picture.At({70, 20}), QColor(Qt::blue));
}

TEST(FormPicture, TheIconOfTheFormIsThatOfItsWindow) {
    const Surface surface;
    forms::Document document =
        FormWith("   Icon = \"x.frx\":0000\n", PictureRecord({16, 16}, Qt::blue));
    const lumenform::RunWindow window(surface.context, document);
    const QIcon icon = window.windowIcon();
    ASSERT_FALSE(icon.isNull());
    EXPECT_EQ(icon.pixmap(16, 16).toImage().pixelColor(8, 8), QColor(Qt::blue));
}

TEST(FormPicture, TheSampleHasAPictureAndAnIcon) {
    const LoadedView view(forms::Load(sampleForms / "picture.frm"));
    EXPECT_FALSE(view.view->windowIcon().isNull());
    EXPECT_EQ(Grabbed(view.view->Client()).At({150, 24}), QColor(250, 210, 60));
}

// Returns the rectangle around the text of an unknown control X, drawn without the controls in it.
QRect TextOf(const LoadedView& view) {
    QWidget& box = view.Control(u"X").Widget();
    const auto drawn = [&](const QColor& text) {
        QPalette palette = box.palette();
        palette.setColor(QPalette::Active, QPalette::WindowText, text);
        palette.setColor(QPalette::Inactive, QPalette::WindowText, text);
        box.setPalette(palette);
        QPixmap picture(box.size() * box.devicePixelRatioF());
        picture.setDevicePixelRatio(box.devicePixelRatioF());
        picture.fill(Qt::white);
        box.render(&picture, {}, {}, QWidget::RenderFlags());
        return Grabbed(picture);
    };
    return drawn(Qt::black).DifferenceFrom(drawn(Qt::red));
}

std::string Unknown(const std::string& inner) {
    return "   Begin Some.Thing X\n Height = 1800\n Width = 3000\n" + inner + "   End\n";
}

std::string Inside(int left, int top, int width, int height) {
    const auto property = [](const char* name, int pixels) {
        return " " + std::string(name) + " = " + std::to_string(pixels * 15) + "\n";
    };
    return "      Begin VB.TextBox T\n" + property("Height", height) + property("Left", left) +
           property("Top", top) + property("Width", width) + " End\n";
}

TEST(UnknownControl, ItsTextIsBesideTheControlsInIt) {
    const LoadedView empty(FormWith(Unknown("")));
    EXPECT_NEAR(TextOf(empty).center().y(), 60, 4);
    for (const QRect& inside : {QRect(10, 50, 180, 60), QRect(10, 10, 180, 50),
                                QRect(10, 10, 100, 100), QRect(110, 10, 80, 100)}) {
        const LoadedView view(FormWith(
            Unknown(Inside(inside.left(), inside.top(), inside.width(), inside.height()))));
        const QRect text = TextOf(view);
        EXPECT_FALSE(text.isEmpty());
        EXPECT_FALSE(text.intersects(inside));
    }
}

TEST(UnknownControl, HasNoTextWithoutRoomForIt) {
    const LoadedView view(FormWith(Unknown(Inside(6, 6, 188, 108))));
    EXPECT_TRUE(TextOf(view).isEmpty());
    EXPECT_EQ(view.Control(u"X").Widget().accessibleName(), "X Some.Thing");
}

TEST(UnknownControl, ItsTextMakesWayForAControlThatMoves) {
    LoadedView view(FormWith(Unknown(Inside(10, 10, 180, 50))), Mode::Design);
    EXPECT_GT(TextOf(view).top(), 60);
    view.Control(u"T").Move({.left = 150, .top = 900, .width = 2700, .height = 750});
    EXPECT_LT(TextOf(view).bottom(), 60);
}

}  // namespace
}  // namespace lumenkit::testing
