#pragma once

#include "widgets/designer/control_class.h"

namespace lumenkit::designer {

ControlClass LabelClass();
ControlClass MemoClass();
ControlClass OptionListClass();

}  // namespace lumenkit::designer
