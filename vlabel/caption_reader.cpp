#include "vlabel/caption_reader.h"

#include <limits>

#include "frame/checked_integer.h"
#include "vlabel/find_bar.h"

namespace lumenkit {

namespace {

constexpr std::size_t separatorLength = 4;
constexpr std::size_t quoteLength = 3;
constexpr std::size_t lastPosition = std::numeric_limits<std::int16_t>::max();

// `lower` is a letter of ASCII, and so are the only two units that equal it without regard to case.
bool IsLetter(char16_t unit, char16_t lower) {
    return (unit | 0x20) == lower;
}

}  // namespace

void CaptionReader::CheckLineEnd() const {
    if (caption_.size() <= lastPosition) {
        return;
    }
    const TextView reach = caption_.substr(0, lastPosition);
    std::size_t end = FindBar(reach, at_);
    while (end < reach.size() && !IsSeparator(end)) {
        end = FindBar(reach, end + 1);
    }
    if (end == reach.size()) {
        Raise(ErrorNumber::Overflow);
    }
}

bool CaptionReader::ReadThroughBar(Text& run) {
    for (;;) {
        const std::size_t begin = at_;
        at_ = FindBar(caption_, begin);
        const bool lineEnds = at_ == caption_.size() || IsSeparator(at_);
        if (lineEnds || !IsQuote(at_)) {
            at_ += lineEnds ? 0 : 1;
            run.append(caption_.data() + begin, at_ - begin);
            return !lineEnds;
        }
        run.append(caption_.data() + begin, at_ - begin).push_back(u'"');
        at_ += quoteLength;
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

bool CaptionReader::IsSeparator(std::size_t at) const {
    return caption_.size() - at >= separatorLength && IsLetter(caption_[at + 1], u'c') &&
           IsLetter(caption_[at + 2], u'r') && caption_[at + 3] == bar;
}

// Lines are told apart before quotes are replaced: a bar that begins a separator closes no quote.
bool CaptionReader::IsQuote(std::size_t at) const {
    return caption_.size() - at >= quoteLength && IsLetter(caption_[at + 1], u'q') &&
           caption_[at + 2] == bar && !IsSeparator(at + 2);
}

}  // namespace lumenkit
