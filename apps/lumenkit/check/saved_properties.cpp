#include "apps/lumenkit/check/saved_properties.h"

#include <algorithm>
#include <map>
#include <mutex>
#include <span>

#include "frame/host/property_bag.h"
#include "runtime/memory/form.h"
#include "runtime/memory/hosted_control.h"

namespace lumenkit::check {

namespace {

// An empty bag that records the requested names.
class AskedBag final : public host::PropertyBag {
 public:
    Value ReadProperty(TextView name, const Value& defaultValue) override {
        asked_.read.push_back({Text(name), defaultValue});
        return defaultValue;
    }
    void WriteProperty(TextView name, const Value& /*value*/, const Value& defaultValue) override {
        asked_.written.push_back({Text(name), defaultValue});
    }

    const SavedProperties& Asked() const { return asked_; }

 private:
    SavedProperties asked_;
};

SavedProperties AskControl(const ClassDescriptor& type) {
    memory::Form form({.libraryName = {}, .classes = std::span(&type, 1)});
    memory::HostedControl control(form, type);
    AskedBag bag;
    control.ReadProperties(bag);
    control.Save(bag);
    return bag.Asked();
}

}  // namespace

const SavedProperties& PropertiesOf(const ClassDescriptor& type) {
    static std::mutex mutex;
    static std::map<TextView, SavedProperties> known;
    const std::scoped_lock lock(mutex);
    const auto found = known.find(type.name);
    return found != known.end() ? found->second
                                : known.emplace(type.name, AskControl(type)).first->second;
}

const SavedProperty* Find(const std::vector<SavedProperty>& properties, TextView name) {
    const auto found =
        std::find_if(properties.begin(), properties.end(), [&](const SavedProperty& property) {
            return SameText(property.name, name, Compare::IgnoreCase);
        });
    return found == properties.end() ? nullptr : &*found;
}

}  // namespace lumenkit::check
