#include "runtime/memory/form.h"

#include <stdexcept>

#include "frame/numbers.h"

namespace lumenkit::memory {

Form::Form(const ClassTable& classes)
    : classes_(classes), ambientFont_(NewFont(u"MS Sans Serif", 10.0F)) {
    application_.SetExeName(classes.libraryName);
}

const ClassDescriptor& Form::FindClass(TextView name) const {
    const bool isFull = name.find(u'.') != TextView::npos;
    const ClassDescriptor* type =
        classes_.Find(isFull ? Text(name) : Text(classes_.libraryName) + u"." + Text(name));
    if (type == nullptr) {
        throw std::out_of_range("no such class");
    }
    return *type;
}

std::shared_ptr<Font> Form::NewFont(TextView name, float points) const {
    return std::make_shared<Font>(faults_, name, points);
}

Text Form::NewName(TextView className) {
    Text name(className);
    AppendDecimal(name, ++named_[name]);
    return name;
}

}  // namespace lumenkit::memory
