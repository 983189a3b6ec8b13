// A label draws exactly its glyph runs.
#include <QImage>
#include <QPaintEvent>
#include <QPainter>
#include <vector>

#include <gtest/gtest.h>

#include "project/lumenkit_classes.h"
#include "runtime/qt/surface_widget.h"
#include "tests/support/qt_form.h"

namespace lumenkit::qt {
namespace {

struct Drawn {
    QPointF place;
    QList<QGlyphRun> glyphs;
    QColor color;
};

Text ThirtyLines() {
    Text caption;
    for (int line = 0; line < 30; ++line) {
        caption +=
            u"A line with |B:1|bold|B:0|, |i:1|slanted|i:0| and "
            u"|Fore:0,0,200|coloured|Fore:0,0,0| words in it to fill its width|CR|";
    }
    return caption;
}

// Returns the runs of ThirtyLines, placed as the label places them.
std::vector<Drawn> RunsOf(Surface& surface, double scale) {
    struct Part {
        TextView text;
        bool bold = false;
        bool slanted = false;
        QColor color = Qt::black;
    };
    const Part parts[] = {{u"A line with "},
                          {u"bold", true},
                          {u", "},
                          {u"slanted", false, true},
                          {u" and "},
                          {u"coloured", false, false, QColor(0, 0, 200)},
                          {u" words in it to fill its width"}};
    const auto font = Font::From(surface.CurrentFont())->Clone();
    std::vector<Drawn> runs;
    double y = 0;
    for (int line = 0; line < 30; ++line) {
        double x = 0;
        for (const Part& part : parts) {
            font->SetBold(part.bold);
            font->SetItalic(part.slanted);
            const auto face = font->FaceAt(scale);
            runs.push_back(
                {QPointF(x, y + face->Ascent()), face->GlyphsOf(part.text).runs, part.color});
            x += face->WidthOf(part.text);
        }
        y += font->FaceAt(scale)->LineHeight();
    }
    return runs;
}

TEST(QtRepaintTest, DrawsWhatItsGlyphsDraw) {
    testing::QtForm form(lumenkitClasses);
    form.window.resize(700, 700);
    HostedControl& label = form.Place(u"VLabel", {0, 0, 10000, 9000});
    label.Automation().Let(u"Caption", ThirtyLines());
    QImage image(label.size(), QImage::Format_ARGB32_Premultiplied);
    Surface& surface = label.Drawing();
    const std::vector<Drawn> runs = RunsOf(surface, label.devicePixelRatioF());
    {
        QPainter painter(&image);
        surface.DrawOn(painter, QRect(QPoint(0, 0), image.size()));
    }
    QImage expected(image.size(), image.format());
    QPainter painter(&expected);
    painter.fillRect(expected.rect(), Qt::white);
    for (const Drawn& run : runs) {
        painter.setPen(run.color);
        for (const QGlyphRun& glyphs : run.glyphs) {
            painter.drawGlyphRun(run.place, glyphs);
        }
    }
    painter.end();
    EXPECT_EQ(image, expected);
}

}  // namespace
}  // namespace lumenkit::qt
