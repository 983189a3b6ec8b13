// Runs changes that a control or the form may reject.
#pragma once

#include <QString>
#include <functional>
#include <optional>

namespace lumenkit::lumenform {

/// Runs `work`. If a control or the form rejects it, returns the reason, with the place in the file
/// if known.
std::optional<QString> Attempt(const std::function<void()>& work);

/// Runs the change of a property. If it is rejected or fails in another way, returns the reason
/// without a place, or else an empty text.
QString RefusalOf(const std::function<void()>& change);

}  // namespace lumenkit::lumenform
