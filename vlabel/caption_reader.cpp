#include "vlabel/caption_reader.h"

#include <limits>

#include "frame/checked_integer.h"

namespace lumenkit {

namespace {

constexpr std::size_t lastPosition = std::numeric_limits<std::int16_t>::max();

}  // namespace

void CaptionReader::CheckLineEnd() const {
    if (caption_.size() <= lastPosition) {
        return;
    }
    const TextView reach = caption_.substr(0, lastPosition);
    BarScanner bars(reach);
    std::size_t end = bars.Next(at_);
    while (end < reach.size() && !IsSeparator(end)) {
        end = bars.Next(end + 1);
    }
    if (end == reach.size()) {
        Raise(ErrorNumber::Overflow);
    }
}

bool CaptionReader::NextLine() {
    if (at_ == caption_.size()) {
        return false;
    }
    at_ += separatorLength;
    static_cast<void>(Int16(at_ + 1));
    return true;
}

}  // namespace lumenkit
