#pragma once

#include <cstddef>
#include <vector>

#include "forms/position.h"
#include "frame/text.h"

namespace lumenkit::check {

/// Maps the units of a text to places in the file that contains it.
class TextPlaces {
 public:
    /// For the whole text of a file.
    static TextPlaces InFile(TextView text);
    /// For a text in quotation marks at `value` in a form, where quotation marks in the text are
    /// doubled.
    static TextPlaces Quoted(TextView text, forms::Position value);
    /// For a text that is not in the form file itself: all units are at `value`.
    static TextPlaces Elsewhere(forms::Position value);

    /// `offset` counts UTF-16 units from 0.
    forms::Position PlaceOf(std::size_t offset) const;

 private:
    enum class Kind { InFile, Quoted, Elsewhere };

    TextPlaces(Kind kind, forms::Position start, std::vector<std::size_t> marks)
        : kind_(kind), start_(start), marks_(std::move(marks)) {}

    Kind kind_;
    forms::Position start_;
    std::vector<std::size_t> marks_;  // offsets of line feeds or of quotation marks, in order
};

}  // namespace lumenkit::check
