#pragma once

#include <QString>

#include "forms/document.h"

namespace lumenkit::lumenform {

/// What a user should know about a form that was just read: the guessed code page or the first
/// warning, with its place, and the number of others. Empty if there is nothing. `name` is the name
/// of the file.
QString OpenedMessage(const forms::Document& document, const QString& name);

}  // namespace lumenkit::lumenform
