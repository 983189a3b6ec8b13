#pragma once

#include "frame/text.h"

namespace lumenkit {

/// Returns the text of a caption as screen readers say it: the lines that the label draws, without
/// commands, separated by CR LF. A line with a bullet begins with U+2022 and a blank instead of
/// `bulletPrefix`. Lines are not broken where words wrap.
Text SpokenCaption(TextView caption, TextView bulletPrefix);

}  // namespace lumenkit
