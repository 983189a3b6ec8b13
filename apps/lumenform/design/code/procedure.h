#pragma once

#include <cstddef>

#include "frame/text.h"

namespace lumenkit::lumenform {

/// A procedure, or the declarations: all code that is in no procedure.
struct Procedure {
    enum class Kind { Declarations, Sub, Function, Get, Let, Set };

    Kind kind;
    Text name;         ///< empty for the declarations
    std::size_t line;  ///< its first line in the code, from 0
};

/// Returns the name of the control to which an event procedure belongs: "Command1" for the
/// procedure "Command1_Click". Empty for other procedures.
TextView OwnerOf(const Procedure& procedure);

}  // namespace lumenkit::lumenform
