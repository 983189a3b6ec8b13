// The words that commands may begin with, and what the compiler makes of their parameters.
#pragma once

#include <cstdint>
#include <span>

#include "frame/text.h"

namespace lumenkit {

struct CommandWord {
    enum class Parameter : std::uint8_t { AsWritten, Switch, Color, Size, Before };

    TextView written;
    TextView stored;
    Parameter parameter;
};

/// The word for a name in lower case. An unknown name stands for itself and keeps its parameter;
/// the result then refers to `name`.
CommandWord FindCommandWord(TextView name);

/// All words that mean something.
std::span<const CommandWord> CommandWords();

}  // namespace lumenkit
