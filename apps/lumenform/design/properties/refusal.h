#pragma once

#include <QString>
#include <functional>

namespace lumenkit::form {

/// Runs a change of a design and says why it was refused; empty when it was not.
QString RefusalOf(const std::function<void()>& change);

}  // namespace lumenkit::form
