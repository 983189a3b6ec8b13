#pragma once

#include <QString>
#include <functional>
#include <optional>

namespace lumenkit::lumenform {

/// Runs `work` and returns the reason if a control or the form rejects it, with the place in the
/// file if known. Returns nothing on success.
std::optional<QString> Attempt(const std::function<void()>& work);

}  // namespace lumenkit::lumenform
