// The known command words and how the compiler converts their parameters.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "frame/text.h"

namespace lumenkit {

struct CommandWord {
    enum class Parameter : std::uint8_t { Switch, Color, Size, Before };

    TextView written;
    TextView stored;
    Parameter parameter;
};

/// The name of a command, which ends at its colon.
struct CommandName {
    /// Offset of the colon (from 0); npos when there is none.
    std::size_t colon;
    /// The word with this name, compared without regard to case; null for an unknown name, which is
    /// stored in lower case together with its parameter.
    const CommandWord* word;
};

CommandName ReadCommandName(TextView command);

/// Returns all known words.
std::span<const CommandWord> CommandWords();

}  // namespace lumenkit
