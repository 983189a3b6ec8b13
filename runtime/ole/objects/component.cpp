#include "runtime/ole/objects/component.h"

#include <map>
#include <mutex>

namespace lumenkit::ole {

Component::Component(const ClassTable& classes)
    : classes_(classes),
      context_{.module = OwnModule(),
               .classes = classes_,
               .fonts = fonts_,
               .application = application_,
               .interaction = interaction_} {}

Component& Component::Of(const ClassTable& classes) {
    // Several apartments may load classes at the same time.
    static std::mutex guard;
    static std::map<const ClassTable*, Component> components;
    const std::lock_guard lock(guard);
    return components.try_emplace(&classes, classes).first->second;
}

}  // namespace lumenkit::ole
