#pragma once

#include <QString>
#include <vector>

#include "apps/lumenform/design/code/code_outline.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// "Command1_Click and 2 other procedures still mention Command1". Empty if none does. The event
/// procedures of `form` belong to the form: see CodeOutline::Mentioning.
QString MentionMessage(const CodeOutline& outline, const std::vector<Text>& names,
                       TextView form = {});

}  // namespace lumenkit::lumenform
