#pragma once

#include <cstddef>
#include <vector>

#include "forms/position.h"
#include "frame/text.h"

namespace lumenkit::check {

/// Where the units of a text stand in the file that it comes from.
class TextPlaces {
 public:
    /// Of a file's whole text.
    static TextPlaces InFile(TextView text);
    /// Of a text that stands at `value` in a form, between quotation marks and with its own
    /// doubled.
    static TextPlaces Quoted(TextView text, forms::Position value);
    /// Of a text that does not stand in the form itself: all of it is at `value`.
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
