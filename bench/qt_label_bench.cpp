// Benchmarks of labels on Qt: against Qt's rich text, and against drawing only the same glyphs.
#include <QImage>
#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <cstdlib>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "bench/marked_texts.h"
#include "bench/qt_stage.h"
#include "bench/ratio_table.h"
#include "bench/require.h"
#include "bench/styled_lines.h"
#include "frame/host/application.h"
#include "runtime/qt/qt_text.h"
#include "vlabel/caption_compiler.h"

namespace {

using lumenkit::Text;
using lumenkit::bench::AddComparison;
using lumenkit::bench::captionCount;
using lumenkit::bench::CaptionOf;
using lumenkit::bench::HtmlOf;
using lumenkit::bench::Keep;
using lumenkit::bench::Marked;
using lumenkit::bench::MarkedTexts;
using lumenkit::bench::QtStage;
using lumenkit::bench::Ratio;
using lumenkit::bench::Require;
using lumenkit::bench::Side;
using lumenkit::bench::StageWindow;
using lumenkit::bench::StyledLine;
using lumenkit::bench::StyledLines;
using lumenkit::bench::StyledRun;
namespace host = lumenkit::host;
namespace qt = lumenkit::qt;

constexpr host::Placement place = {.left = 0, .top = 0, .width = 10'000, .height = 9'000};
constexpr float wrapWidth = 3'000;  // 200 pixels

QImage NewImage(QSize size) {
    return {size, QImage::Format_ARGB32_Premultiplied};
}

// ---- Glyphs with their places

struct Drawn {
    QPointF place;
    QGlyphRun glyphs;
    QColor color;
    double scale = 1;  // device pixels of the glyphs per pixel
};

void Replay(QPainter& painter, const QRect& exposed, const std::vector<Drawn>& drawn) {
    painter.fillRect(exposed, Qt::white);
    QColor color;
    for (const Drawn& one : drawn) {
        if (color != one.color) {
            color = one.color;
            painter.setPen(color);
        }
        if (one.scale == 1) {
            painter.drawGlyphRun(one.place, one.glyphs);
            continue;
        }
        const QTransform pixels = painter.transform();
        painter.translate(one.place);
        painter.scale(1 / one.scale, 1 / one.scale);
        painter.drawGlyphRun({}, one.glyphs);
        painter.setTransform(pixels);
    }
}

// The glyphs that a label draws for the lines.
std::vector<Drawn> GlyphsOf(qt::Surface& surface, const std::vector<StyledLine>& lines,
                            double scale) {
    const auto font = qt::Font::From(surface.CurrentFont())->Clone();
    std::vector<Drawn> drawn;
    double y = 0;
    for (const StyledLine& line : lines) {
        double x = 0;
        for (const StyledRun& run : line) {
            font->SetBold(run.bold);
            font->SetItalic(run.italic);
            const auto face = font->FaceAt(scale);
            for (const QGlyphRun& glyphs : face->GlyphsOf(run.words).runs) {
                drawn.push_back({QPointF(x, y + face->Ascent()), glyphs,
                                 run.blue ? QColor(0, 0, 200) : QColor(Qt::black), scale});
            }
            x += face->WidthOf(run.words);
        }
        y += font->FaceAt(scale)->LineHeight();
    }
    return drawn;
}

// The glyphs that rich text draws for the document.
std::vector<Drawn> GlyphsOf(const QTextDocument& document) {
    std::vector<Drawn> drawn;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextFragment fragment = part.fragment();
            const QBrush brush = fragment.charFormat().foreground();
            const QColor color = brush.style() == Qt::NoBrush ? QColor(Qt::black) : brush.color();
            for (const QGlyphRun& glyphs : block.layout()->glyphRuns(
                     fragment.position() - block.position(), fragment.length())) {
                drawn.push_back({block.layout()->position(), glyphs, color});
            }
        }
    }
    return drawn;
}

// ---- Labels

class Label {
 public:
    Label(QtStage& stage, const Text& caption, const host::Placement& where = place)
        : label_(stage.Place(u"VLabel", where, window_)) {
        label_->Drawing().Refresh();  // changes repaint it only after the first painting
        Assign(caption);
    }
    // Moves the label to a place where it lays its caption out and draws nothing.
    void MoveOutOfSight() {
        host::Placement away = label_->Place();
        away.left = 30'000;
        label_->Move(away);
    }
    void Assign(const Text& caption) { label_->Automation().Let(u"Caption", caption); }
    void LetWrap() { label_->Automation().Let(u"WordWrap", true); }
    void DrawOn(QImage& image, const QRect& exposed) {
        QPainter painter(&image);
        painter.setClipRect(exposed);
        label_->Drawing().DrawOn(painter, exposed);
    }
    QSize Size() const { return label_->size(); }
    std::vector<Drawn> Glyphs(const std::vector<StyledLine>& lines) {
        return GlyphsOf(label_->Drawing(), lines, label_->devicePixelRatioF());
    }

 private:
    StageWindow window_;
    std::unique_ptr<qt::HostedControl> label_;
};

std::vector<StyledLine> Lines(int count) {
    MarkedTexts texts;
    return StyledLines(texts, count);
}

// Repaints the exposed part of `count` lines, or all of them if `exposed` is null.
Side Repaint(QtStage& stage, int count, QRect exposed = {}) {
    auto label = std::make_shared<Label>(stage, CaptionOf(Lines(count)));
    auto image = std::make_shared<QImage>(NewImage(label->Size()));
    const QRect part = exposed.isNull() ? image->rect() : exposed;
    return {[label, image, part] { label->DrawOn(*image, part); }};
}

Side ReplayOf(QtStage& stage, int count) {
    Label label(stage, CaptionOf(Lines(count)));
    auto image = std::make_shared<QImage>(NewImage(label.Size()));
    label.DrawOn(*image, image->rect());
    const QImage painted = *image;
    const auto replay = [image, drawn = label.Glyphs(Lines(count))] {
        QPainter painter(image.get());
        painter.setClipRect(image->rect());
        Replay(painter, image->rect(), drawn);
    };
    replay();
    Require(*image == painted, "the replay draws something else than the label");
    return {replay};
}

// ---- Rich text

std::shared_ptr<QTextDocument> NewDocument(const Text& html) {
    auto document = std::make_shared<QTextDocument>();
    document->setUndoRedoEnabled(false);
    document->setHtml(qt::ToQString(html));
    document->adjustSize();
    return document;
}

Side RepaintRichText(int count) {
    auto document = NewDocument(HtmlOf(Lines(count)));
    auto image = std::make_shared<QImage>(NewImage({700, 700}));
    return {[document, image] {
        QPainter painter(image.get());
        painter.fillRect(image->rect(), Qt::white);
        document->drawContents(&painter);
    }};
}

Side ReplayOfRichText(int count) {
    auto image = std::make_shared<QImage>(NewImage({700, 700}));
    return {[image, drawn = GlyphsOf(*NewDocument(HtmlOf(Lines(count))))] {
        QPainter painter(image.get());
        Replay(painter, image->rect(), drawn);
    }};
}

std::vector<QString> Html(const std::vector<Marked>& texts) {
    std::vector<QString> html;
    for (const Marked& text : texts) {
        html.push_back(QString::fromStdString(text.html));
    }
    return html;
}

Side SetHtml(std::vector<QString> texts) {
    auto document = std::make_shared<QTextDocument>();
    document->setUndoRedoEnabled(false);
    return {[document, texts = std::move(texts)] {
                for (const QString& html : texts) {
                    document->setHtml(html);
                }
            },
            captionCount};
}

Side WrapHtml(std::vector<QString> texts) {
    auto document = std::make_shared<QTextDocument>();
    document->setUndoRedoEnabled(false);
    return {[document, texts = std::move(texts)] {
                for (const QString& html : texts) {
                    document->setHtml(html);
                    document->setTextWidth(200);
                    const QSizeF size = document->size();
                    Keep(&size);
                }
            },
            captionCount};
}

// ---- Compiling and wrapping

class NoHost final : public host::Application, public host::Interaction {
 public:
    Text ExeName() override { return u"bench"; }
    void Beep() override {}
    void MsgBox(lumenkit::TextView, host::MessageStyle,
                std::optional<lumenkit::TextView>) override {
        std::abort();
    }
};

struct Compiler {
    NoHost host;
    lumenkit::ModuleErrors errors{host, host};
    lumenkit::Module module{errors, u"VLABEL"};
    lumenkit::CaptionCompiler compiler{module};
};

Side Compile(std::vector<Text> captions) {
    return {[compiler = std::make_shared<Compiler>(), captions = std::move(captions)] {
                for (const Text& caption : captions) {
                    compiler->compiler.CompileCaption(caption);
                    Keep(&compiler->compiler.Compiled());
                }
            },
            captionCount};
}

Side CompileAndWrap(QtStage& stage, std::vector<Text> captions) {
    auto label = std::make_shared<Label>(
        stage, u"", host::Placement{.left = 0, .top = 0, .width = wrapWidth, .height = 9'000});
    label->LetWrap();
    label->MoveOutOfSight();
    return {[label, captions = std::move(captions)] {
                for (const Text& caption : captions) {
                    label->Assign(caption);
                }
            },
            captionCount};
}

// ---- Assigning another caption, painting included

// A widget that draws prepared glyphs.
class ReplayWidget final : public QWidget {
 public:
    explicit ReplayWidget(QWidget& window) : QWidget(&window) {
        setAttribute(Qt::WA_OpaquePaintEvent);
        setGeometry(qt::ToPixels(place));
        show();
        QApplication::processEvents();
    }
    void Show(const std::vector<Drawn>& drawn) {
        drawn_ = &drawn;
        repaint();
    }

 private:
    void paintEvent(QPaintEvent* event) override {
        QPainter painter(this);
        if (drawn_ != nullptr) {
            Replay(painter, event->rect(), *drawn_);
        }
    }

    const std::vector<Drawn>* drawn_ = nullptr;
};

std::vector<std::vector<StyledLine>> ChangingLines(int count) {
    MarkedTexts texts;
    std::vector<std::vector<StyledLine>> all;
    for (int i = 0; i < captionCount; ++i) {
        all.push_back(StyledLines(texts, count));
    }
    return all;
}

Side Change(QtStage& stage, int count) {
    auto label = std::make_shared<Label>(stage, u"");
    std::vector<Text> captions;
    for (const auto& lines : ChangingLines(count)) {
        captions.push_back(CaptionOf(lines));
    }
    return {[label, captions = std::move(captions)] {
                for (const Text& caption : captions) {
                    label->Assign(caption);
                }
            },
            captionCount};
}

Side ReplayChange(QtStage& stage, int count) {
    struct Shown {
        StageWindow window;
        ReplayWidget widget{window};
        std::vector<std::vector<Drawn>> all;
    };
    auto shown = std::make_shared<Shown>();
    Label label(stage, u"");
    for (const auto& lines : ChangingLines(count)) {
        shown->all.push_back(label.Glyphs(lines));
    }
    return {[shown] {
                for (const auto& drawn : shown->all) {
                    shown->widget.Show(drawn);
                }
            },
            captionCount};
}

}  // namespace

int main(int argc, char** argv) {
    QtStage stage;
    const auto againstHtml = [&](const char* what, int units, int runs) {
        const std::vector<Marked> texts = lumenkit::bench::Texts(units, runs);
        AddComparison({what, "caption", Compile(Captions(texts)), SetHtml(Html(texts)),
                       Ratio::TimesFaster, ">= 150x"});
    };
    againstHtml("compile small (120 units, 7 runs), against setHtml", 120, 7);
    againstHtml("compile medium (2,000 units, 80 runs), against setHtml", 2'000, 80);
    againstHtml("compile large (30,000 units, 1,200 runs), against setHtml", 30'000, 1'200);
    const auto wrapping = [&](const char* what, int units, int runs) {
        const std::vector<Marked> texts = lumenkit::bench::Texts(units, runs);
        AddComparison({what, "caption", CompileAndWrap(stage, Captions(texts)),
                       WrapHtml(Html(texts)), Ratio::TimesFaster, ">= 50x"});
    };
    wrapping("Qt: compile + wrap to 200 px (120 units, 7 runs), against Qt", 120, 7);
    wrapping("Qt: compile + wrap to 200 px (2,000 units, 80 runs), against Qt", 2'000, 80);

    AddComparison({"Qt: repaint 30 lines, against replaying their glyphs", "repaint",
                   Repaint(stage, 30), ReplayOf(stage, 30), Ratio::TimesSlower, "<= 1.10x"});
    AddComparison({"(Qt's rich text, 30 lines, against replaying its glyphs)", "repaint",
                   RepaintRichText(30), ReplayOfRichText(30), Ratio::TimesSlower, ""});
    const QRect exposed(0, 0, 666, 75);
    AddComparison({"Qt: repaint 30 lines of which 5 are visible, against those", "repaint",
                   Repaint(stage, 30, exposed), Repaint(stage, 5, exposed), Ratio::TimesSlower,
                   "<= 1.05x"});
    const auto changing = [&](const char* what, int lines) {
        AddComparison({what, "change", Change(stage, lines), ReplayChange(stage, lines),
                       Ratio::TimesSlower, "<= 1.40x"});
    };
    changing("Qt: another caption of 3 lines to pixels, against replaying it", 3);
    changing("Qt: another caption of 30 lines to pixels, against replaying it", 30);
    return lumenkit::bench::RunComparisons(argc, argv);
}
