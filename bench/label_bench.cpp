// Benchmarks of drawing captions on the memory runtime: against replaying the display list, against
// drawing only the visible part, against Pango's layout, and the growth of the cost per unit with
// the length of the caption. All rows include the work of the memory runtime, which keeps the
// display list.
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <variant>
#include <vector>

#include <pango/pangoft2.h>

#include "bench/marked_texts.h"
#include "bench/ratio_table.h"
#include "frame/utf8.h"
#include "runtime/memory/form.h"
#include "runtime/memory/hosted_control.h"
#include "runtime/memory/metrics.h"
#include "vlabel/vlabel.h"

namespace {

using lumenkit::ClassTable;
using lumenkit::Color;
using lumenkit::Text;
using lumenkit::VLabel;
using lumenkit::bench::AddComparison;
using lumenkit::bench::captionCount;
using lumenkit::bench::Marked;
using lumenkit::bench::MarkedTexts;
using lumenkit::bench::Ratio;
using lumenkit::bench::Side;
namespace memory = lumenkit::memory;

constexpr float wrapWidth = 3000;  // 200 pixels
constexpr int pangoWrapWidth = 200 * PANGO_SCALE;

const ClassTable classes = {.libraryName = u"lumenkit", .classes = {&lumenkit::vlabelClass, 1}};

// A label with word wrap that has been painted once. Ends the program if painting reports an error,
// for example a height over the maximum.
class PlacedLabel {
 public:
    explicit PlacedLabel(const Text& caption, float width = wrapWidth, float fontSize = 10) {
        placed_.StartNew();
        placed_.Resize(width, 1500);
        Label().pGetFont()->SetSize(fontSize);
        Label().pLetWordWrap(true);
        Label().pLetBulletPrefix(u"* ");
        Label().pLetBulletIndent(300);
        Label().pLetCaption(caption);
        Paint();
        for (const memory::ShownMessage* shown : form_.GetLog().Messages()) {
            std::fprintf(stderr, "%s\n", lumenkit::ToUtf8(shown->text).c_str());
            std::abort();
        }
    }

    VLabel& Label() { return static_cast<VLabel&>(placed_.GetControl()); }
    memory::Surface& Surface() { return placed_.Drawing(); }
    void Paint() { lumenkit::bench::Keep(&placed_.Paint()); }
    /// Also repaints, because the label has been painted before.
    void Assign(const Text& caption) { Label().pLetCaption(caption); }

 private:
    memory::Form form_{classes};
    memory::HostedControl placed_{form_, lumenkit::vlabelClass, {.isLogged = false}};
};

std::shared_ptr<PlacedLabel> NewLabel(const Text& caption) {
    return std::make_shared<PlacedLabel>(caption);
}

// Draws the display list of a label again on the same surface, with only the calls that it needs.
class Replay {
 public:
    explicit Replay(std::shared_ptr<PlacedLabel> label) : label_(std::move(label)) {
        for (const memory::DisplayItem& item : label_->Surface().Drawn().Items()) {
            if (const auto* print = std::get_if<memory::PrintItem>(&item)) {
                items_.emplace_back(Printed{*print, Text(print->text)});
            } else if (const auto* box = std::get_if<memory::BoxItem>(&item)) {
                items_.emplace_back(*box);
            }
        }
    }

    void operator()() {
        surface_.Cls();
        for (const auto& item : items_) {
            std::visit([this](const auto& one) { Draw(one); }, item);
        }
        lumenkit::bench::Keep(&surface_.Drawn());
    }

 private:
    struct Printed {
        memory::PrintItem how;
        Text text;
    };

    void Draw(const Printed& print) {
        SetColor(print.how.color);
        Set(bold_, print.how.bold, [this](bool bold) { font_->SetBold(bold); });
        Set(italic_, print.how.italic, [this](bool italic) { font_->SetItalic(italic); });
        Set(size_, print.how.size, [this](float size) { font_->SetSize(size); });
        surface_.SetCurrentX(print.how.x);
        surface_.SetCurrentY(print.how.y);
        surface_.Print(print.text);
    }
    void Draw(const memory::BoxItem& box) {
        SetColor(box.color);
        surface_.FillBox(box.x1, box.y1, box.x2, box.y2, Color{});
    }
    void SetColor(Color color) {
        Set(color_, color, [this](Color other) { surface_.SetForeColor(other); });
    }
    template <typename T, typename Put>
    static void Set(std::optional<T>& current, T wanted, Put&& put) {
        if (current != wanted) {
            put(wanted);
            current = wanted;
        }
    }

    std::shared_ptr<PlacedLabel> label_;
    memory::Surface& surface_ = label_->Surface();
    lumenkit::host::FontRef font_ = surface_.CurrentFont();
    std::vector<std::variant<Printed, memory::BoxItem>> items_;
    std::optional<Color> color_;
    std::optional<bool> bold_;
    std::optional<bool> italic_;
    std::optional<float> size_;
};

Side Repaint(const Text& caption) {
    return {[label = NewLabel(caption)] { label->Paint(); }};
}

// Uses a font so small that the longest caption does not exceed the maximum height. The figures are
// per text unit.
Side RepaintUnits(const Text& caption, int unitsOfALine) {
    constexpr float fontSize = 1;
    const float width = static_cast<float>(unitsOfALine * memory::unitWidthPerPoint) * fontSize;
    return {[label = std::make_shared<PlacedLabel>(caption, width, fontSize)] { label->Paint(); },
            static_cast<double>(caption.size())};
}

// Repaints a label of which the surface shows only the part above `visibleBottom`.
Side RepaintVisible(const Text& caption, float visibleBottom) {
    auto label = NewLabel(caption);
    label->Surface().SetVisibleBottom(visibleBottom);
    return {[label] { label->Paint(); }};
}

Side ReplayOf(const Text& caption) {
    return {[replay = std::make_shared<Replay>(NewLabel(caption))] { (*replay)(); }};
}

Side CompileAndDraw(std::vector<Text> captions) {
    return {[label = NewLabel(u""), captions = std::move(captions)] {
                for (const Text& caption : captions) {
                    label->Assign(caption);
                }
            },
            captionCount};
}

Side Reassign(const Text& caption) {
    return {[label = NewLabel(caption), caption] { label->Assign(caption); }};
}

// Pango's layout of markup into lines: it chooses the glyphs and draws none.
class PangoLayouts {
 public:
    PangoLayouts()
        : fonts_(pango_ft2_font_map_new(), g_object_unref),
          context_(pango_font_map_create_context(fonts_.get()), g_object_unref),
          layout_(pango_layout_new(context_.get()), g_object_unref) {
        PangoFontDescription* const font = pango_font_description_from_string("Sans 10");
        pango_layout_set_font_description(layout_.get(), font);
        pango_font_description_free(font);
        pango_layout_set_width(layout_.get(), pangoWrapWidth);
    }

    void LayOut(const std::string& markup) {
        pango_layout_set_markup(layout_.get(), markup.data(), static_cast<int>(markup.size()));
        int width = 0;
        int height = 0;
        pango_layout_get_size(layout_.get(), &width, &height);
        lumenkit::bench::Keep(&height);
    }

 private:
    std::unique_ptr<PangoFontMap, decltype(&g_object_unref)> fonts_;
    std::unique_ptr<PangoContext, decltype(&g_object_unref)> context_;
    std::unique_ptr<PangoLayout, decltype(&g_object_unref)> layout_;
};

Side Pango(std::vector<Marked> texts) {
    return {[layouts = std::make_shared<PangoLayouts>(), texts = std::move(texts)] {
                for (const Marked& text : texts) {
                    layouts->LayOut(text.markup);
                }
            },
            captionCount};
}

// A caption of `lines` lines: a title, then bulleted items with commands.
Text Document(int lines) {
    MarkedTexts texts;
    Text document = u"|B:1|Title|B:0|";
    for (int line = 1; line < lines; ++line) {
        document += u"|CR|* " + texts.Next(50, 3).caption;
    }
    return document;
}

// One line of words without commands.
Text OneLine(int units) {
    return lumenkit::FromUtf8(MarkedTexts().Words(units));
}

// One line of words with many commands.
Text ManyRuns(int units) {
    MarkedTexts texts;
    Text line;
    while (line.size() + 60 < static_cast<std::size_t>(units)) {
        line += u"|B:1|" + lumenkit::FromUtf8(texts.Words(50)) + u"|B:0|";
    }
    return line + Text(static_cast<std::size_t>(units) - line.size(), u'x');
}

}  // namespace

int main(int argc, char** argv) {
    const auto againstPango = [](const char* what, int units, int runs) {
        const std::vector<Marked> texts = lumenkit::bench::Texts(units, runs);
        AddComparison({what, "caption", CompileAndDraw(lumenkit::bench::Captions(texts)),
                       Pango(texts), Ratio::TimesFaster, ">= 50x"});
    };
    againstPango("compile + wrap to 200 px (120 units, 7 runs), against Pango", 120, 7);
    againstPango("compile + wrap to 200 px (2,000 units, 80 runs), against Pango", 2'000, 80);

    const Text document = Document(30);
    AddComparison({"compile + wrap + draw 30 lines, against repainting them", "caption",
                   Reassign(document), Repaint(document), Ratio::TimesSlower, ""});
    AddComparison({"repaint 30 lines, against replaying what is drawn", "repaint",
                   Repaint(document), ReplayOf(document), Ratio::TimesSlower, ""});
    const Text visible = Document(5);
    constexpr float visibleBottom = 240 * 8;
    AddComparison({"repaint 30 lines of which 5 are visible, against all visible", "repaint",
                   RepaintVisible(document, visibleBottom), Repaint(document), Ratio::TimesFaster,
                   ""});
    AddComparison({"repaint 30 lines of which 5 are visible, against only those", "repaint",
                   RepaintVisible(document, visibleBottom), Repaint(visible), Ratio::TimesSlower,
                   ""});

    const auto growth = [](const char* what, Text (*caption)(int), int unitsOfALine) {
        AddComparison({what, "unit", RepaintUnits(caption(32'767), unitsOfALine),
                       RepaintUnits(caption(2'000), unitsOfALine), Ratio::TimesSlower, "<= 1.10x"});
    };
    growth("wrap one run, wide, 32,767 units against 2,000", OneLine, 300);
    growth("wrap one run, narrow, 32,767 units against 2,000", OneLine, 30);
    growth("wrap many runs, wide, 32,767 units against 2,000", ManyRuns, 300);
    growth("wrap many runs, narrow, 32,767 units against 2,000", ManyRuns, 30);
    return lumenkit::bench::RunComparisons(argc, argv);
}
