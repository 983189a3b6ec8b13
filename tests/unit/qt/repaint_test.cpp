// A label draws exactly its glyph runs, and draws them for a reason only.
#include <QImage>
#include <QPaintEvent>
#include <QPainter>
#include <QTest>
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
    const double scale = label.devicePixelRatioF();
    const std::vector<Drawn> runs = RunsOf(surface, scale);
    {
        QPainter painter(&image);
        surface.DrawOn(painter, QRect(QPoint(0, 0), image.size()));
    }
    QImage expected(image.size(), image.format());
    QPainter painter(&expected);
    painter.fillRect(expected.rect(), Qt::white);
    for (const Drawn& run : runs) {
        painter.setPen(run.color);
        painter.resetTransform();
        painter.translate(run.place);
        painter.scale(1 / scale, 1 / scale);
        for (const QGlyphRun& glyphs : run.glyphs) {
            painter.drawGlyphRun({}, glyphs);
        }
    }
    painter.end();
    EXPECT_EQ(image, expected);
}

TEST(QtRepaintTest, ALabelThatCannotBeDrawnReportsItOnceForEachReason) {
    testing::QtForm form(lumenkitClasses);
    HostedControl& label = form.Place(u"VLabel", {0, 0, 3000, 1500});
    QTest::qWait(20);
    label.Automation().Let(u"Caption", Text(u"|size:5000|x"));
    QTest::qWait(20);
    const std::size_t reported = form.interaction.said.size();
    EXPECT_EQ(reported, 2U) << "a beep and a message";
    for (int exposure = 0; exposure < 3; ++exposure) {
        form.window.hide();
        form.window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&form.window));
        form.window.repaint();
        label.setPalette(QPalette(exposure == 1 ? Qt::darkGray : Qt::white));
        QTest::qWait(20);
    }
    EXPECT_EQ(form.interaction.said.size(), reported);
    label.Automation().Call(u"Refresh");
    QTest::qWait(20);
    EXPECT_EQ(form.interaction.said.size(), 2 * reported);
}

// Counts the notifications that the holder of a font gets.
class Holder final : public FontListener {
 public:
    void AttributesSet() override { ++notifications; }
    int notifications = 0;
};

TEST(QtRepaintTest, DrawingNotifiesNoHolderOfTheFontAndKeepsItsWeight) {
    testing::QtForm form(lumenkitClasses);
    HostedControl& label = form.Place(u"VLabel", {0, 0, 3000, 1500});
    label.Automation().Let(u"Caption", Text(u"|b:1|x|b:0|y|i:1|z|size:20|large"));
    const auto font = Font::From(label.Drawing().CurrentFont());
    for (const std::int16_t weight : {std::int16_t{300}, std::int16_t{900}}) {
        font->SetWeight(weight);
        Holder holder;
        font->Add(holder);
        for (int drawing = 0; drawing < 10; ++drawing) {
            label.Automation().Call(u"Refresh");
            QTest::qWait(1);
        }
        font->Remove(holder);
        EXPECT_EQ(holder.notifications, 0);
        EXPECT_EQ(font->Weight(), weight);
    }
}

}  // namespace
}  // namespace lumenkit::qt
