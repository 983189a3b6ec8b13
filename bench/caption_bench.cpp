// Benchmarks of the caption compiler: against Pango's markup parser on the same texts, the growth
// of the cost per unit with the length of the caption, and the cost of the worst captions.
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <pango/pango.h>

#include "bench/marked_texts.h"
#include "bench/ratio_table.h"
#include "frame/host/application.h"
#include "frame/host/interaction.h"
#include "frame/utf8.h"
#include "tests/support/repeated.h"
#include "vlabel/caption_compiler.h"

namespace {

using lumenkit::CaptionCompiler;
using lumenkit::Text;
using lumenkit::TextView;
using lumenkit::bench::AddComparison;
using lumenkit::bench::captionCount;
using lumenkit::bench::Captions;
using lumenkit::bench::Marked;
using lumenkit::bench::MarkedTexts;
using lumenkit::bench::PlainTexts;
using lumenkit::bench::Ratio;
using lumenkit::bench::Side;
using lumenkit::bench::Texts;
using lumenkit::testing::Repeated;

// Stops the program at the first message: an error would distort the figures.
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

    // The figures are per text unit.
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

Side Pango(std::vector<Marked> texts) {
    return {[texts = std::move(texts)] {
                for (const Marked& text : texts) {
                    ParseMarkup(text.markup);
                }
            },
            captionCount};
}

// Captions with one unterminated command, which the end of the caption closes, of nearly the
// maximum length.
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
    const auto againstPango = [&](const char* what, const std::vector<Marked>& texts,
                                  const char* aim) {
        AddComparison({what, "caption", compiling.Captions(Captions(texts), captionCount),
                       Pango(texts), Ratio::TimesFaster, aim});
    };
    againstPango("compile small (120 units, 7 runs), against Pango", Texts(120, 7), ">= 18x");
    againstPango("compile medium (2,000 units, 80 runs), against Pango", Texts(2'000, 80),
                 ">= 10x");
    againstPango("compile large (30,000 units, 1,200 runs), against Pango", Texts(30'000, 1'200),
                 ">= 10x");
    againstPango("small, only bold and back, against Pango", PlainTexts(120, 7), "");
    againstPango("medium, only bold and back, against Pango", PlainTexts(2'000, 80), "");

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
