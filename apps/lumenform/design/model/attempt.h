#pragma once

#include <QString>
#include <functional>
#include <optional>

namespace lumenkit::form {

/// Does what may be refused, and gives the reason of a control or the form, with the place in the
/// file where there is one; nothing when it was done.
std::optional<QString> Attempt(const std::function<void()>& work);

}  // namespace lumenkit::form
