#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryFile>

#include <gtest/gtest.h>
#include <lumenkit/widgets/caption_painter.h>
#include <lumenkit/widgets/vlabel.h>

namespace lumenkit::testing {
namespace {

using widgets::CaptionPainter;
using widgets::CaptionRun;
using widgets::VLabel;

const QString styled = QStringLiteral("plain |B:1|bold|B:0| |Fore:255,0,0|red|CR|* second line");

QImage White(QSize size, double ratio = 1) {
    QImage image(size * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    return image;
}

TEST(CaptionPainter, DrawsWhatALabelDraws) {
    for (const bool wraps : {false, true}) {
        VLabel label(styled);
        label.setBackColor(Qt::white);
        label.setForeColor(Qt::black);
        label.setBulletPrefix(QStringLiteral("* "));
        label.setBulletIndent(200);
        label.setWordWrap(wraps);
        label.resize(90, 120);
        const QImage expected = label.grab().toImage().convertToFormat(QImage::Format_RGB32);

        CaptionPainter caption(styled);
        caption.setFont(label.font());
        caption.setColor(Qt::black);
        caption.setBulletPrefix(QStringLiteral("* "));
        caption.setBulletIndent(200);
        caption.setWordWrap(wraps);
        QImage drawn = White(QSize(90, 120), expected.devicePixelRatio());
        QPainter painter(&drawn);
        caption.draw(painter, QRectF(0, 0, 90, 120));
        painter.end();
        if (qApp->devicePixelRatio() == 1) {
            EXPECT_EQ(drawn, expected) << wraps;
        }
    }
}

TEST(CaptionPainter, MeasuresWithAndWithoutWrapping) {
    CaptionPainter caption(QStringLiteral("some words that wrap where there is no room for them"));
    const QSizeF line = caption.size();
    EXPECT_EQ(caption.size(50), line);
    caption.setWordWrap(true);
    EXPECT_EQ(caption.size(), line);
    EXPECT_LE(caption.size(100).width(), 100);
    EXPECT_GE(caption.size(100).height(), 3 * line.height());
}

TEST(CaptionPainter, TellsItsRunsInOrder) {
    CaptionPainter caption(styled);
    caption.setColor(Qt::black);
    caption.setBulletPrefix(QStringLiteral("* "));
    const QList<CaptionRun> runs = caption.runs();
    QStringList texts;
    for (const CaptionRun& run : runs) {
        texts.append(run.isBullet ? QStringLiteral("(bullet)") : run.text);
    }
    EXPECT_EQ(texts, QStringList({QStringLiteral("plain "), QStringLiteral("bold"),
                                  QStringLiteral(" "), QStringLiteral("red"),
                                  QStringLiteral("(bullet)"), QStringLiteral("second line")}));
    EXPECT_EQ(runs.at(0).color, QColor(Qt::black));
    EXPECT_EQ(runs.at(3).color, QColor(255, 0, 0));
    EXPECT_EQ(runs.at(1).rect.left(), runs.at(0).rect.right());
    EXPECT_GT(runs.at(5).rect.top(), runs.at(0).rect.top());
}

TEST(CaptionPainter, FindsTheRunAtAPoint) {
    CaptionPainter caption(styled);
    const QList<CaptionRun> runs = caption.runs();
    for (int index = 0; index < runs.size(); ++index) {
        EXPECT_EQ(caption.runAt(runs.at(index).rect.center()), index);
    }
    EXPECT_EQ(caption.runAt(QPointF(-1, 3)), -1);
    EXPECT_EQ(caption.runAt(QPointF(3, 5000)), -1);
}

TEST(CaptionPainter, CutsOffWhatDoesNotFitAndRestoresThePainter) {
    CaptionPainter caption(QStringLiteral("a long caption in a small rectangle"));
    caption.setColor(Qt::black);
    QImage image = White(QSize(100, 60));
    QPainter painter(&image);
    painter.setPen(Qt::green);
    const QTransform before = painter.transform();
    caption.draw(painter, QRectF(20, 20, 30, 10));
    EXPECT_EQ(painter.transform(), before);
    EXPECT_EQ(painter.pen().color(), QColor(Qt::green));
    painter.end();
    int inside = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const bool isWhite = image.pixelColor(x, y) == QColor(Qt::white);
            const bool isInside = QRect(20, 20, 30, 10).contains(x, y);
            EXPECT_TRUE(isWhite || isInside) << x << ' ' << y;
            inside += isInside && !isWhite ? 1 : 0;
        }
    }
    EXPECT_GT(inside, 10);
}

TEST(CaptionPainter, IsAsLargeOnPaperAsOnTheScreen) {
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    QPdfWriter paper(&file);
    constexpr int dots = 1200;
    paper.setResolution(dots);
    // The same caption as a picture of the paper's resolution.
    QImage image(1200, 1200, QImage::Format_RGB32);
    constexpr double inchesPerMeter = 39.37;
    image.setDotsPerMeterX(static_cast<int>(dots * inchesPerMeter));
    image.setDotsPerMeterY(static_cast<int>(dots * inchesPerMeter));
    image.fill(Qt::white);
    CaptionPainter caption(QStringLiteral("M|CR|* x"));
    caption.setColor(Qt::black);
    caption.setBulletPrefix(QStringLiteral("* "));
    QFont font = caption.font();
    font.setPointSizeF(36);
    caption.setFont(font);
    {
        QPainter painter(&paper);
        caption.draw(painter, QRectF(0, 0, 4000, 4000));
        QPainter imagePainter(&image);
        caption.draw(imagePainter, QRectF(0, 0, 1200, 1200));
    }
    EXPECT_GT(file.size(), 500);
    int lowest = 0;
    int rightmost = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y).lightness() < 128) {
                lowest = std::max(lowest, y);
                rightmost = std::max(rightmost, x);
            }
        }
    }
    // Two lines of 36 points are at least an inch high, and an M is a third of an inch wide.
    EXPECT_GT(lowest, 700);
    EXPECT_GT(rightmost, 300);
}

TEST(CaptionPainter, ReportsTheErrorOfACaptionAndDrawsTheRest) {
    CaptionPainter caption(QStringLiteral("|Fore:99999999999,0,0|text"));
    EXPECT_FALSE(caption.errorString().isEmpty());
    caption.setCaption(QStringLiteral("text"));
    EXPECT_EQ(caption.errorString(), QString());
    EXPECT_EQ(caption.plainText(), QStringLiteral("text"));
}

TEST(CaptionPainter, CopiesAreIndependent) {
    CaptionPainter one(QStringLiteral("one"));
    CaptionPainter two = one;
    two.setCaption(QStringLiteral("two and more"));
    EXPECT_EQ(one.caption(), QStringLiteral("one"));
    EXPECT_LT(one.size().width(), two.size().width());
    one = std::move(two);
    EXPECT_EQ(one.caption(), QStringLiteral("two and more"));
}

}  // namespace
}  // namespace lumenkit::testing
