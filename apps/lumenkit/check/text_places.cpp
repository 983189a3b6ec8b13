#include "apps/lumenkit/check/text_places.h"

#include <algorithm>
#include <utility>

namespace lumenkit::check {

namespace {

std::vector<std::size_t> OffsetsOf(char16_t unit, TextView text) {
    std::vector<std::size_t> offsets;
    for (std::size_t at = text.find(unit); at != TextView::npos; at = text.find(unit, at + 1)) {
        offsets.push_back(at);
    }
    return offsets;
}

}  // namespace

TextPlaces TextPlaces::InFile(TextView text) {
    return {Kind::InFile, {1, 1}, OffsetsOf(u'\n', text)};
}

TextPlaces TextPlaces::Quoted(TextView text, forms::Position value) {
    return {Kind::Quoted, value, OffsetsOf(u'"', text)};
}

TextPlaces TextPlaces::Elsewhere(forms::Position value) {
    return {Kind::Elsewhere, value, {}};
}

forms::Position TextPlaces::PlaceOf(std::size_t offset) const {
    if (kind_ == Kind::Elsewhere) {
        return start_;
    }
    const auto next = std::lower_bound(marks_.begin(), marks_.end(), offset);
    const auto passed = static_cast<std::size_t>(next - marks_.begin());
    if (kind_ == Kind::Quoted) {
        return {start_.line, start_.column + 1 + offset + passed};
    }
    const std::size_t lineStart = passed == 0 ? 0 : marks_[passed - 1] + 1;
    return {passed + 1, offset - lineStart + 1};
}

}  // namespace lumenkit::check
