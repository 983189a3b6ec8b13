// Forms and picture boxes whose coordinates are not in twips.
#include <QImage>
#include <array>
#include <cmath>
#include <regex>
#include <sstream>

#include <gmock/gmock.h>

#include "apps/lumenform/design/model/clipboard.h"
#include "apps/lumenform/design/model/new_control.h"
#include "apps/lumenform/form_view/saved_place.h"
#include "tests/apps/lumenform/browsed_form.h"
#include "tests/apps/lumenform/designed_form.h"
#include "tests/apps/lumenform/edited_design.h"

namespace lumenkit::testing {
namespace {

using host::Placement;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

constexpr int modes = 8;

// The scale of a container of 4500 by 3000 twips in each mode, with the twips per unit.
struct KnownScale {
    std::string lines;
    double x;
    double y;
    double left = 0;
    double top = 0;
};

KnownScale ScaleIn(int mode) {
    constexpr double inch = 1440;
    const std::array<KnownScale, modes> scales = {{
        {"ScaleHeight = -100\nScaleLeft = -5\nScaleTop = 100\nScaleWidth = 50\n", 90, -30, -5, 100},
        {"ScaleHeight = 3000\nScaleWidth = 4500\n", 1, 1},
        {"ScaleHeight = 150\nScaleWidth = 225\n", 20, 20},
        {"ScaleHeight = 200\nScaleWidth = 300\n", 15, 15},
        {"ScaleHeight = 12.5\nScaleWidth = 37.5\n", 120, 240},
        {"ScaleHeight = 2.083\nScaleWidth = 3.125\n", inch, inch},
        {"ScaleHeight = 52.917\nScaleWidth = 79.375\n", inch / 25.4, inch / 25.4},
        {"ScaleHeight = 5.292\nScaleWidth = 7.938\n", inch / 2.54, inch / 2.54},
    }};
    KnownScale scale = scales.at(static_cast<std::size_t>(mode));
    scale.lines += "ScaleMode = " + std::to_string(mode) + '\n';
    return scale;
}

const std::string anyControls =
    "Begin lumenkit.VMemo M\nHeight = 600\nLeft = 2400\nTop = 300\nWidth = 900\n"
    "Text = \"memo\"\n_ExtentX = 1588\n_ExtentY = 1058\nEnd\n"
    "Begin VB.CommandButton B\nCaption = \"Go\"\nHeight = 375\nLeft = 120\nTop = 240\n"
    "Width = 1215\nEnd\n"
    "Begin VB.Shape S\nHeight = 480\nLeft = 1440\nShape = 2\nTop = 1440\nWidth = 960\nEnd\n";

// A form with these lines in it, or with a picture box that has the same size and these lines.
std::string FormText(const std::string& inner, bool inBox) {
    const std::string size = "ClientHeight = 3000\nClientWidth = 4500\n";
    const std::string box =
        "Begin VB.PictureBox P\nBorderStyle = 0\nHeight = 3000\nLeft = 0\n"
        "Top = 0\nWidth = 4500\n" +
        inner + "End\n";
    return "VERSION 5.00\nBegin VB.Form F\n" + size + (inBox ? box : inner) + "End\n";
}

std::string InMode(int mode, const std::string& inner, bool inBox) {
    return FormText(ScaleIn(mode).lines + inner, inBox);
}

std::string Written(double number) {
    std::ostringstream stream;
    stream.precision(9);
    stream << std::uppercase << number;
    return stream.str();
}

// A line between two points in twips, written in the units of the mode.
std::string LineIn(int mode, double x1, double y1, double x2, double y2) {
    const KnownScale scale = ScaleIn(mode);
    const auto x = [&](double twips) { return Written(twips / scale.x + scale.left); };
    const auto y = [&](double twips) { return Written(twips / scale.y + scale.top); };
    return "Begin VB.Line L\nX1 = " + x(x1) + "\nX2 = " + x(x2) + "\nY1 = " + y(y1) +
           "\nY2 = " + y(y2) + "\nEnd\n";
}

QImage PictureOf(const std::string& form) {
    LoadedView view(FormOf(form));
    return view.view->grab().toImage();
}

// The saved form without the lines that tell its scale.
std::string WithoutScale(const std::string& form) {
    return std::regex_replace(form, std::regex("Scale[A-Z][a-z]+ *= .*\n"), "");
}

class ScaleModes : public ::testing::TestWithParam<std::tuple<int, bool>> {
 protected:
    int Mode() const { return std::get<0>(GetParam()); }
    bool InBox() const { return std::get<1>(GetParam()); }
    std::string Form(int mode, const std::string& inner) const {
        return InMode(mode, inner, InBox());
    }
};

INSTANTIATE_TEST_SUITE_P(EveryMode, ScaleModes,
                         ::testing::Combine(::testing::Range(0, modes), ::testing::Bool()));

TEST_P(ScaleModes, PlacesAreInTwips) {
    EditedDesign form(FormOf(Form(Mode(), anyControls)));
    EXPECT_EQ(form.PlaceOf(u"M"), "900 x 600 at 2400, 300");
    EXPECT_EQ(form.PlaceOf(u"B"), "1215 x 375 at 120, 240");
    EXPECT_EQ(form.PlaceOf(u"S"), "960 x 480 at 1440, 1440");
}

TEST_P(ScaleModes, ThePictureIsThatOfTwips) {
    const QImage twips = PictureOf(Form(1, anyControls));
    EXPECT_NE(twips, PictureOf(Form(1, "")));
    EXPECT_EQ(PictureOf(Form(Mode(), anyControls)), twips);
}

TEST_P(ScaleModes, LinesLieWhereTheirUnitsSay) {
    const std::string falling = LineIn(Mode(), 300, 600, 3600, 2100);
    const std::string rising = LineIn(Mode(), 300, 2100, 3600, 600);
    EXPECT_EQ(EditedDesign(FormOf(Form(Mode(), falling))).PlaceOf(u"L"), "3300 x 1500 at 300, 600");
    const QImage fallingInTwips = PictureOf(Form(1, LineIn(1, 300, 600, 3600, 2100)));
    const QImage risingInTwips = PictureOf(Form(1, LineIn(1, 300, 2100, 3600, 600)));
    EXPECT_NE(fallingInTwips, risingInTwips);
    EXPECT_EQ(PictureOf(Form(Mode(), falling)), fallingInTwips);
    EXPECT_EQ(PictureOf(Form(Mode(), rising)), risingInTwips);
}

TEST_P(ScaleModes, EditsSaveTheLinesOfTwips) {
    const auto edited = [&](int mode) {
        DesignedForm form(FormOf(Form(mode, anyControls)));
        form.Select({u"M"});
        form.Key(Qt::Key_Right);
        form.Key(Qt::Key_Down, Qt::ShiftModifier);
        form.Drag(form.MiddleOf(u"B"), {16, 24});
        form.Select({u"S"});
        lumenform::DuplicateSelected(form.design);
        lumenform::AddNewControl(form.design, u"VB.TextBox",
                                 InBox() ? &form.Control(u"P") : nullptr, {240, 1800, 960, 360});
        EXPECT_TRUE(form.refused.empty());
        return WithoutScale(form.Saved());
    };
    const std::string twips = edited(1);
    EXPECT_THAT(twips, HasSubstr("Left = 2520\n"));
    EXPECT_THAT(twips, HasSubstr("Height = 720\n"));
    EXPECT_THAT(twips, HasSubstr("Left            =   240\n"));
    EXPECT_EQ(edited(Mode()), twips);
}

double NumberIn(const std::string& form, const std::string& name) {
    std::smatch found;
    EXPECT_TRUE(std::regex_search(form, found, std::regex("\n *" + name + " *= *([-0-9.E]+)")));
    return std::stod(found[1]);
}

void ExpectEnds(const std::string& saved, int mode, std::array<double, 4> twips) {
    const KnownScale scale = ScaleIn(mode);
    const auto near = [](double number) { return std::abs(number) * 1e-5 + 1e-4; };
    const auto expect = [&](const char* name, double expected) {
        EXPECT_NEAR(NumberIn(saved, name), expected, near(expected)) << name;
    };
    expect("X1", twips[0] / scale.x + scale.left);
    expect("Y1", twips[1] / scale.y + scale.top);
    expect("X2", twips[2] / scale.x + scale.left);
    expect("Y2", twips[3] / scale.y + scale.top);
}

TEST_P(ScaleModes, AMovedLineSavesItsUnits) {
    EditedDesign form(FormOf(Form(Mode(), LineIn(Mode(), 300, 2100, 3600, 600))));
    const std::string before = form.Text();
    form.design.Edit(QString(), [&] {
        form.Control(u"L").Move({.left = 420, .top = 600, .width = 3300, .height = 1500});
    });
    ExpectEnds(form.Text(), Mode(), {420, 2100, 3720, 600});
    EXPECT_EQ(std::regex_replace(form.Text(), std::regex("X[12] = .*\n"), ""),
              std::regex_replace(before, std::regex("X[12] = .*\n"), ""));
}

TEST_P(ScaleModes, APastedLineKeepsItsPlace) {
    EditedDesign from(FormOf(Form(Mode(), LineIn(Mode(), 300, 2100, 3600, 600))));
    from.Select({u"L"});
    const auto copied = lumenform::CopySelected(from.design);
    for (int mode = 0; mode < modes; ++mode) {
        EditedDesign to(FormOf(InMode(mode, "", false)));
        lumenform::Paste(to.design, *copied);
        ExpectEnds(to.Text(), mode, {300, 2100, 3600, 600});
    }
    lumenform::DuplicateSelected(from.design);
    EXPECT_EQ(from.PlaceOf(u"L1"), "3300 x 1500 at 420, 720");
}

TEST_P(ScaleModes, AResizedContainerKeepsItsUnits) {
    const std::string inner = LineIn(Mode(), 300, 2100, 3600, 600);
    DesignedForm form(FormOf(Form(Mode(), inner)));
    const std::string lineBefore = WithoutScale(form.Saved());
    if (InBox()) {
        form.design.Edit(QString(), [&] {
            form.Control(u"P").Move({.left = 0, .top = 0, .width = 4800, .height = 3600});
        });
    } else {
        form.Drag(form.FormHandle(1, 1), {20, 40}, Qt::AltModifier);
    }
    const KnownScale scale = ScaleIn(Mode());
    EXPECT_NEAR(NumberIn(form.Saved(), "ScaleWidth"), 4800 / scale.x, 0.01);
    EXPECT_NEAR(NumberIn(form.Saved(), "ScaleHeight"), 3600 / scale.y, 0.01);
    ExpectEnds(form.Saved(), Mode(), {300, 2100, 3600, 600});
    EXPECT_EQ(EditedDesign(FormOf(form.Saved())).PlaceOf(u"L"), "3300 x 1500 at 300, 600");
}

void ChooseMode(BrowsedForm& form, int mode) {
    constexpr std::array<const char*, modes> names = {
        "User", "Twips", "Points", "Pixels", "Characters", "Inches", "Millimetres", "Centimetres"};
    form.Choose(u"ScaleMode",
                std::to_string(mode) + " - " + names.at(static_cast<std::size_t>(mode)));
}

TEST_P(ScaleModes, AnotherUnitInThePropertyListLeavesTheLinesWhereTheyAre) {
    const std::string line = LineIn(Mode(), 300, 2100, 3600, 600);
    const std::string before = EditedDesign(FormOf(Form(Mode(), line + anyControls))).Text();
    for (int mode = 0; mode < modes; ++mode) {
        if (mode == Mode()) {
            continue;
        }
        BrowsedForm form(FormOf(Form(Mode(), line + anyControls)));
        form.Select(InBox() ? std::vector<Text>{u"P"} : std::vector<Text>());
        ChooseMode(form, mode);
        const std::string saved = form.Saved();
        EXPECT_NE(saved, before);
        const EditedDesign loaded(FormOf(saved));
        const Placement place = loaded.Control(u"L").Place();
        EXPECT_NEAR(place.left, 300, 0.1) << mode;
        EXPECT_NEAR(place.top, 600, 0.1) << mode;
        EXPECT_NEAR(place.width, 3300, 0.1) << mode;
        EXPECT_NEAR(place.height, 1500, 0.1) << mode;
        EXPECT_TRUE(lumenform::Rises(
            lumenform::BlockReader(loaded.design.Document(), loaded.Control(u"L").Block()),
            loaded.Control(u"L").Units()));
        if (mode != 0) {
            ExpectEnds(saved, mode, {300, 2100, 3600, 600});
            // The numbers in the file have few digits.
            EXPECT_NEAR(NumberIn(saved, "ScaleWidth") * ScaleIn(mode).x, 4500, 2);
            EXPECT_NEAR(NumberIn(saved, "ScaleHeight") * ScaleIn(mode).y, 3000, 2);
            EXPECT_THAT(saved, ::testing::Not(HasSubstr("ScaleLeft")));
        }
        EXPECT_EQ(form.design.History().count(), 1);
        form.design.History().undo();
        EXPECT_EQ(form.Saved(), before);
    }
}

TEST(ScaleMode, AnotherUnitLeavesThePictureAsItIs) {
    const std::string inner = LineIn(1, 300, 2100, 3600, 600) + anyControls;
    for (const bool inBox : {false, true}) {
        std::string saved = InMode(1, inner, inBox);
        const QImage before = PictureOf(saved);
        for (const int mode : {3, 7, 0, 6}) {
            {
                BrowsedForm form(FormOf(saved));
                form.Select(inBox ? std::vector<Text>{u"P"} : std::vector<Text>());
                ChooseMode(form, mode);
                saved = form.Saved();
            }
            EXPECT_EQ(PictureOf(saved), before) << mode;
        }
    }
}

TEST(ScaleMode, TheSameUnitChangesNothing) {
    BrowsedForm form(FormOf(InMode(3, LineIn(3, 300, 2100, 3600, 600), false)));
    const std::string before = form.Saved();
    ChooseMode(form, 3);
    EXPECT_EQ(form.Saved(), before);
    EXPECT_EQ(form.design.History().count(), 0);
}

TEST(ScaleMode, AnArrowKeyMovesAControlOfAPixelFormByAGridStep) {
    DesignedForm form(FormOf(InMode(3, anyControls, false)));
    const std::string before = form.Saved();
    form.Select({u"M"});
    form.Key(Qt::Key_Left);
    EXPECT_THAT(form.ChangedSince(before), ElementsAre("Left = 2280"));
}

TEST(ScaleMode, ALineOfABorderedBoxWithItsOwnUnitsEndsAtTheBorder) {
    const LoadedView view(FormWith(
        "   Begin VB.PictureBox P\nHeight = 1500\nLeft = 0\nScaleHeight = 10\nScaleMode = 0\n"
        "ScaleWidth = 10\nTop = 0\nWidth = 3000\n"
        "Begin VB.Line L\nX1 = 0\nX2 = 10\nY1 = 0\nY2 = 10\nEnd\nEnd\n"));
    const QSize inside = view.Control(u"P").Inside().widget.size();
    EXPECT_LT(inside.width(), 200);
    const Placement line = view.Control(u"L").Place();
    EXPECT_EQ(QSizeF(line.width / 15, line.height / 15), QSizeF(inside));
}

TEST(ScaleMode, TheClientSizeInThePropertyListKeepsOwnUnits) {
    BrowsedForm form(FormOf(InMode(0, "", false)));
    form.Type(u"ClientWidth", "5400");
    EXPECT_THAT(form.Saved(), HasSubstr("ScaleWidth = 60\n"));
    EXPECT_THAT(form.Saved(), HasSubstr("ScaleHeight = -100\n"));
}

TEST(ScaleMode, FarCoordinatesEndThePasting) {
    EditedDesign form(
        FormOf(FormText("ScaleHeight = 10\nScaleLeft = 1E+12\nScaleMode = 0\nScaleTop = 1E+12\n"
                        "ScaleWidth = 10\n"
                        "Begin VB.Line L\nX1 = 1E+12\nX2 = 1E+12\nY1 = 1E+12\nY2 = 1E+12\nEnd\n",
                        false)));
    form.Select({u"L"});
    lumenform::DuplicateSelected(form.design);
    EXPECT_EQ(form.PlaceOf(u"L1"), form.PlaceOf(u"L"));
}

}  // namespace
}  // namespace lumenkit::testing
