#pragma once

#include <string>
#include <string_view>

namespace lumenkit::testing {

/// What is wrong with how a session serves `requests`, one a line, empty when nothing is: each must
/// get one well-formed answer and leave a session that serves on. Needs forms_in_memory.cpp.
std::string DriveFault(std::string_view requests);

}  // namespace lumenkit::testing
