#pragma once

#include <cstddef>

#include "frame/text.h"

namespace lumenkit {

/// A caption as the compiler reads it, once and from front to back: bars are handed out one by one,
/// quotes ("|Q|") are replaced on the way and separators ("|CR|") end a line.
///
/// Positions count UTF-16 units from 1 and are 16-bit integers: one beyond 32767 raises 6.
class CaptionReader {
 public:
    /// `caption` must outlive the reader, which stands at the first line's start.
    explicit CaptionReader(TextView caption) : caption_(caption) {}

    /// Raises 6 when the end of the line at hand lies beyond position 32767.
    void CheckLineEnd() const;

    /// Appends to `run` what the line holds up to and with its next bar, or all the rest where it
    /// has none. True when there was a bar.
    bool ReadThroughBar(Text& run);

    /// At the end of a line, goes on to the next one; false when there is none. Raises 6 when the
    /// next line would start beyond position 32767.
    bool NextLine();

    /// Where reading stands: an offset in the caption, from 0.
    std::size_t Offset() const { return at_; }

 private:
    bool IsQuote(std::size_t at) const;
    bool IsSeparator(std::size_t at) const;

    TextView caption_;
    std::size_t at_ = 0;
};

}  // namespace lumenkit
