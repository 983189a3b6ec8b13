#include "widgets/designer/control_collection.h"

#include "widgets/designer/control_classes.h"
#include "widgets/designer/control_plugin.h"

namespace lumenkit::designer {

ControlCollection::ControlCollection(QObject* parent)
    : QObject(parent),
      controls_{new ControlPlugin(LabelClass(), this), new ControlPlugin(MemoClass(), this),
                new ControlPlugin(OptionListClass(), this)} {}

}  // namespace lumenkit::designer
