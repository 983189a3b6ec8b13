// The commands of a caption and their places, as the label's compiler reads and understands them.
#pragma once

#include <cstddef>
#include <vector>

#include "frame/text.h"

namespace lumenkit::check {

struct WrittenCommand {
    std::size_t offset = 0;  ///< of the opening bar, in UTF-16 units from 0
    std::size_t end = 0;     ///< offset behind the closing bar, or of the end of the line
    Text text;               ///< as written, without bars; "|Q|" is a quotation mark
    bool closed = false;     ///< whether a bar closes it
    bool kept = false;       ///< false if the compiler reported an overflow in it
    Text parameter;          ///< as the compiler stored it; empty if not `kept`
};

struct CaptionOutline {
    std::vector<WrittenCommand> commands;  ///< those in the compiled lines, in order
    std::vector<std::size_t> controls;     ///< offsets of the control characters in drawn text
    std::size_t lines = 0;                 ///< number of compiled lines
    bool overflows = false;                ///< whether the compiler stopped at a position overflow
    bool goesOn = false;                   ///< whether lines follow that the compiler ignores
    std::size_t end = 0;                   ///< offset of the end of the compiled lines
};

CaptionOutline OutlineOf(TextView caption);

}  // namespace lumenkit::check
