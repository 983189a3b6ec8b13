// The effects of the control keys in the caption box, as pure functions of text and selection.
#pragma once

#include <cstdint>
#include <optional>

#include "frame/text.h"

namespace lumenkit {

/// A key that inserts markup.
struct MarkupKey {
    std::int16_t code;
    TextView token;
    bool swallowed;  ///< whether the key is withheld from the text box
    bool replaces;   ///< whether it may replace a selection; otherwise it beeps when there is one
};

/// Returns the key with this character code; null when the key inserts nothing.
const MarkupKey* FindMarkupKey(std::int16_t code);

/// Ctrl+S selects the next word or command.
inline constexpr std::int16_t selectNextKey = 19;

/// A range in UTF-16 units from 0, the end exclusive; an end of -1 means the end of the text.
struct CaptionSelection {
    std::int32_t start = 0;
    std::int32_t end = 0;
};

/// Returns the next word or command at `from` or later; nullopt when only blanks follow. A word
/// that is not followed by a command extends to the end of the text, including blanks.
std::optional<CaptionSelection> NextSelection(TextView caption, std::int32_t from);

/// Returns the explanation of all keys, with lines separated by CR LF.
TextView MarkupKeysHelp();

}  // namespace lumenkit
