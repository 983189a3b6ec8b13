#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <random>

#include "frame/text.h"
#include "tests/support/label_scene.h"

namespace lumenkit::testing {

/// Generates mostly valid captions, on labels with all kinds of settings.
class LabelSceneGenerator {
 public:
    explicit LabelSceneGenerator(std::uint32_t seed) : random_(seed) {}

    LabelScene Scene();

    /// Returns a wrapping label with a run of more than a thousand words.
    LabelScene LongScene();

 private:
    std::size_t Below(std::size_t bound) { return random_() % bound; }
    bool OneIn(std::size_t chances) { return Below(chances) == 0; }
    template <typename T>
    T OneOf(std::initializer_list<T> choices) {
        return choices.begin()[Below(choices.size())];
    }
    TextView TextOf(std::initializer_list<TextView> choices) { return OneOf(choices); }

    LabelScene Settings();
    Text Caption(TextView prefix);
    Text Piece(TextView prefix);
    Text Words();
    Text Word();
    Text Command();

    std::mt19937 random_;
};

}  // namespace lumenkit::testing
