// How each rule about captions is mended. All functions return nothing for a fault that only its
// author can mend.
#pragma once

#include <cstddef>
#include <optional>

#include "apps/lumenkit/check/caption_outline.h"
#include "apps/lumenkit/check/fix/mending.h"
#include "frame/text.h"

namespace lumenkit::check {

/// A remark about a caption. All references must outlive it.
struct CaptionFault {
    TextView caption;
    const CaptionOutline& outline;  ///< of the caption
    std::size_t offset = 0;         ///< of the remark
    TextView suggestion;            ///< of the remark; empty if there is none
};

/// Writes the suggested name.
std::optional<Mending> MendUnknownCommand(const CaptionFault& fault);
/// Closes the command behind its value, so that the rest of the line is drawn.
std::optional<Mending> MendUnterminatedCommand(const CaptionFault& fault);
/// Writes the suggested command, or removes the bars, so that the text between them is drawn. Bars
/// that separate two words stay: the text between them is rather a command, as in box|n| in a
/// frame.
std::optional<Mending> MendLoneBar(const CaptionFault& fault);
/// Writes "i" instead of "u".
std::optional<Mending> MendUnderline(const CaptionFault& fault);
/// Writes the suggested value of a switch.
std::optional<Mending> MendUnconvertedValue(const CaptionFault& fault);
/// Removes the command, unless its value is a word.
std::optional<Mending> MendIneffectiveSize(const CaptionFault& fault);
/// Writes 0 for components below it, and 255 for those above.
std::optional<Mending> MendColorOutOfRange(const CaptionFault& fault);
/// Removes the command, which is ignored.
std::optional<Mending> MendNumberOverflow(const CaptionFault& fault);
/// Replaces all line ends by "|CR|" if the first control character is one, otherwise all other
/// control characters by blanks.
std::optional<Mending> MendControlCharacters(const CaptionFault& fault);

}  // namespace lumenkit::check
