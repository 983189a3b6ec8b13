// Finds the line breaks of a text run that does not fit before the right edge.
//
// Two rules may look like mistakes but are part of the behaviour. The limit up to which blanks are
// searched is kept after a break, so the following text may be printed without a break and
// overflow. The search stops after 1,000 steps and leaves the rest unprinted.
#pragma once

#include <cstdint>
#include <span>

#include "frame/text.h"

namespace lumenkit {

class WordWrap {
 public:
    enum class Action {
        PrintRest,     ///< print `text`; the run is finished
        PrintLine,     ///< print `text`, then start a new line
        StartNewLine,  ///< start a new line, because nothing fits on this one
        Stop,          ///< stop; any remaining text is not printed
    };
    struct Step {
        Action action;
        TextView text;
        float width = 0;  ///< of `text`, in twips
    };

    /// `ends` holds the widths of `text` as returned by host::Surface::TextWidths. Both arguments
    /// must outlive the object.
    WordWrap(TextView text, std::span<const double> ends);

    /// Returns the next step, with the pen at `x` and the right edge at `edge` (twips).
    /// `atLineStart` is true when the line is still empty. PrintRest and Stop are the last steps.
    Step Next(float x, float edge, bool atLineStart);

 private:
    TextView Rest() const { return text_.substr(start_); }
    // Every break is at a blank before the last word, so start_ never exceeds trimmedEnd_.
    std::size_t TrimmedLength() const { return trimmedEnd_ - start_; }
    std::size_t LastBlank() const;
    float Width(std::size_t length) const;
    bool Fits(float x, std::size_t length, float edge) const;
    Step Print(Action action, std::size_t length) const;

    TextView text_;
    std::span<const double> ends_;
    std::size_t start_ = 0;       // start of the rest, which is not printed yet
    std::size_t trimmedEnd_ = 0;  // end of the whole text without trailing blanks
    std::size_t limit_ = 0;       // length of the part of the rest in which blanks are searched
    int guard_ = 0;
};

}  // namespace lumenkit
