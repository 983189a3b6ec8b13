#pragma once

#include <QString>
#include <vector>

#include "apps/lumenform/design/code/code_outline.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// "Command1_Click and 2 other procedures still mention Command1". Empty if none does.
QString MentionMessage(const CodeOutline& outline, const std::vector<Text>& names);

}  // namespace lumenkit::lumenform
