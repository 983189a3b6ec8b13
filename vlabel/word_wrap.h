// Where a run of text is broken when it does not fit before the right edge.
//
// The rules are the label's own and are kept where they look odd: the place up to which blanks are
// searched survives a break, so that what follows may be found without a break and overflow; and
// the search gives up after 1,000 steps, leaving the rest unprinted.
#pragma once

#include <cstdint>
#include <span>

#include "frame/text.h"

namespace lumenkit {

class WordWrap {
 public:
    enum class Action {
        PrintRest,     ///< print `text` and be done with the run
        PrintLine,     ///< print `text`, then start a new line
        StartNewLine,  ///< start a new line, nothing fits on this one
        Stop,          ///< be done with the run, whatever is left of it
    };
    struct Step {
        Action action;
        TextView text;
        float width = 0;  ///< of `text`, in twips
    };

    /// `ends` are the text's widths as host::Surface::TextWidths gives them. Both must outlive the
    /// object.
    WordWrap(TextView text, std::span<const double> ends);

    /// What to do next with the pen at `x` and the right edge at `edge` (twips); `atLineStart`
    /// where nothing stands on the line yet. After PrintRest and Stop there is no next step.
    Step Next(float x, float edge, bool atLineStart);

 private:
    TextView Rest() const { return text_.substr(start_); }
    // Every break is at a blank before the last word, so the rest never starts behind it.
    std::size_t TrimmedLength() const { return trimmedEnd_ - start_; }
    std::size_t LastBlank() const;
    float Width(std::size_t length) const;
    bool Fits(float x, std::size_t length, float edge) const;
    Step Print(Action action, std::size_t length) const;

    TextView text_;
    std::span<const double> ends_;
    std::size_t start_ = 0;       // of what is not printed yet
    std::size_t trimmedEnd_ = 0;  // of the whole text
    std::size_t limit_ = 0;       // length of the rest in which blanks are searched
    int guard_ = 0;
};

}  // namespace lumenkit
