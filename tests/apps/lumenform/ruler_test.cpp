// The rulers of the canvas, and scrolling at its edges.
#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTest>
#include <cmath>
#include <random>

#include <gmock/gmock.h>

#include "tests/apps/lumenform/designed_form.h"
#include "tests/apps/lumenform/grabbed.h"
#include "tests/apps/lumenform/opened_window.h"

namespace lumenkit::testing {
namespace {

using lumenform::Ruler;
using lumenform::RulerSteps;

class RuledWindowTest : public OpenedWindow {};

// ---- Steps

// The width of a label: a digit has seven pixels.
double RoomOf(double step, double farthest) {
    int digits = 1;
    while (farthest >= 10) {
        farthest /= 10;
        ++digits;
    }
    for (; step < 1 - 1e-9; step *= 10) {
        digits += 1;
    }
    return 7 * digits + 6;
}

// Tries all steps from the smallest, and counts the ticks by trying, too.
RulerSteps LiteralSteps(double pixelsPerUnit, double farthest) {
    for (int power = -6; power <= 12; ++power) {
        for (const int factor : {1, 2, 5}) {
            double step = factor;
            for (int times = 0; times < std::abs(power); ++times) {
                step = power < 0 ? step / 10 : step * 10;
            }
            const double pixels = step * pixelsPerUnit;
            if (pixels < 5 || pixels < RoomOf(step, farthest)) {
                continue;
            }
            int parts = 1;
            for (const int tried : {2, 4, 5, 10}) {
                // A tick is at 1, 2 or 5 times a power of ten, as a label is.
                const bool isRound = factor == 1   ? tried != 4
                                     : factor == 2 ? tried == 2 || tried == 4
                                                   : tried == 5;
                parts = isRound && pixels / tried >= 5 ? tried : parts;
            }
            return {step, parts};
        }
    }
    return {};
}

TEST(RulerSteps, AreAsALiteralSearchFindsThem) {
    std::mt19937 random(3);
    std::uniform_int_distribution<int> percent(25, 400);
    std::uniform_real_distribution<double> digits(0, 6);
    // Pixels per twip, point, pixel, character, inch, millimetre, centimetre and unit of its own.
    for (const double unit :
         {1 / 15.0, 20 / 15.0, 1.0, 8.0, 16.0, 96.0, 3.78, 37.8, 0.0137, 411.0}) {
        for (int round = 0; round < 300; ++round) {
            const double pixels = unit * percent(random) / 100;
            const double farthest = std::pow(10, digits(random));
            const RulerSteps found = lumenform::RulerStepsFor(
                pixels, [&](const RulerSteps& steps) { return RoomOf(steps.labels, farthest); });
            const RulerSteps expected = LiteralSteps(pixels, farthest);
            EXPECT_NEAR(found.labels, expected.labels, expected.labels * 1e-9) << pixels;
            EXPECT_EQ(found.parts, expected.parts) << pixels << " pixels, step " << found.labels;
        }
    }
}

TEST(RulerSteps, LabelsHaveTheDigitsTheyNeed) {
    EXPECT_EQ((RulerSteps{500, 5}.Decimals()), 0);
    EXPECT_EQ((RulerSteps{1, 10}.Decimals()), 0);
    EXPECT_EQ((RulerSteps{0.5, 5}.Decimals()), 1);
    EXPECT_EQ((RulerSteps{0.02, 4}.Decimals()), 2);
}

// ---- The rulers of a form

class RuledForm : public DesignedForm {
 public:
    explicit RuledForm(const std::string& inner = {}, int percent = 100) : DesignedForm(inner) {
        canvas->ShowRulers(true);
        canvas->SetZoom(percent);
        canvas->horizontalScrollBar()->setValue(0);
        canvas->verticalScrollBar()->setValue(0);
        QApplication::processEvents();
    }
    const Ruler& Upper() const { return canvas->GetRulers().Upper(); }
    const Ruler& Left() const { return canvas->GetRulers().Left(); }
    // Returns the place of a point of the form on the ruler.
    int Across(double pixels) const {
        const QPointF onView = design.View().Client().mapTo(&design.View(), QPoint());
        const QPointF onDesk = canvas->GetZoom().ToDesk(onView + QPointF(pixels, 0));
        return Upper().mapFromGlobal(canvas->widget()->mapToGlobal(onDesk.toPoint())).x();
    }
};

// Returns the place of a label. Fails without it.
double PlaceOf(const Ruler& ruler, const QString& text) {
    for (const Ruler::Label& label : ruler.Labels()) {
        if (label.text == text) {
            return label.place;
        }
    }
    ADD_FAILURE() << "no label " << text.toStdString();
    return 0;
}

TEST(Rulers, BeginAtTheCornerOfTheForm) {
    for (const int percent : {25, 100, 200, 400}) {
        const RuledForm sheet({}, percent);
        EXPECT_NEAR(PlaceOf(sheet.Upper(), "0"), sheet.Across(0), 1) << percent;
    }
}

TEST(Rulers, CountInTheUnitOfTheForm) {
    struct Mode {
        const char* line;
        QString label;
        double pixels;
    };
    for (const Mode& mode :
         {Mode{"   ScaleMode = 1\n", "1000", 1000 / 15.0},
          Mode{"   ScaleMode = 2\n", "100", 100 * 20 / 15.0},
          Mode{"   ScaleMode = 3\n", "100", 100.0}, Mode{"   ScaleMode = 5\n", "1.0", 96.0},
          Mode{"   ScaleMode = 6\n", "20", 20 * 56.6929 / 15},
          Mode{"   ScaleMode = 7\n", "2", 2 * 566.929 / 15},
          Mode{"   ScaleMode = 0\n   ScaleLeft = -100\n   ScaleTop = 0\n"
               "   ScaleWidth = 200\n   ScaleHeight = 100\n",
               "0", 150}}) {
        const RuledForm sheet(mode.line);
        EXPECT_NEAR(PlaceOf(sheet.Upper(), mode.label), sheet.Across(mode.pixels), 1.01)
            << mode.line;
    }
}

TEST(Rulers, LabelsNeverReachEachOther) {
    for (const char* const mode : {"1", "2", "3", "5", "6", "7"}) {
        RuledForm sheet(std::string("   ScaleMode = ") + mode + "\n");
        for (int percent = 25; percent <= 400; percent += 15) {
            sheet.canvas->SetZoom(percent);
            for (const Ruler* const ruler : {&sheet.Upper(), &sheet.Left()}) {
                const std::vector<Ruler::Label> labels = ruler->Labels();
                for (std::size_t index = 1; index < labels.size(); ++index) {
                    const int width =
                        ruler->fontMetrics().horizontalAdvance(labels[index - 1].text);
                    EXPECT_GE(labels[index].place - labels[index - 1].place, width + 3)
                        << mode << ' ' << percent;
                }
            }
        }
    }
}

TEST(Rulers, FollowScrolling) {
    RuledForm sheet({}, 400);
    const double before = PlaceOf(sheet.Upper(), "1000");
    sheet.canvas->horizontalScrollBar()->setValue(150);
    EXPECT_EQ(before - PlaceOf(sheet.Upper(), "1000"), 150);
}

const std::string ruledControl =
    "   Begin VB.PictureBox P\n Left = 1500\n Top = 750\n Width = 900\n Height = 600\n End\n";

// The part of the ruler that looks different than before.
TEST(Rulers, ShadeTheSelection) {
    RuledForm sheet(ruledControl, 200);
    auto& upper = const_cast<Ruler&>(sheet.Upper());
    const Grabbed before(upper);
    sheet.Select({u"P"});
    const QRect shaded = Grabbed(upper).DifferenceFrom(before);
    EXPECT_NEAR(shaded.left(), sheet.Across(100), 1);
    EXPECT_NEAR(shaded.right() + 1, sheet.Across(160), 1);
    sheet.Key(Qt::Key_Right);
    EXPECT_NEAR(Grabbed(upper).DifferenceFrom(before).left(), sheet.Across(104), 8.01);
    sheet.design.Select({});
    EXPECT_TRUE(Grabbed(upper).DifferenceFrom(before).isEmpty());
}

// Collects what is painted.
class PaintedPart final : public QObject {
 public:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            part |= static_cast<QPaintEvent*>(event)->rect();
        }
        return false;
    }
    QRect part;
};

TEST(Rulers, MarkThePointerAndPaintNothingElse) {
    RuledForm sheet;
    auto& upper = const_cast<Ruler&>(sheet.Upper());
    const Grabbed before(upper);
    sheet.MoveTo({50, 40});
    const QRect mark = Grabbed(upper).DifferenceFrom(before);
    EXPECT_NEAR(mark.left(), sheet.Across(50), 1);
    EXPECT_LE(mark.width(), 2);
    QApplication::processEvents();
    PaintedPart painted;
    upper.installEventFilter(&painted);
    sheet.MoveTo({54, 40});
    QTest::qWait(50);
    EXPECT_FALSE(painted.part.isEmpty());
    EXPECT_LE(painted.part.width(), 12);
}

TEST_F(RuledWindowTest, TheRulersAreOffAtFirstAndRemembered) {
    window.Load(Copy("order"));
    const lumenform::Canvas& canvas = window.Bench()->GetCanvas();
    EXPECT_FALSE(canvas.GetRulers().Upper().isVisible());
    const int width = canvas.viewport()->width();
    Command("Rulers").trigger();
    EXPECT_TRUE(canvas.GetRulers().Upper().isVisible());
    EXPECT_EQ(canvas.viewport()->width(), width - canvas.GetRulers().Thickness());
    EXPECT_TRUE(settings.value("rulers/shown").toBool());
    window.Load(Copy("memo"));
    EXPECT_TRUE(window.Bench()->GetCanvas().GetRulers().Upper().isVisible());
}

// ---- Edges of the view

const std::string largeForm =
    "VERSION 5.00\nBegin VB.Form Form1\n   ClientHeight = 45000\n   ClientWidth = 45000\n"
    "   Begin VB.PictureBox P\n Left = 3000\n Top = 3000\n Width = 1500\n Height = 1500\n End\n"
    "End\n";

TEST(EdgeScroll, IsFasterFartherOut) {
    using lumenform::EdgeScroll;
    EXPECT_EQ(EdgeScroll::StepAt(250, 500), 0);
    EXPECT_EQ(EdgeScroll::StepAt(16, 500), 0);
    EXPECT_LT(EdgeScroll::StepAt(15, 500), 0);
    EXPECT_LT(EdgeScroll::StepAt(-50, 500), EdgeScroll::StepAt(5, 500));
    EXPECT_GT(EdgeScroll::StepAt(499, 500), 0);
    EXPECT_GT(EdgeScroll::StepAt(560, 500), EdgeScroll::StepAt(499, 500));
    EXPECT_EQ(EdgeScroll::StepAt(5000, 500), EdgeScroll::StepAt(9000, 500)) << "a largest step";
}

TEST(EdgeScroll, GoesOnWhileThePointerRests) {
    for (const int percent : {50, 100, 200}) {
        DesignedForm sheet(FormOf(largeForm));
        sheet.canvas->SetZoom(percent);
        sheet.canvas->horizontalScrollBar()->setValue(0);
        sheet.canvas->verticalScrollBar()->setValue(0);
        lumenform::Glass& glass = sheet.canvas->GetGlass();
        const QScrollBar& bar = *sheet.canvas->horizontalScrollBar();
        sheet.Press(sheet.MiddleOf(u"P"));
        // In the viewport the pointer rests at its right edge.
        const QPoint edge(sheet.canvas->viewport()->width() - 2, 200);
        const QPoint at = glass.mapFrom(sheet.canvas->viewport(), edge);
        QMouseEvent move(QEvent::MouseMove, at, glass.mapToGlobal(at), Qt::NoButton, Qt::LeftButton,
                         {});
        QApplication::sendEvent(&glass, &move);
        const float before = sheet.PlaceOf(u"P").left;
        EXPECT_EQ(bar.value(), 0);
        EXPECT_TRUE(QTest::qWaitFor([&] { return bar.value() >= 40; }));
        EXPECT_NEAR(sheet.PlaceOf(u"P").left - before, bar.value() * 1500.0 / percent, 121)
            << "the control stays under the mouse";
        const QPoint now = glass.mapFrom(sheet.canvas->viewport(), edge);
        QTest::mouseRelease(&glass, Qt::LeftButton, {}, now);
        const int after = bar.value();
        QTest::qWait(80);
        EXPECT_EQ(bar.value(), after) << "until the button is released";
        EXPECT_EQ(sheet.design.History().count(), 1);
    }
}

TEST(EdgeScroll, ThePlaceIsSeenAtEachEdge) {
    DesignedForm sheet(FormOf(largeForm));
    lumenform::Glass& glass = sheet.canvas->GetGlass();
    auto* const label = glass.findChild<QLabel*>();
    sheet.Press(sheet.MiddleOf(u"P"));
    const QRect room = sheet.canvas->viewport()->rect();
    for (const QPoint edge : {room.bottomRight(), room.topRight(), room.bottomLeft(),
                              room.bottomRight() + QPoint(50, 50), QPoint(-30, -30)}) {
        const QPoint at = glass.mapFrom(sheet.canvas->viewport(), edge);
        QMouseEvent move(QEvent::MouseMove, at, glass.mapToGlobal(at), Qt::NoButton, Qt::LeftButton,
                         {});
        QApplication::sendEvent(&glass, &move);
        ASSERT_TRUE(label->isVisible());
        EXPECT_TRUE(
            room.contains(QRect(label->mapTo(sheet.canvas->viewport(), QPoint()), label->size())))
            << edge.x() << ", " << edge.y();
        EXPECT_FALSE(label->geometry().contains(at)) << "beside the pointer";
    }
    sheet.Key(Qt::Key_Escape);
}

TEST(EdgeScroll, ThePlaceOfAPointerAtRestIsToldWhenTheFormScrolls) {
    DesignedForm sheet(FormOf(largeForm));
    QPointF told;
    QObject::connect(sheet.canvas, &lumenform::Canvas::PointerMoved,
                     [&](QPointF twips) { told = twips; });
    sheet.MoveTo({100, 100});
    EXPECT_EQ(told, QPointF(1500, 1500));
    sheet.canvas->verticalScrollBar()->setValue(60);
    EXPECT_EQ(told, QPointF(1500, 2400));
}

TEST_F(RuledWindowTest, ATrialRunKeepsThePlaceOfTheForm) {
    window.resize(900, 600);
    window.Load(Copy("order"));
    lumenform::Canvas& canvas = window.Bench()->GetCanvas();
    canvas.SetZoom(400);
    QApplication::processEvents();
    for (const bool atEnd : {true, false}) {
        QScrollBar& down = *canvas.verticalScrollBar();
        QScrollBar& across = *canvas.horizontalScrollBar();
        ASSERT_GT(down.maximum(), 100);
        down.setValue(atEnd ? down.maximum() : 50);
        across.setValue(atEnd ? across.maximum() : 30);
        const QPoint before(across.value(), down.value());
        window.Run(true);
        QApplication::processEvents();
        ASSERT_NE(window.Running(), nullptr);
        window.Run(false);
        QApplication::processEvents();
        EXPECT_EQ(QPoint(across.value(), down.value()), before);
    }
}

TEST(AccessKeys, AreUnderlinedInTheDesigner) {
    const std::string named =
        "   Begin VB.Label L\n Caption = \"&Name\"\n Left = 120\n Top = 120\n Width = 900\n"
        " Height = 300\n TabIndex = 0\n End\n"
        "   Begin VB.TextBox T\n Left = 1200\n Top = 120\n Width = 900\n Height = 300\n"
        " TabIndex = 1\n End\n";
    const DesignedForm sheet(named);
    const LoadedView running(FormWith(named));
    auto& designed = sheet.Control(u"L").Widget();
    sheet.canvas->SetGrid({.isShown = false});
    EXPECT_EQ(dynamic_cast<QLabel&>(designed).text(), As<QLabel>(running, u"L").text());
    EXPECT_NE(dynamic_cast<QLabel&>(designed).buddy(), nullptr);
    EXPECT_EQ(designed.grab().toImage(), As<QLabel>(running, u"L").grab().toImage());
    EXPECT_EQ(sheet.Control(u"T").Widget().focusPolicy(), Qt::NoFocus);
}

}  // namespace
}  // namespace lumenkit::testing
