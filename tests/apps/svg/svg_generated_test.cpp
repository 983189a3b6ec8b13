// Generated captions: every document is well-formed, holds the whole text of the caption and has
// each run where the windowless runtime recorded it.
#include <cmath>
#include <random>
#include <variant>

#include <gmock/gmock.h>

#include "apps/lumenkit/svg/drawn_caption.h"
#include "tests/apps/svg/svg_reader.h"
#include "tests/model/caption_generator.h"
#include "tests/support/fake_reporter.h"
#include "tests/support/test_rounds.h"
#include "tests/support/test_seed.h"
#include "vlabel/caption_compiler.h"

namespace lumenkit::testing {

namespace {

constexpr int rounds = 3000;

class CaptionsAndLooks {
 public:
    explicit CaptionsAndLooks(std::uint32_t seed) : captions_(seed), random_(seed) {}

    Text Caption() {
        Text caption = captions_.Caption();
        for (std::size_t odd = Below(4); odd > 0; --odd) {
            constexpr TextView units = {
                u"<>&\"']\0\x01\t\n\r\x1B\x7F\x85\u2028\u05D0\xD800\xDFFF\uFFFD\uFFFE\uFFFF", 21};
            caption.insert(Below(caption.size() + 1), 1, units[Below(units.size())]);
        }
        return caption;
    }
    svg::LabelLook Look() {
        svg::LabelLook look;
        look.fontSize = static_cast<float>(1 + Below(400)) / 7;
        look.bold = Below(2) == 0;
        look.underline = Below(2) == 0;
        look.bulletPrefix = Below(3) == 0 ? u"a" : u"";
        look.bulletIndent = static_cast<std::int16_t>(static_cast<int>(Below(900)) - 300);
        if (Below(2) == 0) {
            look.width = static_cast<float>(15 + Below(3000));
        }
        return look;
    }

 private:
    std::size_t Below(std::size_t bound) { return random_() % bound; }

    CaptionGenerator captions_;
    std::mt19937 random_;
};

// As a document shows it.
Text Shown(TextView text) {
    Text shown;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char16_t unit = text[at];
        const bool isPair =
            (unit & 0xFC00) == 0xD800 && at + 1 < text.size() && (text[at + 1] & 0xFC00) == 0xDC00;
        if (isPair) {
            shown += {unit, text[++at]};
        } else if ((unit & 0xF800) == 0xD800 || unit >= 0xFFFE) {
            shown += u'\uFFFD';
        } else {
            shown += IsControl(unit) ? u' ' : unit;
        }
    }
    return shown;
}

// The lines of a compiled caption without the places of the commands. A half of a pair before a
// command is shown by itself.
Text VisibleText(TextView caption) {
    const ReportingModule module(u"VLABEL");
    CaptionCompiler compiler(module);
    compiler.CompileCaption(caption);
    Text visible;
    for (std::int32_t line = 1; line <= compiler.Compiled().CaptionLines.Count(); ++line) {
        TextView rest = compiler.Compiled().CaptionLines.Item(line);
        for (std::size_t bar = rest.find(u'|'); bar != TextView::npos; bar = rest.find(u'|')) {
            visible += Shown(rest.substr(0, bar));
            rest.remove_prefix(bar + 1);
        }
        visible += Shown(rest);
    }
    return visible;
}

TEST(SvgGenerated, HoldTheVisibleTextOfTheCaption) {
    CaptionsAndLooks generator(TestSeed());
    for (int round = Rounds(rounds); round > 0 && !::testing::Test::HasFailure(); --round) {
        const Text caption = generator.Caption();
        svg::LabelLook look = generator.Look();
        look.bulletPrefix.clear();
        look.width.reset();
        FakeReporter host;
        ModuleErrors errors(host, host);
        const std::string xml = svg::DrawnCaption(errors, caption, look).ToSvg();
        EXPECT_EQ(ReadSvg(xml).Joined(), VisibleText(caption)) << xml;
    }
}

TEST(SvgGenerated, HaveEachRunAndBoxWhereItWasRecorded) {
    CaptionsAndLooks generator(TestSeed());
    constexpr double rounded = 0.00101;  // two numbers with three places
    const auto near = [](double places, double twips) {
        return std::abs(places - twips / 20) <= rounded + std::abs(twips) * 1e-7;
    };
    std::size_t runs = 0;
    std::size_t boxes = 0;
    for (int round = Rounds(rounds); round > 0 && !::testing::Test::HasFailure(); --round) {
        FakeReporter host;
        ModuleErrors errors(host, host);
        const svg::DrawnCaption drawn(errors, generator.Caption(), generator.Look());
        const std::string xml = drawn.ToSvg();
        const SvgDrawing drawing = ReadSvg(xml);
        std::size_t run = 0;
        std::size_t box = 0;
        for (const memory::DisplayItem& item : drawn.Drawn().Items()) {
            if (const auto* print = std::get_if<memory::PrintItem>(&item);
                print != nullptr && !print->text.empty()) {
                const SvgRun& found = drawing.runs.at(run++);
                const double unit = (print->bold ? 11.0 : 10.0) * print->size;
                EXPECT_EQ(found.text, Shown(print->text)) << xml;
                EXPECT_TRUE(near(found.x, print->x)) << xml;
                EXPECT_TRUE(near(found.y, print->y + 19.0 * print->size)) << xml;
                EXPECT_TRUE(near(found.length, unit * static_cast<double>(print->text.size())))
                    << xml;
                EXPECT_NEAR(found.size, print->size, rounded) << xml;
                EXPECT_EQ(found.bold, print->bold) << xml;
                EXPECT_EQ(found.italic, print->italic) << xml;
                EXPECT_EQ(found.decoration, print->underline ? "underline" : "") << xml;
            } else if (const auto* recorded = std::get_if<memory::BoxItem>(&item)) {
                const SvgBox& found = drawing.boxes.at(box++);
                EXPECT_TRUE(near(found.x, recorded->x1)) << xml;
                EXPECT_TRUE(near(found.y, recorded->y1)) << xml;
                EXPECT_TRUE(near(found.x + found.width, recorded->x2 + 15)) << xml;
                EXPECT_TRUE(near(found.y + found.height, recorded->y2 + 15)) << xml;
            }
        }
        EXPECT_EQ(run, drawing.runs.size()) << xml;
        EXPECT_EQ(box, drawing.boxes.size()) << xml;
        runs += run;
        boxes += box;
    }
    EXPECT_GT(runs, 0U);
    if (RunsAllRounds()) {
        EXPECT_GT(boxes, 0U);
    }
}

}  // namespace

}  // namespace lumenkit::testing
