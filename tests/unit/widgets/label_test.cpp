#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>
#include <lumenkit/widgets/vlabel.h>

#include "tests/support/qt_windows.h"
#include "tests/unit/widgets/told_messages.h"

namespace lumenkit::testing {
namespace {

using widgets::VLabel;

QImage PictureOf(QWidget& widget) {
    return widget.grab().toImage();
}

TEST(LabelWidget, HasTheDefaultsOfALoadedControl) {
    const VLabel label;
    EXPECT_EQ(label.caption(), QStringLiteral("VLabel"));
    EXPECT_EQ(label.backColorValue(), 0x80000005U);
    EXPECT_EQ(label.foreColorValue(), 0x80000012U);
    EXPECT_EQ(label.backStyle(), VLabel::OwnBackColor);
    EXPECT_EQ(label.borderStyle(), VLabel::NoBorder);
    EXPECT_TRUE(label.fontTransparent());
    EXPECT_EQ(label.mousePointer(), VLabel::DefaultPointer);
    EXPECT_FALSE(label.wordWrap());
    EXPECT_EQ(label.bulletIndent(), 0);
    EXPECT_EQ(label.bulletPrefix(), QString());
    EXPECT_FALSE(label.autoSize());
}

TEST(LabelWidget, KeepsWhatIsSetBeforeAndAfterTheStart) {
    for (const bool isShown : {false, true}) {
        VLabel label;
        if (isShown) {
            label.show();
        }
        label.setCaption(QStringLiteral("|B:1|bold"));
        label.setBackColor(QColor(1, 2, 3));
        label.setForeColorValue(0x8000000DU);
        label.setBackStyle(VLabel::ContainerBackColor);
        label.setBorderStyle(VLabel::FixedSingle);
        label.setFontTransparent(false);
        label.setMousePointer(VLabel::HourglassPointer);
        label.setWordWrap(true);
        label.setBulletIndent(300);
        label.setBulletPrefix(QStringLiteral("* "));
        label.setAutoSize(true);
        label.show();
        EXPECT_EQ(label.caption(), QStringLiteral("|B:1|bold"));
        EXPECT_EQ(label.backColor(), QColor(1, 2, 3));
        EXPECT_EQ(label.backColorValue(), 0x030201U);
        EXPECT_EQ(label.foreColorValue(), 0x8000000DU);
        EXPECT_EQ(label.foreColor(), label.palette().color(QPalette::Highlight));
        EXPECT_EQ(label.backStyle(), VLabel::ContainerBackColor);
        EXPECT_EQ(label.borderStyle(), VLabel::FixedSingle);
        EXPECT_FALSE(label.fontTransparent());
        EXPECT_EQ(label.mousePointer(), VLabel::HourglassPointer);
        EXPECT_TRUE(label.wordWrap());
        EXPECT_EQ(label.bulletIndent(), 300);
        EXPECT_EQ(label.bulletPrefix(), QStringLiteral("* "));
        EXPECT_TRUE(label.autoSize());
    }
}

TEST(LabelWidget, TellsEachChangeOnce) {
    for (const bool isShown : {false, true}) {
        VLabel label;
        if (isShown) {
            label.show();
        }
        const QSignalSpy captions(&label, &VLabel::captionChanged);
        const QSignalSpy colors(&label, &VLabel::backColorChanged);
        label.setCaption(QStringLiteral("one"));
        label.setCaption(QStringLiteral("one"));
        label.setBackColorValue(255);
        label.setBackColorValue(255);
        label.resetBackColor();
        ASSERT_EQ(captions.count(), 1);
        EXPECT_EQ(captions.first().first(), QStringLiteral("one"));
        ASSERT_EQ(colors.count(), 2);
        EXPECT_EQ(colors.first().first().value<QColor>(), QColor(255, 0, 0));
    }
}

TEST(LabelWidget, ASlotMayAssignTheSameProperty) {
    VLabel label;
    label.show();
    QObject::connect(&label, &VLabel::captionChanged, &label, [&](const QString& caption) {
        if (caption.size() < 4) {
            label.setCaption(caption + QLatin1Char('+'));
        }
    });
    label.setCaption(QStringLiteral("a"));
    EXPECT_EQ(label.caption(), QStringLiteral("a+++"));
}

TEST(LabelWidget, ASlotMayDestroyTheWidgetLater) {
    QPointer<VLabel> label(new VLabel);
    label->show();
    QObject::connect(label, &VLabel::captionChanged, label, &QObject::deleteLater);
    label->setCaption(QStringLiteral("gone"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(label, nullptr);
}

TEST(LabelWidget, RefusesAnIndentThatDoesNotFitWithAWarning) {
    for (const bool isShown : {false, true}) {
        VLabel label;
        if (isShown) {
            label.show();
        }
        label.setBulletIndent(77);
        QTest::ignoreMessage(QtWarningMsg, "lumenkit: VLabel.BulletIndent: Overflow");
        label.setBulletIndent(40000);
        EXPECT_EQ(label.bulletIndent(), 77);
    }
}

TEST(LabelWidget, DrawsItsCaptionAlsoWhenItIsOnlyGrabbed) {
    VLabel label(QStringLiteral("some text"));
    label.resize(200, 40);
    const QImage drawn = PictureOf(label);
    VLabel empty(QStringLiteral(" "));
    empty.resize(200, 40);
    EXPECT_NE(drawn, PictureOf(empty));
}

TEST(LabelWidget, RepaintsAfterAChange) {
    VLabel label(QStringLiteral("some text"));
    label.resize(200, 40);
    label.show();
    const QImage before = PictureOf(label);
    label.setForeColor(Qt::red);
    EXPECT_NE(PictureOf(label), before);
    label.resetForeColor();
    EXPECT_EQ(PictureOf(label), before);
}

TEST(LabelWidget, UsesTheColoursOfThePalette) {
    VLabel label(QStringLiteral("text"));
    QPalette palette = label.palette();
    palette.setColor(QPalette::Base, QColor(10, 20, 30));
    label.setPalette(palette);
    label.resize(50, 20);
    EXPECT_EQ(label.backColor(), QColor(10, 20, 30));
    EXPECT_EQ(PictureOf(label).pixelColor(49, 19), QColor(10, 20, 30));
}

TEST(LabelWidget, TakesTheBackgroundOfItsParent) {
    QWidget parent;
    QPalette palette = parent.palette();
    palette.setColor(QPalette::Window, QColor(200, 100, 50));
    parent.setPalette(palette);
    auto* const label = new VLabel(&parent);
    label->setBackStyle(VLabel::ContainerBackColor);
    label->resize(50, 20);
    parent.show();
    EXPECT_EQ(PictureOf(*label).pixelColor(49, 19), QColor(200, 100, 50));
}

TEST(LabelWidget, RaisesMouseEventsWithPlacesInTwips) {
    VLabel label;
    label.resize(100, 50);
    label.show();
    QStringList events;
    QObject::connect(&label, &VLabel::mouseDown, &label, [&](widgets::MouseArguments* mouse) {
        events.append(QStringLiteral("down %1 %2 %3 %4")
                          .arg(mouse->button())
                          .arg(mouse->shift())
                          .arg(mouse->x())
                          .arg(mouse->y()));
    });
    QObject::connect(&label, &VLabel::mouseUp, &label,
                     [&] { events.append(QStringLiteral("up")); });
    QObject::connect(&label, &VLabel::click, &label,
                     [&] { events.append(QStringLiteral("click")); });
    QWidget* const area = label.childAt(10, 20);
    ASSERT_NE(area, nullptr);
    QTest::mouseClick(area, Qt::LeftButton, Qt::ShiftModifier, QPoint(10, 20));
    EXPECT_EQ(events, QStringList({QStringLiteral("down 1 1 150 300"), QStringLiteral("up"),
                                   QStringLiteral("click")}));
}

TEST(LabelWidget, RaisesNothingInADesigner) {
    VLabel label;
    label.setDesignMode(true);
    label.show();
    EXPECT_TRUE(label.isDesignMode());
    EXPECT_EQ(label.childAt(5, 5), nullptr);  // the mouse reaches the widget itself
    QTest::ignoreMessage(QtWarningMsg,
                         "lumenkit: setDesignMode has no effect after the control was shown");
    label.setDesignMode(false);
    EXPECT_TRUE(label.isDesignMode());
}

TEST(LabelWidget, ReturnsItsSizeInTwips) {
    VLabel label;
    label.resize(100, 40);
    EXPECT_EQ(label.getProperty(QStringLiteral("WIDTH")), QVariant(1500.0));
    EXPECT_EQ(label.getProperty(QStringLiteral("height")), QVariant(600.0));
    EXPECT_FALSE(label.getProperty(QStringLiteral("left")).isValid());
}

TEST(LabelWidget, AssignsTheCaptionThatIsTested) {
    for (const bool isShown : {false, true}) {
        VLabel label;
        if (isShown) {
            label.show();
        }
        const QSignalSpy captions(&label, &VLabel::captionChanged);
        label.test(QStringLiteral("|B:1|x"));
        EXPECT_EQ(label.caption(), QStringLiteral("|B:1|x"));
        EXPECT_EQ(captions.count(), 1);
    }
}

TEST(LabelWidget, TellsItsTextWithoutMarkup) {
    const VLabel label(QStringLiteral("|B:1|Bold|CR|and |i:1|italic"));
    EXPECT_EQ(label.plainText(), QStringLiteral("Bold\nand italic"));
}

}  // namespace
}  // namespace lumenkit::testing
