// A window that moves to a screen of another resolution. The test needs the two screens of
// two_screens.json.
#include <QApplication>
#include <QImage>
#include <QScreen>
#include <QTest>
#include <cmath>

#include <gtest/gtest.h>

#include "project/lumenkit_classes.h"
#include "runtime/qt/surface_widget.h"
#include "tests/support/painting_control.h"
#include "tests/support/qt_form.h"

namespace lumenkit::qt {
namespace {

class QtScreensTest : public ::testing::Test {
 protected:
    void SetUp() override {
        ASSERT_EQ(QGuiApplication::screens().size(), 2) << "run by ctest, which sets the screens";
    }
    // Moves the window to the screen with this scale.
    static void MoveTo(double scale, QWidget& window) {
        window.move(scale == 1 ? 50 : 1050, 50);
        QApplication::processEvents();
        ASSERT_EQ(window.devicePixelRatioF(), scale);
    }
};

TEST_F(QtScreensTest, AControlPaintsOnceForTheNewScreen) {
    testing::QtForm form(testing::PaintingClasses());
    HostedControl& control = form.Place(u"Painting", {0, 0, 3000, 1500});
    MoveTo(1, form.window);
    int paints = 0;
    testing::PaintingControl::Last().onPaint = [&](host::Surface& surface) {
        ++paints;
        surface.FillPixels(300, 300, {0, 0, 4, 4}, Rgb(255, 0, 0));
    };
    control.Drawing().Refresh();
    for (const double scale : {2.0, 1.0}) {
        paints = 0;
        MoveTo(scale, form.window);
        EXPECT_EQ(paints, 1) << scale;
        EXPECT_EQ(control.Drawing().ScaleWidth(), 3000) << "the size in twips stays";
        EXPECT_EQ(testing::PaintingControl::Last().Host().screen.TwipsPerPixelX(),
                  scale == 1 ? 15 : 8);
        const QImage picture = control.Drawing().Area().grab().toImage();
        EXPECT_EQ(picture.width(), 200 * scale);
        int reds = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                reds += picture.pixelColor(x, y) == QColor(Qt::red) ? 1 : 0;
            }
        }
        EXPECT_EQ(reds, 25) << "device pixels of the new screen";
    }
}

// A label on another screen looks like one that was created there.
TEST_F(QtScreensTest, ALabelIsLaidOutAnew) {
    const auto place = [](testing::QtForm& form) -> HostedControl& {
        HostedControl& label = form.Place(u"VLabel", {0, 0, 3000, 1500});
        label.Automation().Let(u"WordWrap", true);
        label.Automation().Let(u"Caption",
                               Text(u"|size:9.3|text that takes |b:1|several|b:0| lines "
                                    u"in a label of this width"));
        QApplication::processEvents();
        return label;
    };
    testing::QtForm form(lumenkitClasses);
    MoveTo(1, form.window);
    HostedControl& moved = place(form);
    const QImage before = moved.grab().toImage();
    MoveTo(2, form.window);
    HostedControl& created = place(form);
    const QImage after = moved.grab().toImage();
    EXPECT_EQ(after, created.grab().toImage());
    EXPECT_NE(after.scaled(before.size()), before) << "drawn anew, not enlarged";
    MoveTo(1, form.window);
    EXPECT_EQ(moved.grab().toImage(), before);
}

TEST_F(QtScreensTest, ConstituentsKeepTheirPlaces) {
    testing::QtForm form(lumenkitClasses);
    MoveTo(1, form.window);
    HostedControl& list = form.Place(u"VOptList", {0, 0, 3000, 1500});
    list.Automation().Let(u"Contents", Text(u"s;Small|m;Medium|l;Large"));
    QApplication::processEvents();
    const auto places = [&] {
        QList<QRect> all;
        for (const QWidget* part : list.findChildren<QWidget*>()) {
            all.append(part->geometry());
        }
        return all;
    };
    const QList<QRect> before = places();
    MoveTo(2, form.window);
    EXPECT_EQ(places(), before) << "in device-independent pixels";
    EXPECT_EQ(list.grab().toImage().size(), QSize(400, 200));
}

}  // namespace
}  // namespace lumenkit::qt
