// Compiling captions, against Pango's markup parser on the same texts, and against itself: how the
// cost of a unit grows with the caption, and what the worst captions cost.
#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <pango/pango.h>

#include "bench/ratio_table.h"
#include "frame/host/application.h"
#include "frame/host/interaction.h"
#include "frame/utf8.h"
#include "vlabel/caption_compiler.h"

namespace {

using lumenkit::CaptionCompiler;
using lumenkit::Text;
using lumenkit::TextView;
using lumenkit::bench::AddComparison;
using lumenkit::bench::Ratio;
using lumenkit::bench::Side;

// More than the processor's predictors learn by heart.
constexpr int captionCount = 64;

// One text in both languages.
struct Marked {
    Text caption;
    std::string markup;
};

// How a run of text looks.
struct Style {
    bool bold = false;
    bool italic = false;
    int color = 0;
    int size = 0;
};

struct Named {
    const char* caption;
    const char* markup;
};
constexpr std::array colors = {Named{"0,0,0", ""}, Named{"0,128,0", "#008000"},
                               Named{"200,10,16", "#c80a10"}};
constexpr std::array sizes = {Named{"10", ""}, Named{"14", "14336"}, Named{"8.5", "8704"}};

// Texts whose runs each differ from the run before in one thing: bold, italics, colour or size. A
// caption says just that; markup puts tags around each run for all that is not as usual.
class MarkedTexts {
 public:
    // `runs` runs; the caption comes to about `units` units.
    Marked Text(int units, int runs) {
        Marked text;
        Style style;
        for (int run = 1; run <= runs; ++run) {
            const std::string command = Change(style);
            const int left = units * run / runs - static_cast<int>(text.caption.size());
            const std::string words = Words(std::max(left - static_cast<int>(command.size()), 4));
            text.caption += lumenkit::FromUtf8(command + words);
            text.markup += Tagged(words, style);
            if (run % 10 == 0) {
                text.caption += u"|CR|";
                text.markup += '\n';
            }
        }
        return text;
    }

    std::string Words(int length) {
        static constexpr std::array words = {"the ",   "label ", "draws ",   "every ",
                                             "run ",   "and ",   "wraps ",   "long ",
                                             "lines ", "at ",    "blanks, ", "so "};
        std::string text;
        while (static_cast<int>(text.size()) < length) {
            text += words[static_cast<std::size_t>(Below(words.size()))];
        }
        text.resize(static_cast<std::size_t>(length));
        return text;
    }

 private:
    std::string Change(Style& style) {
        switch (Below(4)) {
            case 0:
                style.bold = !style.bold;
                return style.bold ? "|B:1|" : "|B:0|";
            case 1:
                style.italic = !style.italic;
                return style.italic ? "|I:1|" : "|I:0|";
            case 2:
                style.color = (style.color + 1) % static_cast<int>(colors.size());
                return std::string("|Fore:") + Of(colors, style.color).caption + "|";
            default:
                style.size = (style.size + 1) % static_cast<int>(sizes.size());
                return std::string("|Size:") + Of(sizes, style.size).caption + "|";
        }
    }

    static std::string Tagged(std::string words, const Style& style) {
        if (style.bold) {
            words = "<b>" + words + "</b>";
        }
        if (style.italic) {
            words = "<i>" + words + "</i>";
        }
        std::string span;
        if (style.color != 0) {
            span += std::string(" foreground=\"") + Of(colors, style.color).markup + "\"";
        }
        if (style.size != 0) {
            span += std::string(" size=\"") + Of(sizes, style.size).markup + "\"";
        }
        return span.empty() ? words : "<span" + span + ">" + words + "</span>";
    }

    template <typename Table>
    static const Named& Of(const Table& table, int index) {
        return table[static_cast<std::size_t>(index)];
    }

    int Below(std::size_t bound) { return static_cast<int>(random_() % bound); }

    std::mt19937 random_;  // the same texts each time
};

// Nothing here fails; a report would spoil the figures.
class NoHost final : public lumenkit::host::Application, public lumenkit::host::Interaction {
 public:
    Text ExeName() override { return u"bench"; }
    void Beep() override {}
    void MsgBox(TextView message, lumenkit::host::MessageStyle, std::optional<TextView>) override {
        std::fprintf(stderr, "%s\n", lumenkit::ToUtf8(message).c_str());
        std::abort();
    }
};

class Compiling {
 public:
    Side Captions(std::vector<Text> captions, double unitsOfARound) {
        return {[this, captions = std::move(captions)] {
                    for (const Text& caption : captions) {
                        compiler_.CompileCaption(caption);
                        lumenkit::bench::Keep(&compiler_.Compiled());
                    }
                },
                unitsOfARound};
    }

    // Measured by the text unit.
    Side Units(const std::vector<Text>& captions) {
        double units = 0;
        for (const Text& caption : captions) {
            units += static_cast<double>(caption.size());
        }
        return Captions(captions, units);
    }

 private:
    NoHost host_;
    lumenkit::ModuleErrors errors_{host_, host_};
    lumenkit::Module module_{errors_, u"VLABEL"};
    CaptionCompiler compiler_{module_};
};

void ParseMarkup(const std::string& markup) {
    PangoAttrList* attributes = nullptr;
    char* text = nullptr;
    GError* error = nullptr;
    if (!pango_parse_markup(markup.data(), static_cast<int>(markup.size()), 0, &attributes, &text,
                            nullptr, &error)) {
        std::fprintf(stderr, "%s\n", error->message);
        std::abort();
    }
    lumenkit::bench::Keep(text);
    pango_attr_list_unref(attributes);
    g_free(text);
}

std::vector<Marked> Texts(int units, int runs) {
    MarkedTexts texts;
    std::vector<Marked> marked;
    for (int i = 0; i < captionCount; ++i) {
        marked.push_back(texts.Text(units, runs));
    }
    return marked;
}

std::vector<Text> Captions(const std::vector<Marked>& texts) {
    std::vector<Text> captions;
    for (const Marked& text : texts) {
        captions.push_back(text.caption);
    }
    return captions;
}

Side Pango(std::vector<Marked> texts) {
    return {[texts = std::move(texts)] {
                for (const Marked& text : texts) {
                    ParseMarkup(text.markup);
                }
            },
            captionCount};
}

Text Repeated(TextView text, int count) {
    Text repeated;
    for (; count > 0; --count) {
        repeated += text;
    }
    return repeated;
}

// Commands that the line's end closes, as long as they can be.
std::vector<Text> UnterminatedCommands() {
    MarkedTexts texts;
    std::vector<Text> captions;
    for (int i = 0; i < captionCount; ++i) {
        captions.push_back(u"|Font:" + lumenkit::FromUtf8(texts.Words(32'760)));
    }
    return captions;
}

}  // namespace

int main(int argc, char** argv) {
    Compiling compiling;
    const auto againstPango = [&](const char* what, int units, int runs) {
        const std::vector<Marked> texts = Texts(units, runs);
        AddComparison({what, "caption", compiling.Captions(Captions(texts), captionCount),
                       Pango(texts), Ratio::TimesFaster, ">= 10x"});
    };
    againstPango("compile small (120 units, 7 runs), against Pango", 120, 7);
    againstPango("compile medium (2,000 units, 80 runs), against Pango", 2'000, 80);
    againstPango("compile large (30,000 units, 1,200 runs), against Pango", 30'000, 1'200);

    const auto perUnit = [&](const char* what, const std::vector<Text>& captions,
                             const std::vector<Text>& bound, const char* aim) {
        AddComparison({what, "unit", compiling.Units(captions), compiling.Units(bound),
                       Ratio::TimesSlower, aim});
    };
    const std::vector<Text> ordinary = Captions(Texts(1'800, 72));
    perUnit("growth, 29,000 units against 1,800", Captions(Texts(29'000, 1'160)), ordinary,
            "<= 1.10x");
    perUnit("32,767 bars, against ordinary text", {Text(32'767, u'|')}, ordinary, "<= 4x");
    perUnit("one unterminated command, against ordinary text", UnterminatedCommands(), ordinary,
            "<= 4x");
    perUnit("10,000 quotes, against ordinary text", {Repeated(u"|Q|", 10'000)}, ordinary, "<= 4x");
    return lumenkit::bench::RunComparisons(argc, argv);
}
