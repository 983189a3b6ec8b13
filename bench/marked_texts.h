// Sample texts in three forms: captions, Pango markup and HTML.
#pragma once

#include <cstddef>
#include <random>
#include <string>
#include <vector>

#include "frame/text.h"

namespace lumenkit::bench {

/// More captions than the processor's branch predictors can remember.
inline constexpr int captionCount = 64;

/// One text in the three forms.
struct Marked {
    Text caption;
    std::string markup;
    std::string html;
};

/// Generates texts in which each run differs from the previous run in one attribute: bold, italic,
/// colour or size. A caption holds only the command for that change. Markup and HTML put tags
/// around each run for all attributes that are not the default.
class MarkedTexts {
 public:
    /// A text of `runs` runs whose caption has about `units` units, with a line break every ten
    /// runs.
    Marked Next(int units, int runs);
    /// A text with the least markup: every second run is bold, in separate tags, and the run after
    /// it is plain again.
    Marked NextPlain(int units, int runs);

    std::string Words(int length);

 private:
    struct Style;

    std::string Change(Style& style);
    static std::string Slanted(std::string words, const Style& style);
    static std::string Markup(const std::string& words, const Style& style);
    static std::string Html(const std::string& words, const Style& style);
    int Below(std::size_t bound) { return static_cast<int>(random_() % bound); }

    std::mt19937 random_;  // default seed: every program run makes the same texts
};

/// captionCount texts.
std::vector<Marked> Texts(int units, int runs);
std::vector<Marked> PlainTexts(int units, int runs);

std::vector<Text> Captions(const std::vector<Marked>& texts);

}  // namespace lumenkit::bench
