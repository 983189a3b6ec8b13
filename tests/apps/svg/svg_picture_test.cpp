// The documents as another program draws them.
#include <QColor>
#include <QImage>
#include <QRect>
#include <QString>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>

#include <gtest/gtest.h>

#include "tests/apps/program.h"

namespace lumenkit::testing {

namespace {

QImage Draw(const std::string& arguments, const std::string& caption) {
    const Outcome outcome = RunProgram("compile --svg " + arguments, caption);
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    const std::string document = FileWith(outcome.output);
    const std::string picture = document + ".png";
    EXPECT_EQ(std::system(("rsvg-convert " + document + " -o " + picture).c_str()), 0)
        << "without rsvg-convert: scripts/setup.sh svg";
    const QImage drawn(QString::fromStdString(picture));
    for (const std::string& path : {document, picture}) {
        std::remove(path.c_str());
    }
    return drawn.convertToFormat(QImage::Format_RGB32);
}

int Count(const QImage& picture, const QRect& area, const std::function<bool(QColor)>& has) {
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            count += has(picture.pixelColor(x, y)) ? 1 : 0;
        }
    }
    return count;
}

bool IsInk(const QColor& color) {
    return color != QColor(Qt::white);
}
bool IsBlue(const QColor& color) {
    return color.blue() > color.red() + 100;
}
bool IsBlack(const QColor& color) {
    return color.lightness() < 60 && !IsBlue(color);
}

// One row a line, X for a black pixel.
std::string Pixels(const QImage& picture, const QRect& area) {
    std::string rows;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            const QColor color = picture.pixelColor(x, y);
            rows += color == QColor(Qt::black) ? 'X' : color == QColor(Qt::white) ? '.' : '?';
        }
        rows += '\n';
    }
    return rows;
}

TEST(SvgPicture, HasTheMarkAndTheTextsOfItsLines) {
    // At 10 points, a unit is 6.67 pixels wide and a line 16 pixels high. The letter c of Arial and
    // of its substitutes is as wide as a unit.
    const QImage picture = Draw("--font Arial,10 --bullet-prefix '* ' --bullet-indent 450",
                                "* |Fore:0,0,255|cccc|Fore:0,0,0|cccc|CR|cccc");
    ASSERT_EQ(picture.size(), QSize(85, 34));
    EXPECT_EQ(Pixels(picture, {0, 5, 9, 9}),
              ".........\n"
              ".........\n"
              "...XXX...\n"
              "..XXXXX..\n"
              "..XXXXX..\n"
              "..XXXXX..\n"
              "...XXX...\n"
              ".........\n"
              ".........\n");
    const QRect blue(30, 0, 27, 16);
    const QRect black(57, 0, 27, 16);
    const QRect below(30, 16, 27, 16);
    EXPECT_GT(Count(picture, blue, IsBlue), 20);
    EXPECT_GT(Count(picture, black, IsBlack), 20);
    EXPECT_GT(Count(picture, below, IsBlack), 20);
    EXPECT_EQ(Count(picture, below, IsBlue), 0);
    EXPECT_EQ(Count(picture, {0, 0, 2, 34}, IsInk), 0) << "left of the mark";
    EXPECT_EQ(Count(picture, {7, 0, 22, 34}, IsInk), 0) << "between the mark and the text";
    EXPECT_EQ(Count(picture, {58, 16, 27, 18}, IsInk), 0) << "right of the last line";
}

TEST(SvgPicture, IsClippedAtTheWidthOfTheLabel) {
    const QImage picture =
        Draw("--width 600 --back-color 0,0,64 --fore-color 255,255,255", "nnnnnnnnnnnnnnnn");
    ASSERT_EQ(picture.size(), QSize(40, 18));
    EXPECT_EQ(picture.pixelColor(0, 0), QColor(0, 0, 64));
    EXPECT_EQ(picture.pixelColor(39, 17), QColor(0, 0, 64));
}

}  // namespace

}  // namespace lumenkit::testing
