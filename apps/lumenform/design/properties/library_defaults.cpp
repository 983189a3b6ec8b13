#include "apps/lumenform/design/properties/library_defaults.h"

#include <utility>

#include "frame/host/property_bag.h"

namespace lumenkit::lumenform {

namespace {

// Notes the defaults that a control passes when it is saved.
class DefaultsBag final : public host::PropertyBag {
 public:
    Value ReadProperty(TextView /*name*/, const Value& defaultValue) override {
        return defaultValue;
    }
    void WriteProperty(TextView name, const Value& /*value*/, const Value& defaultValue) override {
        defaults_.insert_or_assign(LCase(name), defaultValue);
    }

    std::map<Text, Value> Take() { return std::move(defaults_); }

 private:
    std::map<Text, Value> defaults_;
};

}  // namespace

const LibraryDefaults::ByName& LibraryDefaults::Of(qt::HostedControl& control) {
    const auto found = classes_.find(&control.Type());
    if (found != classes_.end()) {
        return found->second;
    }
    const ControlMessages::Listener quiet(messages_);
    DefaultsBag bag;
    try {
        control.Save(bag);
    } catch (...) {
        // Another control of the class is asked later.
        static const ByName none;
        return none;
    }
    return classes_.emplace(&control.Type(), bag.Take()).first->second;
}

std::optional<Value> LibraryDefaults::Find(qt::HostedControl& control, TextView property) {
    const ByName& defaults = Of(control);
    const auto found = defaults.find(LCase(property));
    return found == defaults.end() ? std::nullopt : std::optional(found->second);
}

std::set<Text> LibraryDefaults::NamesOf(qt::HostedControl& control) {
    std::set<Text> names;
    for (const auto& [name, value] : Of(control)) {
        names.insert(name);
    }
    return names;
}

}  // namespace lumenkit::lumenform
