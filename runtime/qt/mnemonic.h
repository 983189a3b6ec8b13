#pragma once

#include <QString>

namespace lumenkit::qt {

/// Returns the caption as it is displayed: without the ampersand that marks a mnemonic, and with
/// one ampersand for two.
QString WithoutMnemonic(const QString& caption);

/// Whether a letter of the caption is marked as its mnemonic.
bool HasMnemonic(const QString& caption);

}  // namespace lumenkit::qt
