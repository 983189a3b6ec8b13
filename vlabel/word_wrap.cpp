#include "vlabel/word_wrap.h"

namespace lumenkit {

namespace {

constexpr int mostSteps = 1000;

}  // namespace

WordWrap::WordWrap(TextView text, std::span<const double> ends)
    : text_(text), ends_(ends), trimmedEnd_(RTrim(text).size()), limit_(trimmedEnd_) {}

// Returns the position, from 1 in the rest, of the last blank within the limit; 0 when there is
// none or when the limit is beyond the rest.
std::size_t WordWrap::LastBlank() const {
    return limit_ == 0 || limit_ > TrimmedLength() ? 0 : Rest().substr(0, limit_).rfind(blank) + 1;
}

float WordWrap::Width(std::size_t length) const {
    if (length == 0) {
        return 0;
    }
    const double before = start_ == 0 ? 0.0 : ends_[start_ - 1];
    return static_cast<float>(ends_[start_ + length - 1] - before);
}

bool WordWrap::Fits(float x, std::size_t length, float edge) const {
    return x + Width(length) <= edge;
}

WordWrap::Step WordWrap::Print(Action action, std::size_t length) const {
    return {action, Rest().substr(0, length), Width(length)};
}

WordWrap::Step WordWrap::Next(float x, float edge, bool atLineStart) {
    // An empty run takes one step too: it may have to start a new line.
    for (; guard_ == 0 || (guard_ <= mostSteps && start_ < text_.size()); ++guard_) {
        if (Fits(x, TrimmedLength(), edge)) {
            return Print(Action::PrintRest, Rest().size());
        }
        const std::size_t lastBlank = LastBlank();
        if (lastBlank < 2) {
            if (atLineStart) {
                return Print(Action::PrintRest, Rest().size());
            }
            ++guard_;
            return {Action::StartNewLine, {}};
        }
        const std::size_t trimmed = RTrim(Rest().substr(0, lastBlank)).size();
        if (Fits(x, trimmed, edge)) {
            const Step step = Print(Action::PrintLine, lastBlank);
            start_ += lastBlank;
            ++guard_;
            return step;
        }
        limit_ = trimmed;
    }
    return {Action::Stop, {}};
}

}  // namespace lumenkit
