// Benchmarks of restricting texts to limits: against a plain copy of the text, against a plain
// search for its line breaks, the growth of the cost per byte with the length of the text, and the
// cost of cuts.
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "bench/ratio_table.h"
#include "frame/text.h"
#include "vmemo/restriction_engine.h"

namespace {

using lumenkit::crLf;
using lumenkit::Restrict;
using lumenkit::Restriction;
using lumenkit::RestrictionMode;
using lumenkit::Text;
using lumenkit::TextLimits;
using lumenkit::TextView;
using lumenkit::bench::AddComparison;
using lumenkit::bench::Keep;
using lumenkit::bench::Ratio;
using lumenkit::bench::Side;

constexpr std::size_t kilobyte = 1024;
constexpr std::size_t megabyte = kilobyte * kilobyte;

// About `bytes` bytes of text in lines of half to one and a half times `length` units.
Text Lines(std::size_t bytes, int length) {
    std::mt19937 random(1);
    std::uniform_int_distribution<int> lengths(length / 2, length + length / 2);
    const std::size_t units = bytes / sizeof(char16_t);
    Text text;
    while (text.size() < units) {
        text.append(static_cast<std::size_t>(lengths(random)), u'x').append(crLf);
    }
    text.resize(units);
    return text;
}

Side PerByte(std::function<void()> round, const Text& text) {
    return {std::move(round), static_cast<double>(text.size() * sizeof(char16_t))};
}

// Restricts a text to limits that it does not exceed: the length of its longest line and, for texts
// of up to a megabyte, a number of lines.
Side Holding(const std::shared_ptr<const Text>& text, int lineLength) {
    const TextLimits limits = {
        .maxCharsPerLine = static_cast<std::int16_t>(lineLength + lineLength / 2),
        .maxLines = static_cast<std::int16_t>(text->size() <= megabyte ? 32767 : 0)};
    return PerByte(
        [text, limits] {
            const Restriction restriction = Restrict(*text, limits, RestrictionMode::Apply);
            if (!restriction.Fits()) {
                std::abort();
            }
            Keep(&restriction);
        },
        *text);
}

Side Copying(const std::shared_ptr<const Text>& text) {
    return PerByte(
        [text, copy = std::make_shared<Text>(*text)] {
            std::memcpy(copy->data(), text->data(), text->size() * sizeof(char16_t));
            Keep(copy->data());
        },
        *text);
}

Side Searching(const std::shared_ptr<const Text>& text) {
    return PerByte(
        [text] {
            std::size_t lines = 0;
            std::size_t found = text->find(crLf);
            while (found != Text::npos) {
                ++lines;
                found = text->find(crLf, found + crLf.size());
            }
            Keep(&lines);
        },
        *text);
}

std::string Name(std::size_t bytes) {
    return bytes < megabyte ? std::to_string(bytes / kilobyte) + " KB"
                            : std::to_string(bytes / megabyte) + " MB";
}

void CompareThroughput(std::size_t bytes, int lineLength) {
    const auto text = std::make_shared<const Text>(Lines(bytes, lineLength));
    const std::string of = Name(bytes) + " that fits, lines of " + std::to_string(lineLength);
    AddComparison({.what = of + ": memcpy",
                   .unit = "B",
                   .ours = Holding(text, lineLength),
                   .other = Copying(text),
                   .ratio = Ratio::TimesSlower,
                   .aim = bytes == megabyte ? "<= 2" : ""});
    AddComparison({.what = of + ": CR LF search",
                   .unit = "B",
                   .ours = Holding(text, lineLength),
                   .other = Searching(text),
                   .ratio = Ratio::TimesFaster,
                   .aim = ">= 1"});
}

void CompareGrowth(int lineLength) {
    AddComparison(
        {.what = "10 MB against 1 KB, lines of " + std::to_string(lineLength),
         .unit = "B",
         .ours =
             Holding(std::make_shared<const Text>(Lines(10 * megabyte, lineLength)), lineLength),
         .other = Holding(std::make_shared<const Text>(Lines(kilobyte, lineLength)), lineLength),
         .ratio = Ratio::TimesSlower,
         .aim = ""});
}

// Lines of 50 units with their line ends, each of which loses one unit. The measuring of a line
// starts as many units late as the previous line lost, so every line but the first is two units too
// long.
Text OverlongLines(int count, bool blank) {
    const char16_t surplus = blank ? u' ' : u'x';
    Text text = Text(48, u'x') + surplus + Text(crLf);
    for (int line = 1; line < count; ++line) {
        text.append(48, u'x').append(2, surplus).append(crLf);
    }
    return text;
}

Side Cutting(int lines, bool blank) {
    return {[text = OverlongLines(lines, blank)] {
                const Restriction restriction =
                    Restrict(text, {.maxCharsPerLine = 48, .maxLines = 0}, RestrictionMode::Plain);
                Keep(&restriction);
            },
            static_cast<double>(lines)};
}

}  // namespace

int main(int argc, char** argv) {
    for (const std::size_t bytes : {kilobyte, 100 * kilobyte, megabyte, 10 * megabyte}) {
        CompareThroughput(bytes, 60);
    }
    CompareThroughput(megabyte, 30);
    CompareThroughput(megabyte, 1000);
    CompareGrowth(60);
    CompareGrowth(1000);
    AddComparison({.what = "a cut of 100,000 in 10 MB, against one of 10",
                   .unit = "cut",
                   .ours = Cutting(100'000, false),
                   .other = Cutting(10, false),
                   .ratio = Ratio::TimesSlower,
                   .aim = "<= 4"});
    AddComparison({.what = "a cut of blanks, against one of 10",
                   .unit = "cut",
                   .ours = Cutting(100'000, true),
                   .other = Cutting(10, true),
                   .ratio = Ratio::TimesSlower,
                   .aim = "<= 4"});
    return lumenkit::bench::RunComparisons(argc, argv);
}
