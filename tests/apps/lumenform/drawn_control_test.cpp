// Lines and shapes, which the form draws itself.
#include <gmock/gmock.h>

#include "apps/lumenform/design/model/clipboard.h"
#include "forms/form_error.h"
#include "runtime/qt/pixels.h"
#include "tests/apps/lumenform/browsed_form.h"
#include "tests/apps/lumenform/loaded_view.h"

namespace lumenkit::testing {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

// In twips: a whole number of pixels at every scale at which the tests run.
constexpr float step = 120;

const QColor red(255, 0, 0);
const QColor blue(0, 0, 255);
const QColor green(0, 255, 0);
const std::string redBorder = " BorderColor = &H000000FF&\n";
const std::string blueFill = " FillColor = &H00FF0000&\n FillStyle = 0\n";

std::string Line(int x1, int y1, int x2, int y2, const std::string& more = {}) {
    const auto twips = [](int steps) { return std::to_string(steps * static_cast<int>(step)); };
    return "   Begin VB.Line L\n" + redBorder + more + " X1 = " + twips(x1) +
           "\n X2 = " + twips(x2) + "\n Y1 = " + twips(y1) + "\n Y2 = " + twips(y2) + "\n End\n";
}

// A shape that is eight steps wide and four high, one step from the corner of the form.
std::string Shape(const std::string& more) {
    return "   Begin VB.Shape S\n" + more +
           " Height = 480\n Left = 120\n Top = 120\n Width = 960\n End\n";
}

// Reads the colours of the form in the middle of pixels. Points are in steps.
class ScaledPicture {
 public:
    explicit ScaledPicture(const std::string& inner) {
        const LoadedView view(FormWith(inner));
        const QPixmap grabbed = view.view->Client().grab();
        ratio_ = grabbed.devicePixelRatio();
        image_ = grabbed.toImage();
    }

    QColor At(float x, float y) const {
        const qt::TwipsPerPixel& twips = qt::TwipsPerPixel::OfScreens();
        const auto real = [this](float steps, double perPixel) {
            return static_cast<int>((steps * step / perPixel + 0.5) * ratio_);
        };
        return image_.pixelColor(real(x, twips.x), real(y, twips.y));
    }

 private:
    QImage image_;
    qreal ratio_ = 1;
};

TEST(DrawnLine, GoesFromEndToEnd) {
    const ScaledPicture level(Line(1, 2, 10, 2));
    EXPECT_EQ(level.At(5, 2), red);
    EXPECT_NE(level.At(5, 2.5), red);
    EXPECT_NE(level.At(11, 2), red);
    const ScaledPicture upright(Line(3, 12, 3, 1));
    EXPECT_EQ(upright.At(3, 6), red);
    EXPECT_NE(upright.At(4, 6), red);
    const std::string wide = " BorderWidth = 5\n";
    for (const std::string& falling : {Line(1, 1, 9, 9, wide), Line(9, 9, 1, 1, wide)}) {
        const ScaledPicture picture(falling);
        EXPECT_EQ(picture.At(3, 3), red);
        EXPECT_NE(picture.At(7, 3), red);
    }
    for (const std::string& rising : {Line(1, 9, 9, 1, wide), Line(9, 1, 1, 9, wide)}) {
        const ScaledPicture picture(rising);
        EXPECT_EQ(picture.At(7, 3), red);
        EXPECT_NE(picture.At(3, 3), red);
    }
}

TEST(DrawnLine, IsAsItsBorderSays) {
    EXPECT_NE(ScaledPicture(Line(1, 2, 10, 2, " BorderStyle = 0\n BorderWidth = 5\n")).At(5, 2),
              red);
    const ScaledPicture dotted(Line(1, 2, 20, 2, " BorderStyle = 3\n"));
    int drawn = 0;
    int left = 0;
    for (float x = 2; x < 19; x += 0.0625F) {
        ++(dotted.At(x, 2) == red ? drawn : left);
    }
    EXPECT_GT(drawn, 10);
    EXPECT_GT(left, 10);
    const ScaledPicture wide(Line(1, 5, 10, 5, " BorderStyle = 3\n BorderWidth = 9\n"));
    for (float x = 2; x < 9; x += 0.0625F) {
        EXPECT_EQ(wide.At(x, 5), red);  // wide lines have no gaps
    }
    EXPECT_NE(ScaledPicture(Line(1, 2, 10, 2, " Visible = 0   'False\n")).At(5, 2), red);
}

TEST(DrawnLine, LiesBehindOtherControls) {
    const std::string button = "   Begin VB.TextBox T\n Height = 480\n Width = 960\n End\n";
    EXPECT_NE(ScaledPicture(Line(1, 2, 10, 2) + button).At(4, 2), red);
}

TEST(DrawnLine, IsMovedByItsEnds) {
    LoadedView view(FormWith(Line(3, 1, 1, 4)), lumenform::Mode::Design);
    const std::string before = view.Saved();
    lumenform::LiveControl& line = view.Control(u"L");
    EXPECT_EQ(line.Place(), (host::Placement{120, 120, 240, 360}));
    line.Move({120, 240, 240, 360});
    const std::string moved = view.Saved();
    EXPECT_THAT(moved, HasSubstr("X1 = 360\n"));
    EXPECT_THAT(moved, HasSubstr("X2 = 120\n"));
    EXPECT_THAT(moved, HasSubstr("Y1 = 240\n"));
    EXPECT_THAT(moved, HasSubstr("Y2 = 600\n"));
    EXPECT_THAT(moved, Not(HasSubstr("Left")));
    EXPECT_THAT(moved, Not(HasSubstr(" Width")));
    line.Move({120, 120, 240, 360});
    EXPECT_EQ(view.Saved(), before);
    EXPECT_THROW(line.Move({.width = -1}), RuntimeError);
}

TEST(DrawnLine, OpensWithEndsThatAreNoNumbers) {
    const LoadedView view(FormWith("   Begin VB.Line L\n X1 = \"far\"\n X2 = 300\n End\n"));
    EXPECT_EQ(view.Control(u"L").Place().width, 300);
    EXPECT_EQ(view.document.Warnings().size(), 1U);
}

TEST(DrawnShape, HasABorderAndAFilling) {
    const ScaledPicture rectangle(Shape(redBorder + blueFill));
    EXPECT_EQ(rectangle.At(1, 1), red);
    EXPECT_EQ(rectangle.At(5, 3), blue);
    EXPECT_NE(rectangle.At(9, 3), blue);
    EXPECT_NE(rectangle.At(0.5, 3), red);
    const ScaledPicture empty(Shape(redBorder));
    EXPECT_EQ(empty.At(1, 3), red);
    EXPECT_EQ(empty.At(5, 3), empty.At(20, 10));
    const ScaledPicture opaque(
        Shape(" BackColor = &H0000FF00&\n BackStyle = 1\n BorderStyle = 0\n"));
    EXPECT_EQ(opaque.At(5, 3), green);
    const ScaledPicture hatched(
        Shape(" BackColor = &H0000FF00&\n BackStyle = 1\n BorderStyle = 0\n"
              " FillColor = &H00FF0000&\n FillStyle = 3\n"));
    int ground = 0;
    int lines = 0;
    for (float x = 2; x < 8; x += 0.0625F) {
        ground += hatched.At(x, 3) == green ? 1 : 0;
        lines += hatched.At(x, 3) == blue ? 1 : 0;
    }
    EXPECT_GT(ground, 10);
    EXPECT_GT(lines, 2);
}

TEST(DrawnShape, HasTheFormThatIsAskedFor) {
    const auto shape = [](int form) {
        return Shape(" BorderStyle = 0\n" + blueFill + " Shape = " + std::to_string(form) + "\n");
    };
    const auto isFilled = [](const ScaledPicture& picture, float x, float y) {
        return picture.At(x, y) == blue;
    };
    for (int form = 0; form <= 6; ++form) {  // 6 is no shape and is drawn as a rectangle
        const ScaledPicture picture(shape(form));
        const bool equalSided = form == 1 || form == 3 || form == 5;
        const bool pointed = form == 0 || form == 1 || form == 6;
        EXPECT_TRUE(isFilled(picture, 5, 3)) << form;
        EXPECT_EQ(isFilled(picture, 2, 3), !equalSided) << form;
        EXPECT_EQ(isFilled(picture, equalSided ? 3.125F : 1.125F, 1.125F), pointed) << form;
        EXPECT_EQ(isFilled(picture, equalSided ? 3.625F : 2, 1.5), form != 2 && form != 3) << form;
    }
}

TEST(DrawnShape, ABorderGoesBeyondItsPlaceUnlessItIsInside) {
    const std::string wide = redBorder + " BorderWidth = 9\n";
    EXPECT_EQ(ScaledPicture(Shape(wide)).At(0.75, 3), red);
    const ScaledPicture inside(Shape(wide + " BorderStyle = 6\n"));
    EXPECT_NE(inside.At(0.75, 3), red);
    EXPECT_EQ(inside.At(1.5, 3), red);
}

TEST(DrawnControl, HasItsOwnPropertiesInTheList) {
    BrowsedForm form(FormWith(Line(1, 2, 10, 2) + Shape({})));
    form.Select({u"L"});
    EXPECT_TRUE(form.Has(u"X1"));
    EXPECT_FALSE(form.Has(u"Left"));
    EXPECT_FALSE(form.Has(u"TabIndex"));
    EXPECT_EQ(form.Shown(u"BorderStyle"), "1 - Solid");
    form.Type(u"X1", "0.5");
    EXPECT_THAT(form.Saved(), HasSubstr("X1 = 0.5\n"));
    form.Select({u"S"});
    EXPECT_FALSE(form.Has(u"TabStop"));
    form.Type(u"Left", "240");
    EXPECT_THAT(form.Saved(), HasSubstr("Left = 240\n"));
    form.Choose(u"Shape", "3 - Circle");
    EXPECT_THAT(form.Saved(), HasSubstr("Shape           =   3"));
}

TEST(DrawnControl, ADuplicateStepsAside) {
    BrowsedForm form(FormWith(Line(1, 2, 10, 2)));
    form.Select({u"L"});
    const host::Placement before = form.design.Selected().front()->Place();
    DuplicateSelected(form.design);
    const lumenform::LiveControl& copy = *form.design.Selected().front();
    EXPECT_GT(copy.Place().left, before.left);
    EXPECT_GT(copy.Place().top, before.top);
    EXPECT_EQ(copy.Place().width, before.width);
    EXPECT_EQ(copy.Place().height, 0);
    EXPECT_THAT(form.Saved(), Not(HasSubstr("Left")));
}

TEST(DrawnControl, ADuplicateOfAControlFarOutIsOnTheForm) {
    const std::string far =
        "   Begin VB.Shape S\n Height = 480\n Left = 1E+15\n Top = 1E+15\n Width = 960\n End\n";
    BrowsedForm form(FormWith(far));
    form.Select({u"S"});
    DuplicateSelected(form.design);
    EXPECT_EQ(form.design.View().Controls().size(), 2U);
    const host::Placement place = form.design.Selected().front()->Place();
    EXPECT_GE(place.left, 0);
    EXPECT_LE(place.left + place.width, 4500);
    EXPECT_GE(place.top, 0);
    EXPECT_LE(place.top + place.height, 3000);
}

}  // namespace
}  // namespace lumenkit::testing
