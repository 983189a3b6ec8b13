#include "runtime/qt/kept_picture.h"

#include <QImage>
#include <QPainter>
#include <QPalette>

#include <gtest/gtest.h>

namespace lumenkit::qt {
namespace {

// Draws a picture on a white image of 40 by 40 pixels at `scale` device pixels a pixel.
QImage ImageOf(KeptPicture& picture, double scale) {
    const int side = static_cast<int>(40 * scale);
    QImage image(side, side, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(scale, scale);
    picture.DrawOn(painter, QRectF(0, 0, 40, 40), QPalette());
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

}  // namespace
}  // namespace lumenkit::qt
