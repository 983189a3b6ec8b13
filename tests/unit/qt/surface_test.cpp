#include "runtime/qt/surface.h"

#include <QApplication>
#include <QImage>
#include <QTest>
#include <algorithm>
#include <cmath>
#include <functional>

#include <gtest/gtest.h>

#include "runtime/qt/qt_text.h"
#include "runtime/qt/surface_widget.h"
#include "tests/support/painting_control.h"
#include "tests/support/qt_form.h"

namespace lumenkit::qt {
namespace {

using testing::PaintingControl;

constexpr Color red = Rgb(255, 0, 0);
constexpr Color blue = Rgb(0, 0, 255);

// A control that paints as the test says, with a white surface of 200 by 100 pixels.
class QtSurfaceTest : public ::testing::Test {
 protected:
    QtSurfaceTest() : control_(form_.Place(u"Painting", {150, 75, 3000, 1500})) {
        Surface().SetBackColor(Rgb(255, 255, 255));
        Surface().SetForeColor(Rgb(0, 0, 0));
    }

    host::Surface& Surface() { return control_.Drawing(); }
    void OnPaint(std::function<void(host::Surface&)> paint) {
        PaintingControl::Last().onPaint = std::move(paint);
        Surface().Refresh();
    }
    // Returns the picture on the screen, in device pixels.
    QImage Picture() { return control_.Drawing().Area().grab().toImage(); }
    static int Count(const QImage& image, QColor color) {
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                count += image.pixelColor(x, y) == color ? 1 : 0;
            }
        }
        return count;
    }
    // Returns the rectangle that contains all pixels of the colour.
    static QRect Extent(const QImage& image, QColor color) {
        QRect extent;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y) == color) {
                    extent |= QRect(x, y, 1, 1);
                }
            }
        }
        return extent;
    }
    double Scale() { return control_.devicePixelRatioF(); }
    // Converts twips to device pixels.
    int Real(double twips) { return static_cast<int>(std::round(twips / 15 * Scale())); }

    testing::QtForm form_{testing::PaintingClasses()};
    HostedControl& control_;
};

TEST_F(QtSurfaceTest, ABoxFillsWholePixelsBothCornersIncluded) {
    OnPaint([](host::Surface& surface) { surface.FillBox(150, 300, 450, 600, red); });
    const QImage picture = Picture();
    const QRect box = Extent(picture, Qt::red);
    EXPECT_EQ(box, QRect(QPoint(Real(150), Real(300)), QPoint(Real(450), Real(600))));
    EXPECT_EQ(Count(picture, Qt::red), box.width() * box.height()) << "no smeared edges";
}

TEST_F(QtSurfaceTest, ABoxOfOnePixelIsOnePixel) {
    OnPaint([](host::Surface& surface) {
        surface.FillBox(150, 150, 150, 150, red);
        surface.FillBox(450, 300, 400, 250, blue);  // corners in reverse order
    });
    EXPECT_EQ(Count(Picture(), Qt::red), 1);
    EXPECT_EQ(Extent(Picture(), Qt::blue).bottomRight(), QPoint(Real(450), Real(300)));
}

TEST_F(QtSurfaceTest, ABoxWithoutColourHasTheForeColour) {
    OnPaint([](host::Surface& surface) {
        surface.SetForeColor(blue);
        surface.FillBox(0, 0, 300, 300, Color{});
    });
    EXPECT_GT(Count(Picture(), Qt::blue), 100);
}

TEST_F(QtSurfaceTest, TextStandsBelowAndRightOfThePen) {
    OnPaint([](host::Surface& surface) {
        surface.SetCurrentX(300);
        surface.SetCurrentY(450);
        surface.SetForeColor(red);
        surface.Print(u"IIII");
    });
    const float width = Surface().TextWidth(u"IIII");
    const float height = Surface().TextHeight(u"IIII");
    QImage picture = Picture();
    QRect inked;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) != QColor(Qt::white)) {
                inked |= QRect(x, y, 1, 1);
            }
        }
    }
    ASSERT_FALSE(inked.isNull());
    EXPECT_GE(inked.left(), Real(300) - 1);
    EXPECT_LE(inked.right(), Real(300 + width) + 1);
    EXPECT_GE(inked.top(), Real(450));
    EXPECT_LE(inked.bottom(), Real(450 + height));
    EXPECT_GT(inked.height(), Real(height) / 2);
}

TEST_F(QtSurfaceTest, ControlCharactersAreDrawnAsBlanks) {
    const auto draw = [&](const Text& text) {
        OnPaint([&](host::Surface& surface) {
            surface.SetCurrentX(0);
            surface.SetCurrentY(0);
            surface.Print(text);
            surface.Print(u"|");
        });
        return Picture();
    };
    const QImage blanks = draw(u"one two  three");
    EXPECT_EQ(draw(u"one\ttwo\r\nthree"), blanks);
    EXPECT_EQ(draw(u"one\u2028two\x7F\x80three"), blanks);
}

TEST_F(QtSurfaceTest, OpaqueTextCoversWhatIsBehindIt) {
    const auto paint = [](bool transparent) {
        return [transparent](host::Surface& surface) {
            surface.SetFontTransparent(transparent);
            surface.FillBox(0, 0, 2985, 1485, red);
            surface.SetCurrentX(0);
            surface.SetCurrentY(0);
            surface.Print(u"text");
        };
    };
    OnPaint(paint(true));
    const int behind = Count(Picture(), Qt::red);
    OnPaint(paint(false));
    EXPECT_LT(Count(Picture(), Qt::red), behind);
    EXPECT_GT(Count(Picture(), Qt::white), 0);
}

TEST_F(QtSurfaceTest, AKeptPictureNeedsNoPaint) {
    Surface().SetAutoRedraw(true);
    Surface().FillBox(150, 150, 450, 450, red);
    OnPaint([](host::Surface&) { ADD_FAILURE() << "painted"; });
    EXPECT_EQ(Extent(Picture(), Qt::red),
              QRect(QPoint(Real(150), Real(150)), QPoint(Real(450), Real(450))));
    Surface().Size(1500, 1500);
    EXPECT_GT(Count(Picture(), Qt::red), 100) << "what fits is kept";
    Surface().Cls();
    EXPECT_EQ(Count(Picture(), Qt::red), 0);
    Surface().FillBox(0, 0, 150, 150, red);
    Surface().SetBackColor(blue);
    EXPECT_EQ(Count(Picture(), Qt::red), 0);
    EXPECT_GT(Count(Picture(), Qt::blue), 1000);
}

TEST_F(QtSurfaceTest, ClsErasesWhatThisPaintingDrew) {
    OnPaint([](host::Surface& surface) {
        surface.FillBox(0, 0, 450, 450, red);
        surface.Cls();
        surface.FillBox(600, 600, 750, 750, blue);
    });
    EXPECT_EQ(Count(Picture(), Qt::red), 0);
    EXPECT_GT(Count(Picture(), Qt::blue), 50);
}

TEST_F(QtSurfaceTest, OutsideAPaintingThePenMovesAndNothingIsDrawn) {
    OnPaint([](host::Surface&) {});
    Surface().FillBox(0, 0, 450, 450, red);
    Surface().Print(u"text");
    EXPECT_EQ(Surface().CurrentX(), 450 + Surface().TextWidth(u"text"));
    EXPECT_EQ(Count(Picture(), Qt::red), 0);
}

TEST_F(QtSurfaceTest, ExposuresAreAnsweredFromThePicture) {
    int paints = 0;
    OnPaint([&](host::Surface& surface) {
        ++paints;
        surface.FillBox(150, 150, 450, 450, red);
    });
    EXPECT_EQ(paints, 1);
    control_.Drawing().Area().repaint(0, 0, 50, 20);
    control_.Drawing().Area().repaint();
    form_.window.hide();
    form_.window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&form_.window));
    EXPECT_GT(Count(Picture(), Qt::red), 100);
    EXPECT_EQ(paints, 1);
}

TEST_F(QtSurfaceTest, AReasonLetsTheControlPaintOnce) {
    struct Reason {
        const char* name;
        std::function<void()> act;
    };
    const Reason reasons[] = {
        {"Refresh", [&] { Surface().Refresh(); }},
        {"size", [&] { Surface().Size(3300, 1800); }},
        {"border", [&] { Surface().SetBorderStyle(1); }},
        {"background", [&] { Surface().SetBackColor(blue); }},
        {"another font", [&] { Surface().SetCurrentFont(std::make_shared<Font>(u"Arial", 20)); }},
        {"font attribute", [&] { Surface().CurrentFont()->SetSize(30); }},
    };
    int paints = 0;
    OnPaint([&](host::Surface&) { ++paints; });
    for (const Reason& reason : reasons) {
        QTest::qWait(20);
        const int before = paints;
        reason.act();
        QTest::qWait(20);
        EXPECT_EQ(paints, before + 1) << reason.name;
    }
}

TEST_F(QtSurfaceTest, WhileAMessageBoxIsOpenTheFormerPictureIsShown) {
    int paints = 0;
    OnPaint([&](host::Surface& surface) { surface.FillBox(150, 150, 450, 450, red); });
    {
        const shared::OpenBoxes::Scope open(Boxes());
        PaintingControl::Last().onPaint = [&](host::Surface&) { ++paints; };
        Surface().Refresh();
        Surface().Refresh();
        QTest::qWait(20);
        EXPECT_GT(Count(Picture(), Qt::red), 100);
        EXPECT_EQ(paints, 0);
    }
    QTest::qWait(20);
    EXPECT_EQ(paints, 1);
    EXPECT_EQ(Count(Picture(), Qt::red), 0);
}

TEST_F(QtSurfaceTest, AnErrorInAPaintingReachesWhoeverRefreshed) {
    PaintingControl::Last().onPaint = [](host::Surface&) { Raise(ErrorNumber::DivisionByZero); };
    EXPECT_THROW(Surface().Refresh(), RuntimeError);
    EXPECT_TRUE(form_.errors.empty());
    control_.Drawing().Area().repaint();
    EXPECT_TRUE(form_.errors.empty()) << "an exposure is no reason to paint again";
    control_.resize(100, 50);  // by a layout or the mouse
    QTest::qWait(20);
    ASSERT_EQ(form_.errors.size(), 1U) << "nobody caused this one";
    EXPECT_EQ(form_.errors[0].Number(), 11);
}

TEST_F(QtSurfaceTest, MessagesOfAPaintingAreShownBehindIt) {
    OnPaint([&](host::Surface&) {
        PaintingControl::Last().Host().interaction.Beep();
        PaintingControl::Last().Host().interaction.MsgBox(u"trouble", host::MessageStyle::Critical,
                                                          u"title");
        EXPECT_TRUE(form_.interaction.said.empty());
    });
    PaintingControl::Last().onPaint = nullptr;
    QApplication::processEvents();
    EXPECT_EQ(form_.interaction.said, (std::vector<Text>{u"(beep)", u"trouble"}));
    PaintingControl::Last().Host().interaction.Beep();
    EXPECT_EQ(form_.interaction.said.size(), 3U) << "at once";
}

TEST_F(QtSurfaceTest, ABorderTakesRoomFromTheArea) {
    EXPECT_EQ(Surface().ScaleWidth(), 3000);
    Surface().SetBorderStyle(1);
    EXPECT_EQ(Surface().Width(), 3000);
    const float border = (3000 - Surface().ScaleWidth()) / 2;
    EXPECT_GT(border, 0);
    EXPECT_EQ(control_.Drawing().Area().x() * 15, border);
    EXPECT_EQ(control_.Drawing().Area().width() * 15, Surface().ScaleWidth());
}

TEST_F(QtSurfaceTest, AFontThatSomebodyElseChangesIsDrawnWith) {
    int paints = 0;
    OnPaint([&](host::Surface& surface) {
        ++paints;
        surface.CurrentFont()->SetBold(true);  // a change during painting
        surface.Print(u"x");
        surface.CurrentFont()->SetBold(false);
    });
    QApplication::processEvents();
    const int before = paints;
    QTest::qWait(20);
    EXPECT_EQ(paints, before) << "its own changes do not make it paint again";
    Surface().CurrentFont()->SetSize(20);
    // A compositor may take a while until it wants the next picture.
    EXPECT_TRUE(QTest::qWaitFor([&] { return paints > before; }));
    QTest::qWait(20);
    EXPECT_EQ(paints, before + 1);
}

TEST_F(QtSurfaceTest, SystemColoursFollowThePalette) {
    Surface().SetBackColor(Color::WindowBackground);
    const QPalette former = QApplication::palette();
    QPalette dark(QColor(40, 40, 40));
    dark.setColor(QPalette::Base, QColor(10, 20, 30));
    QApplication::setPalette(dark);
    QApplication::processEvents();
    EXPECT_EQ(Picture().pixelColor(5, 5), QColor(10, 20, 30));
    QApplication::setPalette(former);
}

TEST_F(QtSurfaceTest, HasAPointerForEachMember) {
    for (std::int16_t pointer = 0; pointer <= 15; ++pointer) {
        Surface().SetPointer(pointer);
        EXPECT_EQ(Surface().Pointer(), pointer);
    }
    Surface().SetPointer(11);
    EXPECT_EQ(control_.Drawing().Area().cursor().shape(), Qt::WaitCursor);
    Surface().SetPointer(9);
    EXPECT_EQ(control_.Drawing().Area().cursor().shape(), Qt::SizeHorCursor);
    Surface().SetPointer(99);
    EXPECT_EQ(control_.Drawing().Area().cursor().shape(), Qt::ArrowCursor);
}

TEST_F(QtSurfaceTest, TheScreenHasTheRealResolution) {
    EXPECT_EQ(PaintingControl::Last().Host().screen.TwipsPerPixelX(),
              static_cast<std::int16_t>(std::nearbyint(15 / Scale())));
}

// The parts are in the order in which they stand from left to right.
struct OrderedText {
    TextView text;
    std::vector<TextView> parts;
};
const OrderedText orderedTexts[] = {
    {u"\u05E9\u05DC\u05D5\u05DD xyz", {u"\u05E9\u05DC\u05D5\u05DD", u" ", u"xyz"}},
    {u"xyz \u05E9\u05DC\u05D5\u05DD", {u"xyz", u" ", u"\u05E9\u05DC\u05D5\u05DD"}},
    {u"\u05D0\u05D1 \u05D2\u05D3", {u"\u05D2\u05D3", u" ", u"\u05D0\u05D1"}},
    {u"ab \u05D0\u05D1 \u05D2\u05D3 cd",
     {u"ab", u" ", u"\u05D2\u05D3", u" ", u"\u05D0\u05D1", u" ", u"cd"}},
    {u"\u05D0\u05D1 12 \u05D2\u05D3", {u"\u05D2\u05D3", u" ", u"12", u" ", u"\u05D0\u05D1"}},
    {u"\u05D0\u05D1 ", {u"\u05D0\u05D1", u" "}},
};

TEST_F(QtSurfaceTest, InsideARunThePlatformOrdersTheWords) {
    Surface().SetCurrentFont(std::make_shared<Font>(u"Arial", 12));
    for (const OrderedText& ordered : orderedTexts) {
        OnPaint([&](host::Surface& surface) {
            surface.Cls();
            surface.Print(ordered.text);
        });
        const QImage whole = Picture();
        OnPaint([&](host::Surface& surface) {
            surface.Cls();
            for (const TextView part : ordered.parts) {
                surface.Print(part);
            }
        });
        EXPECT_EQ(whole, Picture()) << ToQString(ordered.text).toStdString();
    }
}

TEST_F(QtSurfaceTest, RunsStandInTheirOrderWithTheirBlanks) {
    Surface().SetCurrentFont(std::make_shared<Font>(u"Arial", 12));
    const TextView first = u"\u05E9\u05DC\u05D5\u05DD ";
    const TextView second = u"\u05E2\u05D5\u05DC\u05DD";
    OnPaint([&](host::Surface& surface) {
        surface.Cls();
        surface.Print(first);
    });
    const QRect left = Extent(Picture(), Qt::black);
    OnPaint([&](host::Surface& surface) {
        surface.SetCurrentX(surface.TextWidth(first));
        surface.Print(second);
    });
    const QRect right = Extent(Picture(), Qt::black);
    EXPECT_GE(right.left() - left.right(), Real(Surface().TextWidth(u" ")) / 2);
}

TEST_F(QtSurfaceTest, TheMouseIsTold) {
    PaintingControl& painting = PaintingControl::Last();
    QTest::mouseMove(&control_.Drawing().Area(), {3, 3});
    painting.heard.clear();
    QTest::mouseClick(&control_.Drawing().Area(), Qt::LeftButton, Qt::ControlModifier, {10, 20});
    EXPECT_EQ(painting.heard,
              (std::vector<std::string>{"down 1 2 150 300", "up 1 2 150 300", "click"}));
    painting.heard.clear();
    QTest::mouseDClick(&control_.Drawing().Area(), Qt::LeftButton, {}, {10, 20});
    EXPECT_NE(std::ranges::find(painting.heard, "dblclick"), painting.heard.end());
    painting.heard.clear();
    QTest::mouseClick(&control_.Drawing().Area(), Qt::RightButton, {}, {1, 1});
    EXPECT_EQ(painting.heard,
              (std::vector<std::string>{"down 2 0 15 15", "up 2 0 15 15", "click"}));
    painting.heard.clear();
    QTest::mouseDClick(&control_.Drawing().Area(), Qt::RightButton, {}, {1, 1});
    EXPECT_NE(std::ranges::find(painting.heard, "dblclick"), painting.heard.end());
    painting.heard.clear();
    QTest::mouseClick(&control_.Drawing().Area(), Qt::MiddleButton, {}, {1, 1});
    EXPECT_EQ(painting.heard, (std::vector<std::string>{"down 4 0 15 15", "up 4 0 15 15"}));
}

TEST_F(QtSurfaceTest, TwipsAreKeptAsSet) {
    control_.Move({1.5F, 2.25F, 1234.5F, 777.25F});
    EXPECT_EQ(control_.Place(), (host::Placement{1.5F, 2.25F, 1234.5F, 777.25F}));
    EXPECT_EQ(Surface().Width(), 1234.5F);
    control_.resize(100, 50);  // as a layout or the mouse does
    EXPECT_EQ(Surface().Width(), 1500);
    EXPECT_EQ(Surface().Height(), 750);
    control_.move(10, 20);
    EXPECT_EQ(control_.Place().left, 150);
}

}  // namespace
}  // namespace lumenkit::qt
