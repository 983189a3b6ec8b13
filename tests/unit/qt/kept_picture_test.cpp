#include "runtime/qt/kept_picture.h"

#include <QImage>
#include <QPainter>
#include <QPalette>

#include <gtest/gtest.h>

namespace lumenkit::qt {
namespace {

// Draws a picture on a white image of 40 by 40 pixels at `scale` device pixels a pixel, and larger
// or smaller by `zoom`.
QImage ImageOf(KeptPicture& picture, double scale, double zoom = 1) {
    const int side = static_cast<int>(40 * scale * zoom);
    QImage image(side, side, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(scale * zoom, scale * zoom);
    picture.DrawOn(painter, QRectF(0, 0, 40, 40), QPalette(), scale);
    painter.end();
    return image;
}

// Returns the black pixels of one row.
int InRow(const QImage& image, int row) {
    int count = 0;
    for (int x = 0; x < image.width(); ++x) {
        count += image.pixelColor(x, row) == Qt::black ? 1 : 0;
    }
    return count;
}

// The largest mark of a bulleted line at several scales and places. Its rows are 4, 6 and 8 pixels
// wide, from the top: the tall box, the middle one and the wide one.
TEST(KeptPicture, BoxesWithOneOriginFitTogetherAtEachScale) {
    const std::vector<int> widths = {4, 6, 8, 8, 8, 8, 6, 4};
    for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0, 2.25}) {
        for (double origin = 8; origin < 10; origin += 0.1) {
            KeptPicture picture;
            for (const host::PixelBox& box :
                 {host::PixelBox{1, -3, 6, 2}, {0, -2, 7, 1}, {2, -4, 5, 3}}) {
                picture.FillPixels({origin, origin + 3}, box, Rgb(0, 0, 0));
            }
            const QImage image = ImageOf(picture, scale);
            std::vector<int> rows;
            for (int y = 0; y < image.height(); ++y) {
                if (const int count = InRow(image, y); count > 0) {
                    rows.push_back(count);
                }
            }
            EXPECT_EQ(rows, widths) << "scale " << scale << ", origin " << origin;
        }
    }
}

// Returns the smallest rectangle around the black pixels.
QRect BlackPart(const QImage& image) {
    QRect around;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == Qt::black) {
                around |= QRect(x, y, 1, 1);
            }
        }
    }
    return around;
}

TEST(KeptPicture, BoxesOfPixelsGrowAndShrinkWithThePainter) {
    KeptPicture picture;
    picture.FillPixels({8, 12}, {0, -4, 7, 3}, Rgb(0, 0, 0));
    EXPECT_EQ(BlackPart(ImageOf(picture, 1)), QRect(8, 8, 8, 8));
    EXPECT_EQ(BlackPart(ImageOf(picture, 1, 4)), QRect(32, 32, 32, 32));
    EXPECT_EQ(BlackPart(ImageOf(picture, 1, 0.25)).size(), QSize(2, 2));
    EXPECT_EQ(BlackPart(ImageOf(picture, 2, 2)), QRect(32, 40, 16, 16));
}

TEST(KeptPicture, ABoxOfOnePixelIsSeenAtEachZoom) {
    KeptPicture picture;
    picture.Fill({8, 8}, {8, 8}, Rgb(0, 0, 0));
    EXPECT_EQ(BlackPart(ImageOf(picture, 1)).size(), QSize(1, 1));
    EXPECT_EQ(BlackPart(ImageOf(picture, 1, 4)), QRect(32, 32, 4, 4));
    EXPECT_EQ(BlackPart(ImageOf(picture, 1, 0.25)).size(), QSize(1, 1));
}

}  // namespace
}  // namespace lumenkit::qt
