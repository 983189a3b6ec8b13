// The same texts as captions, in Pango's markup and in HTML.
#pragma once

#include <cstddef>
#include <random>
#include <string>
#include <vector>

#include "frame/text.h"

namespace lumenkit::bench {

/// More than the processor's predictors learn by heart.
inline constexpr int captionCount = 64;

/// One text in all languages.
struct Marked {
    Text caption;
    std::string markup;
    std::string html;
};

/// Texts whose runs each differ from the run before in one thing: bold, italics, colour or size. A
/// caption says just that; markup puts tags around each run for all that is not as usual.
class MarkedTexts {
 public:
    /// `runs` runs; the caption comes to about `units` units, with a line break every ten runs.
    Marked Next(int units, int runs);
    /// The least that can be marked: every second of `runs` runs is bold, in tags of its own, and
    /// the one behind it takes that back.
    Marked NextPlain(int units, int runs);

    std::string Words(int length);

 private:
    struct Style;

    std::string Change(Style& style);
    static std::string Slanted(std::string words, const Style& style);
    static std::string Markup(const std::string& words, const Style& style);
    static std::string Html(const std::string& words, const Style& style);
    int Below(std::size_t bound) { return static_cast<int>(random_() % bound); }

    std::mt19937 random_;  // the same texts each time
};

/// As many as captionCount.
std::vector<Marked> Texts(int units, int runs);
std::vector<Marked> PlainTexts(int units, int runs);

std::vector<Text> Captions(const std::vector<Marked>& texts);

}  // namespace lumenkit::bench
