// What the control keys of the caption box do to a caption: pure functions of text and selection.
#pragma once

#include <cstdint>
#include <optional>

#include "frame/text.h"

namespace lumenkit {

/// A key that inserts markup.
struct MarkupKey {
    std::int16_t code;
    TextView token;
    bool swallowed;  ///< whether the key is taken away from the text box
    bool replaces;   ///< whether it may replace a selection; else that only beeps
};

/// The key with this character code; null when it inserts nothing.
const MarkupKey* FindMarkupKey(std::int16_t code);

/// Ctrl+S selects the next word or command.
inline constexpr std::int16_t selectNextKey = 19;

/// Places in UTF-16 units from 0, the end exclusive; an end of -1 is the end of the text.
struct CaptionSelection {
    std::int32_t start = 0;
    std::int32_t end = 0;
};

/// The next word or command at `from` or later; nothing when only blanks follow. A word that no
/// command follows reaches to the end of the text, blanks included.
std::optional<CaptionSelection> NextSelection(TextView caption, std::int32_t from);

/// The explanation of all keys, lines separated by CR LF.
TextView MarkupKeysHelp();

}  // namespace lumenkit
