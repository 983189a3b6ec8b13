// The look of the canvas: the form on its desk, the grid under the controls, the handles over them.
#include <QApplication>
#include <QScrollBar>

#include <gmock/gmock.h>

#include "tests/apps/lumenform/designed_form.h"

namespace lumenkit::testing {
namespace {

// The form as it is on the screen, in device pixels. Points count from the corner of its client
// area.
class Picture {
 public:
    explicit Picture(const DesignedForm& canvas)
        : client_(&canvas.design.View().Client()),
          desk_(canvas.canvas->widget()),
          image_(desk_->grab().toImage()) {}

    // Returns the colour at a point.
    QColor At(QPoint onForm) const { return image_.pixelColor(OnImage(onForm)); }

    // Whether a pixel at this point has another colour than the background. On a scaled screen, the
    // adjacent pixels of the device count too.
    bool HasDotAt(QPoint onForm, QColor background) const {
        const QPoint at = OnImage(onForm);
        const int reach = image_.devicePixelRatioF() == 1 ? 0 : 1;
        for (int x = at.x() - reach; x <= at.x() + reach; ++x) {
            for (int y = at.y() - reach; y <= at.y() + reach; ++y) {
                if (image_.pixelColor(x, y) != background) {
                    return true;
                }
            }
        }
        return false;
    }

 private:
    QPoint OnImage(QPoint onForm) const {
        return (QPointF(client_->mapTo(desk_, onForm)) * image_.devicePixelRatioF()).toPoint();
    }

    const QWidget* client_;
    QWidget* desk_;
    QImage image_;
};

const std::string white = "   BackColor = &H00FFFFFF&\n";

TEST(CanvasLook, TheGridHasADotAtEachStep) {
    DesignedForm canvas(white);
    for (const float step : {120.0F, 240.0F}) {
        canvas.canvas->SetGrid({.step = step});
        const int pixels = static_cast<int>(step) / 15;
        const Picture picture(canvas);
        for (const int index : {0, 1, 2, 5, 10}) {
            const QPoint dot(index * pixels, (index + 1) * pixels);
            EXPECT_TRUE(picture.HasDotAt(dot, Qt::white)) << step << ' ' << index;
            EXPECT_EQ(picture.At(dot + QPoint(pixels / 2, 0)), QColor(Qt::white));
            EXPECT_EQ(picture.At(dot + QPoint(0, pixels / 2)), QColor(Qt::white));
        }
    }
}

TEST(CanvasLook, TheGridLiesUnderTheControlsAndInContainers) {
    const DesignedForm canvas(
        white +
        "   Begin VB.PictureBox P\n BackColor = &H00000000&\n BorderStyle = 0\n"
        " Left = 300\n Top = 300\n Width = 1800\n Height = 1800\n"
        "      Begin VB.PictureBox Q\n BackColor = &H00FFFFFF&\n"
        " BorderStyle = 0\n Left = 600\n Top = 600\n Width = 600\n"
        " Height = 600\n End\n"
        "   End\n"
        "   Begin VB.Label L\n BackColor = &H00FF0000&\n Left = 2400\n"
        " Top = 300\n Width = 900\n Height = 900\n End\n");
    const Picture picture(canvas);
    EXPECT_TRUE(picture.HasDotAt({20 + 8, 20 + 8}, Qt::black)) << "a bright dot on a dark box";
    EXPECT_EQ(picture.At({20 + 12, 20 + 12}), QColor(Qt::black));
    EXPECT_TRUE(picture.HasDotAt({20 + 40 + 8, 20 + 40 + 8}, Qt::white)) << "in the inner box";
    EXPECT_EQ(picture.At({168, 32}), QColor(Qt::blue)) << "a label covers the form's dots";
}

TEST(CanvasLook, TheGridCanBeHidden) {
    DesignedForm canvas(white);
    canvas.canvas->SetGrid({.isShown = false});
    EXPECT_EQ(Picture(canvas).At({8, 8}), QColor(Qt::white));
    canvas.canvas->SetGrid({.step = 30});
    EXPECT_EQ(Picture(canvas).At({8, 8}), QColor(Qt::white)) << "dots two pixels apart are none";
}

TEST(CanvasLook, TheGridOfAnOddStepFollowsThePixelsOfControls) {
    DesignedForm canvas(white);
    canvas.canvas->SetGrid({.step = 100});
    const Picture picture(canvas);
    for (const int index : {1, 2, 10, 31}) {
        EXPECT_TRUE(picture.HasDotAt({qRound(index * 100 / 15.0), 0}, Qt::white)) << index;
    }
}

TEST(CanvasLook, OnlyTheLastSelectedControlHasFilledHandles) {
    DesignedForm canvas(
        white +
        "   Begin VB.Label A\n Left = 600\n Top = 600\n Width = 600\n Height = 600\n"
        " End\n"
        "   Begin VB.Label B\n Left = 2400\n Top = 600\n Width = 600\n"
        " Height = 600\n End\n");
    canvas.Select({u"A", u"B"});
    const QPalette palette = canvas.canvas->palette();
    const Picture picture(canvas);
    EXPECT_EQ(picture.At(canvas.HandleOf(u"A", -1, -1)), palette.color(QPalette::HighlightedText));
    EXPECT_EQ(picture.At(canvas.HandleOf(u"B", 1, 1)), palette.color(QPalette::Highlight));
    canvas.Select({u"B"});
    EXPECT_EQ(Picture(canvas).At(canvas.HandleOf(u"A", -1, -1) + QPoint(1, 1)), QColor(Qt::white));
}

TEST(CanvasLook, TheFormHasATitleBar) {
    const auto topOf = [](const DesignedForm& canvas) { return canvas.design.View().y(); };
    const DesignedForm ordinary("   Caption = \"Orders\"\n");
    const DesignedForm part(FormOf("VERSION 5.00\nBegin VB.UserControl Part\nEnd\n"));
    EXPECT_GT(topOf(ordinary) - topOf(part), ordinary.canvas->fontMetrics().height());
}

TEST(CanvasLook, ALargeFormScrolls) {
    DesignedForm canvas(
        FormOf("VERSION 5.00\nBegin VB.Form Form1\n   ClientHeight = 15000\n"
               "   ClientWidth = 18000\n"
               "   Begin VB.TextBox Far\n Left = 17000\n Top = 14000\n Width = 600\n"
               " Height = 300\n TabIndex = 0\n End\nEnd\n"));
    const QScrollBar* bar = canvas.canvas->verticalScrollBar();
    EXPECT_GT(bar->maximum(), 400);
    EXPECT_EQ(bar->value(), 0);
    canvas.Key(Qt::Key_Tab);
    EXPECT_GT(bar->value(), 400) << "to what Tab selects";
}

TEST(CanvasLook, TheCanvasGivesTheViewBack) {
    Surface surface;
    lumenform::FormDesign design(surface.context, FormWith("   Begin VB.Label A\n End\n"));
    auto canvas = std::make_unique<lumenform::Canvas>(design);
    EXPECT_TRUE(canvas->isAncestorOf(&design.View()));
    design.Restructure("Caption", [&] {
        design.Document().Root().Set(u"Caption", forms::TextLiteral(u"Another"));
        return std::vector<Text>();
    });
    EXPECT_EQ(design.View().Caption(), u"Another");
    EXPECT_TRUE(canvas->isAncestorOf(&design.View()));
    canvas.reset();
    EXPECT_EQ(design.View().parentWidget(), nullptr);
    EXPECT_EQ(design.View().Controls().size(), 1);
}

}  // namespace
}  // namespace lumenkit::testing
