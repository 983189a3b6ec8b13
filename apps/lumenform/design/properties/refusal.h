#pragma once

#include <QString>
#include <functional>

namespace lumenkit::lumenform {

/// Runs a change of a design and returns the reason if it is rejected, or an empty text.
QString RefusalOf(const std::function<void()>& change);

}  // namespace lumenkit::lumenform
