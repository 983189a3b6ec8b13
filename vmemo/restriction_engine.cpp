#include "vmemo/restriction_engine.h"

#include <cstddef>
#include <cstdint>
#include <vector>

#include "frame/checked_integer.h"
#include "frame/text_positions.h"
#include "vmemo/line_break_scanner.h"

namespace lumenkit {

namespace {

// A text from which parts are cut, from front to back. Positions refer to the remaining text. A cut
// moves no units: every position in use is after all cuts so far, so adding the number of units cut
// gives the position in the source.
class ShrinkingText {
 public:
    explicit ShrinkingText(TextView source)
        : source_(source), scanner_(source), length_(Len(source)) {}

    Int32 Length() const { return length_; }

    // Returns the position of the first line break at `start` or later, or the position after the
    // end.
    Int32 FindLineBreak(Int32 start) {
        return Int32(scanner_.Next(Offset(start))) - removed_ + Int32(1);
    }

    // Return the part from one position up to, but not including, another; or up to the end.
    TextView Part(Int32 from, Int32 end) const {
        return source_.substr(Offset(from), Offset(end) - Offset(from));
    }
    TextView Rest(Int32 from) const { return source_.substr(Offset(from)); }

    // Cuts `part`, which must be a view returned by Part or Rest.
    void Cut(TextView part) {
        const auto offset = static_cast<std::size_t>(part.data() - source_.data());
        kept_.push_back(source_.substr(keptEnd_, offset - keptEnd_));
        keptEnd_ = offset + part.size();
        const Int32 size(part.size());
        removed_ += size;
        length_ -= size;
    }

    Text Join() const {
        Text joined;
        joined.reserve(static_cast<std::size_t>(length_.Value()));
        for (const TextView piece : kept_) {
            joined.append(piece);
        }
        joined.append(source_.substr(keptEnd_));
        return joined;
    }

 private:
    std::size_t Offset(Int32 position) const {
        return static_cast<std::size_t>(position.Value()) - 1 +
               static_cast<std::size_t>(removed_.Value());
    }

    TextView source_;
    LineBreakScanner scanner_;
    Int32 length_;
    Int32 removed_;
    std::vector<TextView> kept_;  // the uncut parts before each cut
    std::size_t keptEnd_ = 0;     // end of the last cut in the source
};

// Returns whether the text is within the limits. Most edits are; for them, searching the line
// breaks is all the work.
bool IsWithin(TextView text, TextLimits limits) {
    const auto orAny = [&](std::int16_t limit) {
        return limit != 0 ? static_cast<std::size_t>(limit) : text.size() + 1;
    };
    const std::size_t longest = orAny(limits.maxCharsPerLine);
    const std::size_t mostLines = orAny(limits.maxLines);
    LineBreakScanner scanner(text);
    std::size_t start = 0;
    for (std::size_t line = 1;; ++line) {
        const std::size_t end = scanner.Next(start);
        if (end - start > longest) {
            return false;
        }
        if (end == text.size()) {
            return true;
        }
        if (line == mostLines) {
            return false;  // a line break after the last permitted line is already too much
        }
        start = end + crLf.size();
    }
}

// Surplus lines cause a refusal only when they consist of this one character.
bool IsOneCharacter(TextView text) {
    return text.size() == 1 && text[0] != blank && text[0] != u'\r' && text[0] != u'\n';
}

}  // namespace

Restriction Restrict(TextView text, TextLimits limits, RestrictionMode mode) {
    Restriction result;
    ShrinkingText left(text);
    if (IsWithin(text, limits)) {
        return result;
    }
    // Cuts the part. Returns false without cutting when the part is real content and apply mode
    // refuses the edit for it.
    const auto cut = [&](TextView part, bool real) {
        (real ? result.refused : result.trimmed) = true;
        if (real && mode == RestrictionMode::Apply) {
            return false;
        }
        left.Cut(part);
        return true;
    };
    Int32 start = 1;
    Int32 lines = 0;
    do {
        const Int32 pos = left.FindLineBreak(start);
        if (limits.maxCharsPerLine != 0 && pos - start > limits.maxCharsPerLine) {
            const TextView surplus = left.Part(start + limits.maxCharsPerLine, pos);
            if (!cut(surplus, !Trim(surplus).empty())) {
                return result;
            }
            // pos is not moved back by the cut: measuring the next line starts as many units too
            // late as this line lost. This is part of the behaviour.
        }
        ++lines;
        if (lines == limits.maxLines && pos <= left.Length()) {
            const TextView rest = left.Rest(pos);
            if (!cut(rest, IsOneCharacter(rest))) {
                return result;
            }
            break;
        }
        start = pos + Int32(2);
    } while (start <= left.Length());
    if (!result.Fits()) {
        result.cut = left.Join();
    }
    return result;
}

}  // namespace lumenkit
