// A change of a text that ends a finding.
#pragma once

#include <cstddef>
#include <vector>

#include "frame/text.h"

namespace lumenkit::check {

/// Replaces the units from `begin` up to `end`, counted from 0.
struct TextEdit {
    std::size_t begin = 0;
    std::size_t end = 0;
    Text text;

    friend bool operator==(const TextEdit&, const TextEdit&) = default;
};

/// In the order of the text, without overlaps.
using TextEdits = std::vector<TextEdit>;

Text Edited(TextView text, const TextEdits& edits);

/// Returns where the unit at `offset` is after the edits, or the text that replaces it begins.
std::size_t OffsetAfter(const TextEdits& edits, std::size_t offset);

struct Mending {
    TextEdits edits;
    /// Whether it only writes down what is drawn anyway. Otherwise it guesses what was meant.
    bool keepsPicture = false;
};

}  // namespace lumenkit::check
