// A persisted property: its name in a property bag and its default value, which is not stored.
#pragma once

#include <utility>

#include "frame/automation/value_type.h"
#include "frame/host/property_bag.h"
#include "frame/text.h"

namespace lumenkit {

/// `Default` is the type of the constant that holds the default value: T itself, except for texts.
template <typename T, typename Default = T>
struct PersistedProperty {
    TextView name;
    Default defaultValue;

    /// Raises 6 or 13 when the stored value does not convert.
    T Read(host::PropertyBag& bag) const {
        return Automation<T>::From(bag.ReadProperty(name, DefaultValue()));
    }
    void Write(host::PropertyBag& bag, T value) const {
        bag.WriteProperty(name, Automation<T>::To(std::move(value)), DefaultValue());
    }

 private:
    Value DefaultValue() const { return Automation<T>::To(T(defaultValue)); }
};

using PersistedText = PersistedProperty<Text, TextView>;

}  // namespace lumenkit
