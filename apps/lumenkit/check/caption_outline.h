// A caption's commands with the places where they are written, as the label's own compiler reads
// and understands them.
#pragma once

#include <cstddef>
#include <vector>

#include "frame/text.h"

namespace lumenkit::check {

struct WrittenCommand {
    std::size_t offset = 0;  ///< of its opening bar, in UTF-16 units from 0
    Text text;               ///< as written, without bars; "|Q|" is a quotation mark
    bool closed = false;     ///< whether a bar closes it
    bool kept = false;       ///< false where the compiler reported an overflow in it
    Text parameter;          ///< as the compiler stored it; empty where the command is not kept
};

struct CaptionOutline {
    std::vector<WrittenCommand> commands;  ///< of the lines that compile, in order
    std::size_t lines = 0;                 ///< how many lines compile
    bool overflows = false;                ///< whether the compiler gave up at a position
    bool goesOn = false;                   ///< whether there are lines that the compiler ignores
    std::size_t end = 0;                   ///< where the lines that compile end
};

CaptionOutline OutlineOf(TextView caption);

}  // namespace lumenkit::check
