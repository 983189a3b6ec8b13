#pragma once

#include <cstddef>
#include <cstdint>

#include "frame/text.h"
#include "vlabel/bar_scanner.h"

namespace lumenkit {

/// Reads a caption once, from front to back, for the compiler: returns the bars one by one,
/// replaces quotes ("|Q|") and ends a line at each separator ("|CR|").
///
/// Positions count UTF-16 units from 1 and are 16-bit integers: a position beyond 32767 raises 6.
class CaptionReader {
 public:
    /// `caption` must outlive the reader. Reading starts at the first line.
    explicit CaptionReader(TextView caption) : caption_(caption), bars_(caption) {}

    /// Raises 6 when the current line ends beyond position 32767.
    void CheckLineEnd() const;

    /// Appends the line to `run` up to and including the next bar, or up to its end when there is
    /// no bar. Returns whether there was a bar.
    bool ReadThroughBar(Text& run);

    /// As above, but sets `run` to a view: of the caption if the part contains no quotes, else of
    /// `scratch`.
    bool ReadThroughBar(TextView& run, Text& scratch);

    /// At the end of a line, moves to the next one. Returns false when there is none. Raises 6 when
    /// the next line would start beyond position 32767.
    bool NextLine();

    /// Returns the offset of the next unit to read in the caption, from 0.
    std::size_t Offset() const { return at_; }

 private:
    // The end of a piece of a line. A bar belongs to the piece, a quote does not.
    enum class End : std::uint8_t { Bar, Quote, Line };
    End PassPiece();
    bool IsQuote(std::size_t at) const;
    bool IsSeparator(std::size_t at) const;
    static bool IsLetter(char16_t unit, char16_t lower) { return (unit | 0x20) == lower; }

    static constexpr std::size_t separatorLength = 4;
    static constexpr std::size_t quoteLength = 3;

    TextView caption_;
    BarScanner bars_;
    std::size_t at_ = 0;
};

inline bool CaptionReader::ReadThroughBar(Text& run) {
    for (;;) {
        const std::size_t begin = at_;
        const End end = PassPiece();
        if (end != End::Quote) {
            run.append(caption_.data() + begin, at_ - begin);
            return end == End::Bar;
        }
        run.append(caption_.data() + begin, at_ - quoteLength - begin).push_back(u'"');
    }
}

inline bool CaptionReader::ReadThroughBar(TextView& run, Text& scratch) {
    const std::size_t begin = at_;
    const End end = PassPiece();
    if (end != End::Quote) {
        run = TextView(caption_.data() + begin, at_ - begin);
        return end == End::Bar;
    }
    scratch.assign(caption_.data() + begin, at_ - quoteLength - begin).push_back(u'"');
    const bool closed = ReadThroughBar(scratch);
    run = scratch;
    return closed;
}

inline CaptionReader::End CaptionReader::PassPiece() {
    at_ = bars_.Next(at_);
    if (at_ == caption_.size() || IsSeparator(at_)) {
        return End::Line;
    }
    const bool isQuote = IsQuote(at_);
    at_ += isQuote ? quoteLength : 1;
    return isQuote ? End::Quote : End::Bar;
}

inline bool CaptionReader::IsSeparator(std::size_t at) const {
    return caption_.size() - at >= separatorLength && IsLetter(caption_[at + 1], u'c') &&
           IsLetter(caption_[at + 2], u'r') && caption_[at + 3] == bar;
}

// Lines are separated before quotes are replaced: a bar that begins a separator does not close a
// quote.
inline bool CaptionReader::IsQuote(std::size_t at) const {
    return caption_.size() - at >= quoteLength && IsLetter(caption_[at + 1], u'q') &&
           caption_[at + 2] == bar && !IsSeparator(at + 2);
}

}  // namespace lumenkit
