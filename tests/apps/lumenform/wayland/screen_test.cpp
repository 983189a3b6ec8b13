// What the screen of the session shows, at its scale.
#include <QDialogButtonBox>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <set>

#include <gtest/gtest.h>

#include "apps/lumenform/design/properties/page_dialog.h"
#include "forms/file.h"
#include "runtime/qt/element.h"
#include "tests/apps/lumenform/wayland/session.h"
#include "tests/support/qt_windows.h"

namespace lumenkit::testing {
namespace {

// Returns what the widget draws, in device pixels.
QImage Drawn(QWidget& widget) {
    QImage drawn = widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
    drawn.setDevicePixelRatio(1);
    return drawn;
}

int Differing(const QImage& one, const QImage& other) {
    int differing = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            differing += one.pixel(x, y) != other.pixel(x, y) ? 1 : 0;
        }
    }
    return differing;
}

// Waits until the screen shows what the widget draws. Returns the number of pixels that differ.
int Differing(Person& person, QWidget& widget) {
    const QRect place = person.PlaceOf(widget);
    Person::PointAtTheDesktop();
    for (int attempt = 1;; ++attempt) {
        const QImage seen = Person::Seen(place);
        const QImage drawn = Drawn(widget);
        if (seen == drawn) {
            return 0;
        }
        if (seen.size() != drawn.size()) {
            return -1;
        }
        if (attempt == 20) {
            return Differing(seen, drawn);
        }
        QTest::qWait(50);
    }
}

// Returns whether the picture has details of a single device pixel: it is not made of the blocks of
// a picture that was drawn for a coarser screen.
bool IsSharp(const QImage& picture, int scale) {
    for (int y = 0; y + scale <= picture.height(); y += scale) {
        for (int x = 0; x + scale <= picture.width(); x += scale) {
            for (int inside = 1; inside < scale * scale; ++inside) {
                if (picture.pixel(x, y) != picture.pixel(x + inside % scale, y + inside / scale)) {
                    return true;
                }
            }
        }
    }
    return false;
}

int ColorsIn(const QImage& picture) {
    std::set<QRgb> colors;
    QRgb last = 0;  // no color of a pixel, which is opaque
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb color = picture.pixel(x, y);
            if (color != last) {
                colors.insert(color);
            }
            last = color;
        }
    }
    return static_cast<int>(colors.size());
}

// A form with all controls, in the window of "lumenform run".
class ScreenOnWayland : public ::testing::Test {
 protected:
    ScreenOnWayland() { ShowActive(window); }

    Surface surface;
    forms::Document document = forms::Load(sampleForms / "order.frm");
    lumenform::RunWindow window{surface.context, document};
    Person person;
};

TEST_F(ScreenOnWayland, ShowsWhatTheControlsDraw) {
    for (const char16_t* name : {u"lblWelcome", u"optSize", u"memPrint", u"cmdOrder"}) {
        QWidget& widget = window.View().Find(name)->Widget();
        EXPECT_EQ(Differing(person, widget), 0) << qPrintable(QString::fromUtf16(name));
        EXPECT_GT(ColorsIn(person.SeenAt(widget)), 2);
    }
}

TEST_F(ScreenOnWayland, IsSharpAtItsScale) {
    const int scale = Person::Scale();
    QWidget& label = window.View().Find(u"lblWelcome")->Widget();
    EXPECT_EQ(label.devicePixelRatioF(), scale);
    EXPECT_EQ(label.geometry(), QRect(12, 8, 265, 105));
    const QImage seen = person.SeenAt(label);
    EXPECT_EQ(seen.size(), QSize(265, 105) * scale);
    EXPECT_EQ(IsSharp(seen, scale), scale > 1);
}

TEST_F(ScreenOnWayland, ChangesAreShown) {
    lumenform::LiveControl& label = *window.View().Find(u"lblWelcome");
    const QImage before = person.SeenAt(label.Widget());
    label.Hosted()->Automation().Let(u"Caption", Text(u"|C:&HFF|Red"));
    EXPECT_EQ(Differing(person, label.Widget()), 0);
    EXPECT_NE(person.SeenAt(label.Widget()), before);
}

class PageOnWayland : public DesignSession {
 protected:
    // Opens the caption page of the label by the keyboard.
    QPointer<lumenform::PageDialog> Open() {
        person.Click(Glass(), MiddleOf(u"Title"));
        Person::Press(QStringLiteral("ctrl+Return"));
        const auto find = [&] { return window.findChild<lumenform::PageDialog*>(); };
        EXPECT_TRUE(Soon([&] { return find() != nullptr && find()->isActiveWindow(); }));
        return find();
    }
    void Click(lumenform::PageDialog& dialog, QDialogButtonBox::StandardButton which) {
        const QPushButton& button = *dialog.Buttons().button(which);
        person.Click(button, button.rect().center());
    }
    Text Caption() const {
        return ToText(Control(u"Title").Hosted()->Automation().Get(u"Caption"));
    }
};

TEST_F(PageOnWayland, OpensAppliesAndCloses) {
    const QPointer<lumenform::PageDialog> dialog = Open();
    ASSERT_NE(dialog, nullptr);
    Person::Press(QStringLiteral("ctrl+a"));
    Person::Type(QStringLiteral("|B:1|new"));
    Click(*dialog, QDialogButtonBox::Apply);
    EXPECT_EQ(Awaited([&] { return Caption(); }, u"|B:1|new"), u"|B:1|new");
    EXPECT_TRUE(dialog->isVisible());
    QWidget& preview = *dialog->Page().Parts().Find(u"Picture1")->Widget();
    EXPECT_EQ(Differing(person, preview), 0);
    EXPECT_GT(ColorsIn(person.SeenAt(preview)), 2);
    EXPECT_EQ(IsSharp(person.SeenAt(preview), Person::Scale()), Person::Scale() > 1);
    QWidget& caption = *dialog->Page().Parts().Find(u"txtCaption")->Widget();
    person.Click(caption, caption.rect().center());
    Person::Press(QStringLiteral("ctrl+a"));
    Person::Type(QStringLiteral("newer"));
    Click(*dialog, QDialogButtonBox::Ok);
    EXPECT_EQ(Awaited([&] { return Caption(); }, u"newer"), u"newer");
    EXPECT_TRUE(Soon([&] { return dialog == nullptr; }));
    // The designer is active again, and its keys work.
    EXPECT_TRUE(Soon([&] { return window.isActiveWindow(); }));
    Person::Press(QStringLiteral("ctrl+z"));
    EXPECT_EQ(Awaited([&] { return Caption(); }, u"|B:1|new"), u"|B:1|new");
}

TEST_F(PageOnWayland, IsCancelled) {
    const QPointer<lumenform::PageDialog> dialog = Open();
    ASSERT_NE(dialog, nullptr);
    Person::Type(QStringLiteral("typed"));
    Click(*dialog, QDialogButtonBox::Cancel);
    EXPECT_TRUE(Soon([&] { return dialog == nullptr; }));
    EXPECT_EQ(Caption(), u"old");
}

}  // namespace
}  // namespace lumenkit::testing
