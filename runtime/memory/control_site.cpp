#include "runtime/memory/control_site.h"

#include <stdexcept>
#include <type_traits>
#include <vector>

#include "frame/automation/value_type.h"
#include "frame/runtime_error.h"

namespace lumenkit::memory {

namespace {

// `value` as the type that `model` has.
Value Converted(const Value& value, const Value& model) {
    return std::visit(
        [&](const auto& sample) -> Value {
            using Type = std::remove_cvref_t<decltype(sample)>;
            if constexpr (std::is_same_v<Type, double>) {
                return ToDouble(value);
            } else if constexpr (std::is_same_v<Type, ObjectRef>) {
                return ToObject(value);
            } else if constexpr (std::is_same_v<Type, Empty> || std::is_same_v<Type, Null> ||
                                 std::is_same_v<Type, Missing>) {
                return value;
            } else {
                return Automation<Type>::From(value);
            }
        },
        model);
}

Value ConvertedOrKept(const Value& value, const Value& original) {
    try {
        return Converted(value, original);
    } catch (const RuntimeError&) {
        return original;
    }
}

}  // namespace

void ControlSite::PropertyChanged(TextView name) {
    faults_.Call(u"Container", u"PropertyChanged");
    if (log_ != nullptr) {
        log_->Add(ChangedProperty{.control = controlName_, .name = Text(name)});
    }
}

bool ControlSite::CanPropertyChange(TextView name) {
    faults_.Call(u"Container", u"CanPropertyChange");
    const auto answer = allowed_.find(LCase(name));
    return answer == allowed_.end() || answer->second;
}

void ControlSite::AllowChange(TextView name, bool allowed) {
    allowed_[LCase(name)] = allowed;
}

void ControlSite::RaiseEvent(std::int32_t event, std::span<Value> arguments) {
    faults_.Call(u"Container", u"RaiseEvent");
    const Event* description = events_ == nullptr ? nullptr : events_->Find(event);
    if (description == nullptr || description->parameters.size() != arguments.size()) {
        throw std::logic_error("the class raises no such event");
    }
    if (log_ != nullptr) {
        log_->Add(RaisedEvent{.control = controlName_,
                              .name = Text(description->name),
                              .arguments = {arguments.begin(), arguments.end()}});
    }
    if (handler_) {
        RunHandler(description->name, arguments);
    }
}

void ControlSite::RunHandler(TextView name, std::span<Value> arguments) {
    const std::vector<Value> originals(arguments.begin(), arguments.end());
    const EventHandler handler = handler_;  // it may put another in its place
    try {
        handler(name, arguments);
    } catch (const RuntimeError&) {
        // The container's own affair.
    }
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        arguments[index] = ConvertedOrKept(arguments[index], originals[index]);
    }
}

}  // namespace lumenkit::memory
