// The words that commands may begin with, and what the compiler makes of their parameters.
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

/// A command's name, which reaches up to its colon.
struct CommandName {
    /// Offset of the colon (from 0), npos where there is none.
    std::size_t colon;
    /// What the name is, in whatever case; nothing for an unknown one, which is kept in lower case
    /// as its parameter is.
    const CommandWord* word;
};

CommandName ReadCommandName(TextView command);

/// All words that mean something.
std::span<const CommandWord> CommandWords();

}  // namespace lumenkit
