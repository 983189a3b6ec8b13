#include "tests/support/qt_form.h"

#include <stdexcept>

#include "tests/support/qt_windows.h"

namespace lumenkit::testing {

QtForm::QtForm(const ClassTable& classes, bool userMode)
    : classes_(classes),
      userMode_(userMode),
      application_(classes),
      context_{.classes = classes_,
               .application = application_,
               .interaction = interaction,
               .errors = [this](const RuntimeError& error) { errors.push_back(error); }} {
    window.resize(640, 480);
    ShowActive(window);
}

const ClassDescriptor& QtForm::Class(TextView name) const {
    const ClassDescriptor* type = classes_.Find(Text(classes_.libraryName) + u"." + Text(name));
    if (type == nullptr) {
        throw std::out_of_range("no such class");
    }
    return *type;
}

qt::HostedControl& QtForm::Place(TextView className, const host::Placement& placement) {
    const ClassDescriptor& type = Class(className);
    containers_.push_back(std::make_unique<qt::FormContainer>(type.eventTable));
    containers_.back()->onEvent = [this](TextView name, std::span<Value> arguments) {
        events.emplace_back(name);
        if (onEvent) {
            onEvent(name, arguments);
        }
    };
    auto control = std::make_unique<qt::HostedControl>(
        context_, type, *this, qt::Placing{.name = className, .placement = placement}, &window);
    control->StartNew();
    return *controls_.emplace_back(std::move(control));
}

std::unique_ptr<qt::HostedPage> QtForm::Page(TextView className) {
    return std::make_unique<qt::HostedPage>(context_, Class(className));
}

void QtForm::Remove(qt::HostedControl& control) {
    std::erase_if(controls_, [&](const auto& one) { return one.get() == &control; });
}

host::FontRef QtForm::AmbientFont() const {
    constexpr float points = 10;
    return std::make_shared<qt::Font>(u"MS Sans Serif", points);
}

}  // namespace lumenkit::testing
