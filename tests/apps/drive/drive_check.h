#pragma once

#include <string>
#include <string_view>

namespace lumenkit::testing {

/// Serves `requests`, one a line, and returns what goes wrong; empty if nothing does. Each request
/// must get one well-formed answer, and the session must still serve a request at the end. Needs
/// forms_in_memory.cpp.
std::string DriveFault(std::string_view requests);

}  // namespace lumenkit::testing
