// The form at other scales than 100 % on the canvas.
#include <QApplication>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <random>

#include <gmock/gmock.h>

#include "apps/lumenform/design/model/arrange.h"
#include "apps/lumenform/form_view/likeness/tab_pages.h"
#include "tests/apps/lumenform/designed_form.h"
#include "tests/apps/lumenform/grabbed.h"
#include "tests/apps/lumenform/opened_window.h"

namespace lumenkit::testing {
namespace {

using host::Placement;
using lumenform::Zoom;
using ::testing::ElementsAre;

constexpr std::array zooms = {25, 75, 100, 200, 400};

const std::string zoomedControls =
    "   Begin VB.CommandButton A\n      Height = 600\n      Left = 240\n      Top = 240\n"
    "      Width = 1200\n   End\n"
    "   Begin VB.Frame F\n      Height = 1800\n      Left = 1800\n      Top = 120\n"
    "      Width = 2400\n"
    "      Begin VB.TextBox T\n         Height = 480\n         Left = 240\n"
    "         Top = 360\n         Width = 1200\n      End\n"
    "   End\n";

// A form at a scale, and a mouse whose points are pixels of the screen.
class Zoomed : public DesignedForm {
 public:
    explicit Zoomed(int percent, const std::string& inner = zoomedControls) : DesignedForm(inner) {
        canvas->SetZoom(percent);
        QApplication::processEvents();
    }

    QRect OnScreen(TextView name) const {
        const QWidget& widget = Control(name).Widget();
        return canvas->GetZoom().ToDesk(
            QRect(widget.mapTo(&design.View(), QPoint()), widget.size()));
    }
    void Send(QEvent::Type type, QPoint at, Qt::KeyboardModifiers held = {}) const {
        lumenform::Glass& glass = canvas->GetGlass();
        QMouseEvent event(type, at, glass.mapToGlobal(at),
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, held);
        QApplication::sendEvent(&glass, &event);
    }
    void DragOnScreen(QPoint from, QPoint by, Qt::KeyboardModifiers held = {}) const {
        Send(QEvent::MouseButtonPress, from, held);
        Send(QEvent::MouseMove, from + by / 2, held);
        Send(QEvent::MouseMove, from + by, held);
        Send(QEvent::MouseButtonRelease, from + by, held);
    }
    void ClickOnScreen(QPoint at) const {
        Send(QEvent::MouseButtonPress, at);
        Send(QEvent::MouseButtonRelease, at);
    }
    // Returns the client area of the form as it is on the screen.
    QImage Picture() const {
        QApplication::processEvents();
        const lumenform::ClientArea& client = design.View().Client();
        const QRect rect =
            canvas->GetZoom().ToDesk(QRect(client.mapTo(&design.View(), QPoint()), client.size()));
        return Grabbed(*canvas->widget()).Part(rect);
    }
    void WheelAt(QPoint inViewport, int steps) const {
        QWidget& viewport = *canvas->viewport();
        QWheelEvent event(inViewport, viewport.mapToGlobal(inViewport), {}, {0, 120 * steps},
                          Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&viewport, &event);
    }
};

// ---- The transformation

TEST(Zoom, ConvertsThereAndBack) {
    std::mt19937 random(7);
    std::uniform_int_distribution<int> percent(Zoom::smallest, Zoom::largest);
    std::uniform_int_distribution<int> place(-3000, 3000);
    std::uniform_int_distribution<int> length(1, 400);
    for (int round = 0; round < 2000; ++round) {
        const Zoom zoom{percent(random), {place(random), place(random)}};
        const QPointF at(place(random) / 7.0, place(random) / 7.0);
        const QPointF back = zoom.ToView(zoom.ToDesk(at));
        EXPECT_NEAR(back.x(), at.x(), 1e-6);
        EXPECT_NEAR(back.y(), at.y(), 1e-6);
        const QRect rect(place(random), place(random), length(random), length(random));
        const QRect beside(rect.topRight() + QPoint(1, 0), QSize(length(random), rect.height()));
        const QRect shown = zoom.ToDesk(rect);
        EXPECT_EQ(shown.left() + shown.width(), zoom.ToDesk(beside).left()) << "no gap, no overlap";
        EXPECT_NEAR(shown.width(), rect.width() * zoom.percent / 100.0, 1.001);
        for (const QPoint part : {shown.topLeft(), shown.center(), shown.bottomRight()}) {
            EXPECT_TRUE(shown.isEmpty() ||
                        rect.adjusted(-1, -1, 1, 1).contains(zoom.PixelAt(part)));
        }
    }
}

// The pixel of the view that a pixel of the desk shows, found by trying.
TEST(Zoom, FindsThePixelUnderTheMouse) {
    for (const int percent : zooms) {
        const Zoom zoom{percent, {25, 40}};
        for (int x = -30; x < 200; ++x) {
            int found = -1000;
            for (int column = -300; column < 900; ++column) {
                const double left = 25 + column * percent / 100.0;
                const double right = 25 + (column + 1) * percent / 100.0;
                found = left <= x + 0.5 && x + 0.5 < right ? column : found;
            }
            EXPECT_EQ(zoom.PixelAt({x, 40}).x(), found) << percent << " %, " << x;
        }
    }
}

TEST(Zoom, StepsGoUpAndDownAndEnd) {
    std::vector<int> up;
    for (int percent = Zoom::smallest; percent != Zoom::largest;) {
        percent = Zoom::Next(percent, true);
        up.push_back(percent);
    }
    EXPECT_THAT(up, ElementsAre(50, 75, 100, 150, 200, 400));
    EXPECT_EQ(Zoom::Next(400, true), 400);
    EXPECT_EQ(Zoom::Next(25, false), 25);
    EXPECT_EQ(Zoom::Next(87, true), 100) << "after a fit";
    EXPECT_EQ(Zoom::Next(87, false), 75);
}

// ---- Work at each scale

class AtZoom : public ::testing::TestWithParam<int> {
 protected:
    double Factor() const { return GetParam() / 100.0; }
    // Converts twips to pixels of the screen.
    int Pixels(double twips) const { return static_cast<int>(std::round(twips / 15 * Factor())); }
};
INSTANTIATE_TEST_SUITE_P(Scales, AtZoom, ::testing::ValuesIn(zooms));

TEST_P(AtZoom, ADragMovesByItsTwips) {
    Zoomed sheet(GetParam());
    sheet.DragOnScreen(sheet.OnScreen(u"A").center(), {Pixels(720), Pixels(1440)}, Qt::AltModifier);
    EXPECT_EQ(sheet.PlaceOf(u"A"), (Placement{960, 1680, 1200, 600}));
    EXPECT_EQ(sheet.design.History().text(0), "Move A");
}

TEST_P(AtZoom, ADragStopsAtTheGrid) {
    Zoomed sheet(GetParam());
    sheet.DragOnScreen(sheet.OnScreen(u"A").center(), {Pixels(740), Pixels(1420)});
    EXPECT_EQ(sheet.PlaceOf(u"A"), (Placement{960, 1680, 1200, 600}));
}

TEST_P(AtZoom, TheShortestDragIsTheSameOnTheScreen) {
    Zoomed sheet(GetParam());
    const QPoint at = sheet.OnScreen(u"A").center();
    sheet.DragOnScreen(at, {3, 0}, Qt::AltModifier);
    EXPECT_EQ(sheet.design.History().count(), 0);
    sheet.DragOnScreen(at, {4, 0}, Qt::AltModifier);
    EXPECT_EQ(sheet.design.History().count(), 1);
    EXPECT_NEAR(sheet.PlaceOf(u"A").left, 240 + 60 / Factor(), 0.01);
}

TEST_P(AtZoom, AHandleSizes) {
    Zoomed sheet(GetParam());
    sheet.Select({u"A"});
    const QRect rect = sheet.OnScreen(u"A");
    sheet.DragOnScreen(rect.bottomRight() + QPoint(4, 4), {Pixels(600), Pixels(480)},
                       Qt::AltModifier);
    EXPECT_EQ(sheet.PlaceOf(u"A"), (Placement{240, 240, 1800, 1080}));
    EXPECT_EQ(sheet.design.History().text(0), "Size A");
}

TEST_P(AtZoom, TheFormIsSizedByItsHandle) {
    Zoomed sheet(GetParam());
    sheet.design.Select({});
    const QSize before = sheet.design.View().Client().size();
    const QPoint corner = sheet.OnGlass(QPoint(before.width(), before.height()));
    sheet.DragOnScreen(corner + QPoint(3, 3), {Pixels(1200), Pixels(720)}, Qt::AltModifier);
    // The form is drawn anew at its new size.
    EXPECT_EQ(sheet.design.View().Client().size(), before + QSize(80, 48));
    QApplication::processEvents();
    EXPECT_GE(sheet.canvas->widget()->width(), (before.width() + 80) * Factor());
}

TEST_P(AtZoom, ABandSelectsWhatItTouches) {
    Zoomed sheet(GetParam());
    const QPoint above = sheet.OnGlass({4, 4});
    sheet.DragOnScreen(above, sheet.OnScreen(u"A").topLeft() + QPoint(3, 3) - above);
    EXPECT_THAT(sheet.Selected(), ElementsAre("A"));
    sheet.design.Select({});  // no handle is in the way
    sheet.DragOnScreen(above, sheet.OnScreen(u"F").center() - above);
    EXPECT_THAT(sheet.Selected(), ElementsAre("A", "F"));
}

TEST_P(AtZoom, AControlIsDrawnAtItsPlace) {
    Zoomed sheet(GetParam());
    Placement drawn;
    const lumenform::LiveControl* in = nullptr;
    QObject::connect(sheet.canvas, &lumenform::Canvas::Drawn,
                     [&](const Text&, lumenform::LiveControl* container, const Placement& place) {
                         drawn = place;
                         in = container;
                     });
    sheet.canvas->BeginDrawing(u"VB.TextBox");
    sheet.DragOnScreen(sheet.OnGlass({16, 96}), {Pixels(1200), Pixels(600)});
    EXPECT_EQ(drawn, (Placement{240, 1440, 1200, 600}));
    EXPECT_EQ(in, nullptr);
    sheet.canvas->BeginDrawing(u"VB.TextBox");
    const QPoint inFrame = sheet.OnScreen(u"F").topLeft() + QPoint(Pixels(240), Pixels(960));
    sheet.DragOnScreen(inFrame, {Pixels(1200), Pixels(600)});
    EXPECT_EQ(in, &sheet.Control(u"F"));
    EXPECT_NEAR(drawn.left, 240, 60) << "counted from the inside of the frame";
    EXPECT_EQ(drawn.width, 1200);
}

TEST_P(AtZoom, AControlIsDroppedIntoAContainer) {
    Zoomed sheet(GetParam());
    const QPoint from = sheet.OnScreen(u"A").center();
    const QPoint to = sheet.OnScreen(u"F").center() + QPoint(0, Pixels(480));
    sheet.DragOnScreen(from, to - from);
    EXPECT_EQ(sheet.design.History().text(0), "Move A into F");
    EXPECT_EQ(lumenform::ContainerOf(sheet.design, sheet.Control(u"A")), &sheet.Control(u"F"));
}

TEST_P(AtZoom, ADoubleClickActivates) {
    Zoomed sheet(GetParam());
    const lumenform::LiveControl* activated = nullptr;
    QObject::connect(sheet.canvas, &lumenform::Canvas::Activated,
                     [&](const lumenform::LiveControl& control) { activated = &control; });
    sheet.ClickOnScreen(sheet.OnScreen(u"T").center());
    sheet.Send(QEvent::MouseButtonDblClick, sheet.OnScreen(u"T").center());
    EXPECT_EQ(activated, &sheet.Control(u"T"));
}

TEST_P(AtZoom, ClicksGiveTheTabOrder) {
    Zoomed sheet(GetParam(),
                 "   Begin VB.TextBox A\n Left = 240\n Top = 240\n Width = 1200\n"
                 " Height = 480\n TabIndex = 0\n End\n"
                 "   Begin VB.TextBox B\n Left = 240\n Top = 1200\n Width = 1200\n"
                 " Height = 480\n TabIndex = 1\n End\n");
    sheet.canvas->SetTabOrderMode(true);
    sheet.ClickOnScreen(sheet.OnScreen(u"B").center());
    sheet.ClickOnScreen(sheet.OnScreen(u"A").center());
    EXPECT_EQ(sheet.Control(u"B").TabIndex(), 0);
    EXPECT_EQ(sheet.Control(u"A").TabIndex(), 1);
}

TEST_P(AtZoom, AMenuOfTheBarIsSelected) {
    Zoomed sheet(GetParam(),
                 "   Begin VB.Menu mnuFile\n      Caption = \"File\"\n   End\n"
                 "   Begin VB.Menu mnuEdit\n      Caption = \"Edit\"\n   End\n");
    const int bar = sheet.design.View().Client().mapTo(&sheet.design.View(), QPoint()).y();
    ASSERT_GT(bar, 0);
    sheet.ClickOnScreen(sheet.OnGlass({12, -bar / 2}));
    ASSERT_EQ(sheet.design.SelectedMenus().size(), 1);
    EXPECT_EQ(sheet.design.SelectedMenus().front()->Name(), u"mnuFile");
}

TEST_P(AtZoom, AClickOnATabShowsItsPage) {
    Zoomed sheet(GetParam(),
                 "   Begin TabDlg.SSTab S\n Height = 1800\n Left = 240\n Top = 240\n"
                 " Width = 3600\n Tabs = 2\n Tab = 0\n TabCaption(0) = \"First\"\n"
                 " TabCaption(1) = \"Second\"\n End\n");
    const lumenform::TabPages& pages = *sheet.Control(u"S").Pages();
    ASSERT_EQ(pages.Shown(), 0);
    const auto onTab = [&](int page) {
        int x = 0;
        while (x < pages.width() && pages.TabAt({x, 10}) != page) {
            ++x;
        }
        return pages.mapTo(&sheet.design.View().Client(), QPoint(x + 20, 10));
    };
    sheet.ClickOnScreen(sheet.OnGlass(onTab(1)));
    EXPECT_EQ(pages.Shown(), 1);
    sheet.ClickOnScreen(sheet.OnGlass(onTab(0)));
    EXPECT_EQ(pages.Shown(), 0);
    EXPECT_EQ(sheet.design.History().count(), 0);
}

TEST_P(AtZoom, AClickSelectsTheControlUnderTheMouse) {
    Zoomed sheet(GetParam());
    std::mt19937 random(11);
    std::uniform_int_distribution<int> across(0, 299);
    std::uniform_int_distribution<int> down(0, 199);
    const auto isIn = [&](TextView name, QPoint at, QPointF origin = {}) {
        const Placement place = sheet.PlaceOf(name);
        return QRectF(origin.x() + place.left / 15, origin.y() + place.top / 15, place.width / 15,
                      place.height / 15)
            .contains(at);
    };
    for (int round = 0; round < 40; ++round) {
        // In the middle of the pixels that the screen shows at this scale.
        const QPoint at(across(random) / 4 * 4 + 2, down(random) / 4 * 4 + 2);
        const std::string expected = isIn(u"T", at, {120, 8}) ? "T"
                                     : isIn(u"F", at)         ? "F"
                                     : isIn(u"A", at)         ? "A"
                                                              : "";
        sheet.canvas->GetGlass().setFocus();
        sheet.design.Select({});
        const QPointF onDesk = sheet.canvas->GetZoom().ToDesk(
            QPointF(sheet.design.View().Client().mapTo(&sheet.design.View(), at)));
        sheet.ClickOnScreen({static_cast<int>(onDesk.x()), static_cast<int>(onDesk.y())});
        const std::vector<std::string> selected = sheet.Selected();
        EXPECT_EQ(selected.empty() ? "" : selected.front(), expected) << at.x() << ", " << at.y();
    }
}

TEST_P(AtZoom, ThePointerIsToldInTwips) {
    Zoomed sheet(GetParam());
    QPointF told;
    QObject::connect(sheet.canvas, &lumenform::Canvas::PointerMoved,
                     [&](QPointF twips) { told = twips; });
    sheet.Send(QEvent::MouseMove, sheet.OnGlass({80, 40}));
    EXPECT_EQ(told, QPointF(1200, 600));
}

TEST_P(AtZoom, AnArrowKeyMovesByAGridStep) {
    Zoomed sheet(GetParam());
    sheet.Select({u"A"});
    sheet.Key(Qt::Key_Right);
    sheet.Key(Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(sheet.PlaceOf(u"A"), (Placement{360, 255, 1200, 600}));
}

TEST_P(AtZoom, WhatTheKeyboardSelectsIsScrolledIntoView) {
    const DesignedForm sheet(
        FormOf("VERSION 5.00\nBegin VB.Form Form1\n   ClientHeight = 60000\n"
               "   ClientWidth = 60000\n"
               "   Begin VB.TextBox Far\n Left = 57000\n Top = 57000\n Width = 600\n"
               " Height = 300\n TabIndex = 0\n End\nEnd\n"));
    sheet.canvas->SetZoom(GetParam());
    QTest::keyClick(&sheet.canvas->GetGlass(), Qt::Key_Tab);
    const QWidget& far = sheet.Control(u"Far").Widget();
    const QRect rect = sheet.canvas->GetZoom().ToDesk(
        QRect(far.mapTo(&sheet.design.View(), QPoint()), far.size()));
    EXPECT_TRUE(sheet.canvas->GetGlass().visibleRegion().contains(rect.center()));
}

TEST_P(AtZoom, AChangeIsPainted) {
    Zoomed sheet(GetParam(),
                 "   BackColor = &H00FFFFFF&\n   Begin VB.PictureBox P\n"
                 " BackColor = &H000000FF&\n BorderStyle = 0\n"
                 " Left = 300\n Top = 300\n Width = 1200\n Height = 1200\n End\n");
    sheet.canvas->SetGrid({.isShown = false});
    sheet.design.Select({});
    const auto redAt = [&](QPoint at) {
        const QImage picture = sheet.Picture();
        const double scale = Factor() * sheet.canvas->devicePixelRatioF();
        return picture.pixelColor((QPointF(at) * scale).toPoint()) == QColor(Qt::red);
    };
    EXPECT_TRUE(redAt({60, 60}));
    EXPECT_FALSE(redAt({200, 60}));
    sheet.Control(u"P").Move({.left = 2400, .top = 300, .width = 1200, .height = 1200});
    EXPECT_TRUE(QTest::qWaitFor([&] { return !redAt({60, 60}) && redAt({200, 60}); }));
}

TEST_P(AtZoom, ANewViewIsShownAtTheScale) {
    Zoomed sheet(GetParam());
    const QSize before = sheet.Picture().size();
    sheet.design.Restructure("Caption", [&] {
        sheet.design.Document().Root().Set(u"BackColor", forms::HexNumber{0x00FFFFFF});
        return std::vector<Text>();
    });
    const QImage picture = sheet.Picture();
    EXPECT_EQ(picture.size(), before);
    EXPECT_EQ(picture.pixelColor(picture.width() - 3, picture.height() - 3), QColor(Qt::white));
}

// ---- The picture

TEST(ZoomPicture, At100PercentTheFormIsAsBefore) {
    Zoomed sheet(100);
    const QImage before = sheet.Picture();
    EXPECT_TRUE(sheet.canvas->isAncestorOf(&sheet.design.View()));
    sheet.canvas->SetZoom(200);
    EXPECT_NE(sheet.Picture(), before);
    EXPECT_FALSE(sheet.canvas->isAncestorOf(&sheet.design.View()));
    sheet.canvas->SetZoom(100);
    EXPECT_EQ(sheet.Picture(), before);
    EXPECT_TRUE(sheet.canvas->isAncestorOf(&sheet.design.View()));
}

TEST(ZoomPicture, TheCanvasGivesAZoomedViewBack) {
    Surface surface;
    lumenform::FormDesign design(surface.context, FormWith("   Begin VB.Label A\n End\n"));
    auto canvas = std::make_unique<lumenform::Canvas>(design);
    canvas->SetZoom(200);
    design.Restructure("Caption", [&] {
        design.Document().Root().Set(u"Caption", forms::TextLiteral(u"Another"));
        return std::vector<Text>();
    });
    EXPECT_NE(design.View().parentWidget(), nullptr);
    canvas.reset();
    EXPECT_EQ(design.View().parentWidget(), nullptr);
    EXPECT_EQ(design.View().Controls().size(), 1);
}

const std::string texts =
    "   BackColor = &H00FFFFFF&\n"
    "   Begin VB.Label L\n      BackColor = &H00FFFFFF&\n      Height = 1200\n      Left = 120\n"
    "      Top = 60\n      Width = 1650\n"
    "      Caption = \"Several words in a label of this width, and a few words more\"\n   End\n"
    "   Begin lumenkit.VLabel V\n      Height = 1500\n      Left = 1920\n      Top = 60\n"
    "      Width = 1650\n      WordWrap = -1 'True\n      BackColor = &H00FFFFFF&\n"
    "      Caption = \"Several words in a label of this width, and a few words more\"\n   End\n";

// The inked rows of a part of a picture, as the numbers of the first and last row of each line of
// text, and the last inked column of it.
struct InkedLine {
    int top;
    int bottom;
    int right;
};
std::vector<InkedLine> InkedLines(const QImage& picture) {
    std::vector<InkedLine> lines;
    bool wasInked = false;
    for (int y = 0; y < picture.height(); ++y) {
        int right = -1;
        for (int x = 0; x < picture.width(); ++x) {
            right = qGray(picture.pixel(x, y)) < 160 ? x : right;
        }
        if (right >= 0 && !wasInked) {
            lines.push_back({y, y, right});
        }
        if (right >= 0) {
            lines.back().bottom = y;
            lines.back().right = std::max(lines.back().right, right);
        }
        wasInked = right >= 0;
    }
    return lines;
}

// The part of a form's picture with a control.
QImage PartOf(const Zoomed& sheet, TextView name) {
    const double scale = sheet.canvas->GetZoom().Factor() * sheet.canvas->devicePixelRatioF();
    const QWidget& widget = sheet.Control(name).Widget();
    const QPoint at = widget.mapTo(&sheet.design.View().Client(), QPoint());
    return sheet.Picture().copy(
        QRect((QPointF(at) * scale).toPoint(), (QSizeF(widget.size()) * scale).toSize()));
}

TEST(ZoomPicture, TextsHaveTheSameLineBreaks) {
    for (const TextView name : {u"L", u"V"}) {
        Zoomed sheet(100, texts);
        sheet.canvas->SetGrid({.isShown = false});
        sheet.design.Select({});
        const std::vector<InkedLine> usual = InkedLines(PartOf(sheet, name));
        ASSERT_GE(usual.size(), 3);
        for (const int percent : {150, 200, 230, 400}) {
            sheet.canvas->SetZoom(percent);
            const std::vector<InkedLine> zoomed = InkedLines(PartOf(sheet, name));
            // The dot of an i can be a line of its own on a larger scale.
            std::vector<int> ends;
            for (const InkedLine& line : zoomed) {
                if (line.bottom - line.top > 4 * percent / 100) {
                    ends.push_back(line.right);
                }
            }
            ASSERT_EQ(ends.size(), usual.size()) << percent;
            for (std::size_t line = 0; line < ends.size(); ++line) {
                EXPECT_NEAR(ends[line], usual[line].right * percent / 100.0,
                            4.0 * percent / 100 * sheet.canvas->devicePixelRatioF())
                    << percent << " %, line " << line;
            }
        }
    }
}

// The number of grey levels between neighbours: a picture that is blown up has whole blocks of one
// colour, or soft edges that are as wide as the scale.
TEST(ZoomPicture, TextsAreSharp) {
    for (const TextView name : {u"L", u"V"}) {
        Zoomed sheet(100, texts);
        sheet.canvas->SetGrid({.isShown = false});
        sheet.design.Select({});
        const QImage usual = PartOf(sheet, name);
        sheet.canvas->SetZoom(400);
        const QImage sharp = PartOf(sheet, name);
        const auto greys = [](const QImage& picture) {
            int count = 0;
            for (int y = 0; y < picture.height(); ++y) {
                for (int x = 0; x < picture.width(); ++x) {
                    const int grey = qGray(picture.pixel(x, y));
                    count += grey > 60 && grey < 200 ? 1 : 0;
                }
            }
            return count;
        };
        for (const auto how : {Qt::FastTransformation, Qt::SmoothTransformation}) {
            const QImage blown = usual.scaled(sharp.size(), Qt::IgnoreAspectRatio, how);
            EXPECT_NE(sharp, blown);
            EXPECT_LT(greys(sharp) * 2, greys(blown)) << "edges are thin";
        }
    }
}

TEST(ZoomPicture, BulletsGrowWithTheText) {
    const std::string bulleted =
        "   BackColor = &H00FFFFFF&\n"
        "   Begin lumenkit.VLabel V\n      Height = 600\n      Left = 60\n      Top = 60\n"
        "      Width = 2400\n      BackColor = &H00FFFFFF&\n"
        "      BulletIndent = 600\n      BulletPrefix = \"* \"\n      Caption = \"* text\"\n"
        "   End\n";
    Zoomed sheet(100, bulleted);
    sheet.canvas->SetGrid({.isShown = false});
    sheet.design.Select({});
    // The inked part left of the text.
    const auto bullet = [&] {
        const double scale = sheet.canvas->GetZoom().Factor() * sheet.canvas->devicePixelRatioF();
        const QImage part = PartOf(sheet, u"V");
        QRect inked;
        for (int y = 0; y < part.height(); ++y) {
            for (int x = 0; x < 30 * scale; ++x) {
                if (qGray(part.pixel(x, y)) < 160) {
                    inked |= QRect(x, y, 1, 1);
                }
            }
        }
        return inked;
    };
    const QRect usual = bullet();
    ASSERT_FALSE(usual.isEmpty());
    for (const int percent : {25, 200, 400}) {
        sheet.canvas->SetZoom(percent);
        const QRect zoomed = bullet();
        EXPECT_NEAR(zoomed.width(), usual.width() * percent / 100.0, 1.5) << percent;
        EXPECT_NEAR(zoomed.height(), usual.height() * percent / 100.0, 1.5) << percent;
        EXPECT_NEAR(zoomed.top(), usual.top() * percent / 100.0, 1.5 * std::max(percent / 100, 1));
    }
}

TEST(ZoomPicture, DotsOfTheGridKeepTheirSize) {
    Zoomed sheet(400, "   BackColor = &H00FFFFFF&\n");
    sheet.design.Select({});
    const QImage picture = sheet.Picture();
    const double scale = 4 * sheet.canvas->devicePixelRatioF();
    const int size = static_cast<int>(sheet.canvas->devicePixelRatioF());
    for (const QPoint dot : {QPoint(8, 8), QPoint(16, 40)}) {
        const QPoint at = (QPointF(dot) * scale).toPoint();
        int dark = 0;
        for (int y = at.y() - 5; y < at.y() + 6; ++y) {
            for (int x = at.x() - 5; x < at.x() + 6; ++x) {
                dark += picture.pixelColor(x, y) != QColor(Qt::white) ? 1 : 0;
            }
        }
        EXPECT_EQ(dark, size * size);
    }
}

// Counts the paintings of a widget.
class PaintCounter final : public QObject {
 public:
    explicit PaintCounter(QWidget& watched) { watched.installEventFilter(this); }
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    int count = 0;
};

TEST(ZoomPicture, ScrollingPaintsNoControlAgain) {
    Zoomed sheet(400);
    QApplication::processEvents();
    QScrollBar& bar = *sheet.canvas->horizontalScrollBar();
    ASSERT_GT(bar.maximum(), 200);
    sheet.Picture();  // of all of it
    PaintCounter counter(sheet.Control(u"A").Widget());
    for (const int value : {100, 200, bar.maximum(), 50, 0}) {
        bar.setValue(value);
        QApplication::processEvents();
    }
    EXPECT_EQ(counter.count, 0);
    sheet.Control(u"A").Widget().update();
    EXPECT_TRUE(QTest::qWaitFor([&] {
        sheet.Picture();
        return counter.count > 0;
    }));
}

// ---- Choosing a scale

TEST(ZoomChoice, TheWheelKeepsThePointUnderTheMouse) {
    const DesignedForm wide(
        FormOf("VERSION 5.00\nBegin VB.Form Form1\n   ClientHeight = 60000\n"
               "   ClientWidth = 60000\nEnd\n"));
    lumenform::Canvas& canvas = *wide.canvas;
    canvas.horizontalScrollBar()->setValue(1500);
    canvas.verticalScrollBar()->setValue(1200);
    const QPoint at(310, 170);
    const auto under = [&] {
        return canvas.GetZoom().ToView(canvas.widget()->mapFrom(canvas.viewport(), at));
    };
    const QPointF before = under();
    for (const int steps : {1, 1, 1, -2, 2, -2}) {
        const int former = canvas.GetZoom().percent;
        QWheelEvent event(at, canvas.viewport()->mapToGlobal(at), {}, {0, 120 * steps},
                          Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(canvas.viewport(), &event);
        EXPECT_NE(canvas.GetZoom().percent, former);
        EXPECT_NEAR(under().x(), before.x(), 2) << canvas.GetZoom().percent;
        EXPECT_NEAR(under().y(), before.y(), 2) << canvas.GetZoom().percent;
    }
}

TEST(ZoomChoice, FineStepsOfAWheelAddUp) {
    Zoomed sheet(100);
    for (int turn = 0; turn < 4; ++turn) {
        EXPECT_EQ(sheet.canvas->GetZoom().percent, 100);
        QWheelEvent event(QPoint(50, 50), sheet.canvas->viewport()->mapToGlobal(QPoint(50, 50)), {},
                          {0, 30}, Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(sheet.canvas->viewport(), &event);
    }
    EXPECT_EQ(sheet.canvas->GetZoom().percent, 150);
}

TEST(ZoomChoice, TheWholeFormFits) {
    Zoomed sheet(400);
    sheet.canvas->FitZoom();
    QApplication::processEvents();
    EXPECT_EQ(sheet.canvas->horizontalScrollBar()->maximum(), 0);
    EXPECT_EQ(sheet.canvas->verticalScrollBar()->maximum(), 0);
    const int fits = sheet.canvas->GetZoom().percent;
    EXPECT_GT(fits, 100) << "a small form in a large window";
    sheet.canvas->SetZoom(fits + 5);
    QApplication::processEvents();
    EXPECT_GT(sheet.canvas->horizontalScrollBar()->maximum() +
                  sheet.canvas->verticalScrollBar()->maximum(),
              0);
}

TEST(ZoomChoice, ADragKeepsItsScale) {
    Zoomed sheet(200);
    const QPoint at = sheet.OnScreen(u"A").center();
    sheet.Send(QEvent::MouseButtonPress, at);
    sheet.Send(QEvent::MouseMove, at + QPoint(40, 0));
    sheet.canvas->SetZoom(400);
    EXPECT_EQ(sheet.canvas->GetZoom().percent, 200);
    sheet.Send(QEvent::MouseButtonRelease, at + QPoint(40, 0));
    sheet.canvas->SetZoom(400);
    EXPECT_EQ(sheet.canvas->GetZoom().percent, 400);
}

TEST(ZoomChoice, EndsAreKept) {
    Zoomed sheet(100);
    sheet.canvas->SetZoom(3);
    EXPECT_EQ(sheet.canvas->GetZoom().percent, 25);
    sheet.canvas->SetZoom(1000);
    EXPECT_EQ(sheet.canvas->GetZoom().percent, 400);
}

class ZoomMenuTest : public OpenedWindow {
 protected:
    int Percent() const { return window.Bench()->GetCanvas().GetZoom().percent; }
    QString Shown() const { return window.findChild<QToolButton*>(QStringLiteral("zoom"))->text(); }
};

TEST_F(ZoomMenuTest, KeysChangeTheScale) {
    window.Load(Copy("order"));
    QWidget& glass = window.Bench()->GetCanvas().GetGlass();
    glass.setFocus();
    QTest::keyClick(&glass, Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(Percent(), 150);
    EXPECT_EQ(Shown(), "150 %");
    EXPECT_TRUE(Command("150 %").isChecked());
    QTest::keyClick(&glass, Qt::Key_Minus, Qt::ControlModifier);
    QTest::keyClick(&glass, Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(Percent(), 75);
    EXPECT_TRUE(Command("75 %").isChecked());
    EXPECT_FALSE(Command("150 %").isChecked());
    QTest::keyClick(&glass, Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(Percent(), 100);
}

TEST_F(ZoomMenuTest, EachFormHasItsOwnScale) {
    EXPECT_FALSE(Command("200 %").isEnabled());
    window.Load(Copy("order"));
    Command("200 %").trigger();
    EXPECT_EQ(Percent(), 200);
    window.Load(Copy("memo"));
    EXPECT_EQ(Percent(), 100);
    EXPECT_EQ(Shown(), "100 %");
    EXPECT_TRUE(Command("100 %").isChecked());
    Command("25 %").trigger();
    EXPECT_FALSE(Command("Zoom out").isEnabled());
    EXPECT_TRUE(Command("Zoom in").isEnabled());
    window.Load(Copy("order"));
    EXPECT_EQ(Percent(), 200);
    EXPECT_EQ(Shown(), "200 %");
    EXPECT_TRUE(Command("200 %").isChecked());
    Command("Fit the form").trigger();
    EXPECT_EQ(Shown(), QString::number(Percent()) + " %");
}

}  // namespace
}  // namespace lumenkit::testing
