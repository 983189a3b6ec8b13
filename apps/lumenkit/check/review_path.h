#pragma once

#include <string>

namespace lumenkit::check {

/// Returns the path of a checked file as reviews compare it with the paths of the repository:
/// "order.frm" for "./order.frm".
std::string ReviewPath(const std::string& file);

}  // namespace lumenkit::check
