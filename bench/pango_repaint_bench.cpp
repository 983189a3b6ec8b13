// Benchmarks of repainting Pango's rich text, against replaying its glyphs: a reference for the
// same figures of labels.
#include <memory>
#include <string>
#include <vector>

#include <pango/pangocairo.h>

#include "bench/ratio_table.h"
#include "bench/require.h"
#include "bench/styled_lines.h"
#include "frame/utf8.h"

namespace {

using lumenkit::bench::MarkedTexts;
using lumenkit::bench::Ratio;
using lumenkit::bench::Require;
using lumenkit::bench::StyledLine;
using lumenkit::bench::StyledRun;

constexpr int side = 700;

std::string MarkupOf(const std::vector<StyledLine>& lines) {
    std::string markup;
    for (const StyledLine& line : lines) {
        markup += markup.empty() ? "" : "\n";
        for (const StyledRun& run : line) {
            const std::string words = lumenkit::ToUtf8(run.words);
            markup += run.bold     ? "<b>" + words + "</b>"
                      : run.italic ? "<i>" + words + "</i>"
                      : run.blue   ? "<span foreground=\"#0000c8\">" + words + "</span>"
                                   : words;
        }
    }
    return markup;
}

class Picture {
 public:
    explicit Picture(const std::string& markup)
        : image_(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, side, side),
                 cairo_surface_destroy),
          cairo_(cairo_create(image_.get()), cairo_destroy),
          layout_(pango_cairo_create_layout(cairo_.get()), g_object_unref) {
        PangoFontDescription* const font = pango_font_description_from_string("Sans 10");
        pango_layout_set_font_description(layout_.get(), font);
        pango_font_description_free(font);
        pango_layout_set_markup(layout_.get(), markup.data(), static_cast<int>(markup.size()));
        Record();
        Repaint();
        const std::vector<unsigned char> painted = Pixels();
        Replay();
        Require(painted == Pixels(), "the replay draws something else than Pango");
    }

    void Repaint() {
        Clear();
        cairo_move_to(cairo_.get(), 0, 0);
        pango_cairo_show_layout(cairo_.get(), layout_.get());
    }

    void Replay() {
        Clear();
        for (const Run& run : runs_) {
            cairo_set_source_rgb(cairo_.get(), 0, 0, run.blue ? 200 / 255.0 : 0);
            cairo_move_to(cairo_.get(), run.x, run.y);
            pango_cairo_show_glyph_string(cairo_.get(), run.font, run.glyphs);
        }
    }

 private:
    struct Run {
        PangoFont* font;  // owned by the layout
        PangoGlyphString* glyphs;
        double x;
        double y;
        bool blue;
    };

    void Record() {
        PangoLayoutIter* const iterator = pango_layout_get_iter(layout_.get());
        do {
            PangoLayoutRun* const run = pango_layout_iter_get_run_readonly(iterator);
            if (run == nullptr) {
                continue;
            }
            PangoRectangle place;
            pango_layout_iter_get_run_extents(iterator, nullptr, &place);
            bool blue = false;
            for (GSList* item = run->item->analysis.extra_attrs; item != nullptr;
                 item = item->next) {
                const auto* const attribute = static_cast<PangoAttribute*>(item->data);
                blue = blue || attribute->klass->type == PANGO_ATTR_FOREGROUND;
            }
            runs_.push_back(
                {run->item->analysis.font, run->glyphs, static_cast<double>(place.x) / PANGO_SCALE,
                 static_cast<double>(pango_layout_iter_get_baseline(iterator)) / PANGO_SCALE,
                 blue});
        } while (pango_layout_iter_next_run(iterator) != 0);
        pango_layout_iter_free(iterator);
    }

    void Clear() {
        cairo_set_source_rgb(cairo_.get(), 1, 1, 1);
        cairo_paint(cairo_.get());
        cairo_set_source_rgb(cairo_.get(), 0, 0, 0);
    }

    std::vector<unsigned char> Pixels() {
        cairo_surface_flush(image_.get());
        const unsigned char* const data = cairo_image_surface_get_data(image_.get());
        return {data, data + cairo_image_surface_get_stride(image_.get()) * side};
    }

    std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)> image_;
    std::unique_ptr<cairo_t, decltype(&cairo_destroy)> cairo_;
    std::unique_ptr<PangoLayout, decltype(&g_object_unref)> layout_;
    std::vector<Run> runs_;
};

}  // namespace

int main(int argc, char** argv) {
    MarkedTexts texts;
    const auto picture =
        std::make_shared<Picture>(MarkupOf(lumenkit::bench::StyledLines(texts, 30)));
    lumenkit::bench::AddComparison({"(Pango's rich text, 30 lines, against replaying its glyphs)",
                                    "repaint",
                                    {[picture] { picture->Repaint(); }},
                                    {[picture] { picture->Replay(); }},
                                    Ratio::TimesSlower,
                                    ""});
    return lumenkit::bench::RunComparisons(argc, argv);
}
