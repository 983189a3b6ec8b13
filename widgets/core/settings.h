#pragma once

#include <algorithm>
#include <utility>
#include <vector>

#include "frame/automation/value.h"
#include "frame/host/property_bag.h"
#include "frame/text.h"

namespace lumenkit::widgets {

/// The properties of a control by name. A control is loaded from them and saved into them. All
/// values are stored, also those that are defaults.
class Settings final : public host::PropertyBag {
    static auto IsNamed(TextView name) {
        return [name](const std::pair<Text, Value>& setting) {
            return SameText(setting.first, name, Compare::IgnoreCase);
        };
    }

 public:
    /// Null if there is no such setting.
    const Value* Find(TextView name) const {
        const auto found = std::ranges::find_if(settings_, IsNamed(name));
        return found == settings_.end() ? nullptr : &found->second;
    }
    void Put(TextView name, Value value) {
        const auto found = std::ranges::find_if(settings_, IsNamed(name));
        if (found == settings_.end()) {
            settings_.emplace_back(name, std::move(value));
        } else {
            found->second = std::move(value);
        }
    }

    Value ReadProperty(TextView name, const Value& defaultValue) override {
        const Value* const found = Find(name);
        return found == nullptr ? defaultValue : *found;
    }
    void WriteProperty(TextView name, const Value& value, const Value& /*defaultValue*/) override {
        Put(name, value);
    }

 private:
    std::vector<std::pair<Text, Value>> settings_;
};

}  // namespace lumenkit::widgets
