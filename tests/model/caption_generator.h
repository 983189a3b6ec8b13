#pragma once

#include <cstddef>
#include <initializer_list>
#include <random>

#include "frame/text.h"

namespace lumenkit::testing {

/// Generates captions from parts of the language: whole, broken and run together.
class CaptionGenerator {
 public:
    explicit CaptionGenerator(std::uint32_t seed) : random_(seed) {}

    Text Caption();

    /// Returns a caption of `count` lines.
    Text Lines(int count);

 private:
    std::size_t Below(std::size_t bound) { return random_() % bound; }
    bool OneIn(std::size_t chances) { return Below(chances) == 0; }
    TextView OneOf(std::initializer_list<TextView> choices) {
        return choices.begin()[Below(choices.size())];
    }

    Text Piece();
    Text PieceWithoutSeparator();
    Text AnyCase(TextView text);
    Text Word();
    Text Command();
    Text Name();
    Text Parameter();
    Text Color();
    Text Component();
    Text Number();
    Text Digits(std::size_t most, std::size_t radix);
    Text Blurred(TextView number);

    std::mt19937 random_;
};

}  // namespace lumenkit::testing
