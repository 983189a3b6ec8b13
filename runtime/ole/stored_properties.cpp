#include "runtime/ole/stored_properties.h"

#include <algorithm>

#include "frame/runtime_error.h"

namespace lumenkit::ole {

namespace {

using Stored = StoredProperties::Stored;

struct ToStored {
    Stored operator()(Empty /*value*/) const { return std::monostate(); }
    Stored operator()(Null /*value*/) const { Raise(ErrorNumber::TypeMismatch); }
    Stored operator()(Missing /*value*/) const { Raise(ErrorNumber::TypeMismatch); }
    Stored operator()(const ObjectRef& object) const {
        const host::FontRef font = host::ToFont(object);
        return font == nullptr ? Stored() : Stored(AttributesOf(*font));
    }
    template <typename T>
    Stored operator()(const T& value) const {
        return value;
    }
};

struct FromStored {
    Value operator()(std::monostate /*value*/) const { return Empty{}; }
    Value operator()(const FontAttributes& font) const { return ObjectRef(NewOleFont(font)); }
    template <typename T>
    Value operator()(const T& value) const {
        return value;
    }
};

template <typename Entries>
auto PositionIn(Entries& entries, TextView name) {
    return std::ranges::find_if(entries, [&](const StoredProperties::Entry& entry) {
        return SameText(entry.name, name, Compare::IgnoreCase);
    });
}

}  // namespace

Value StoredProperties::ReadProperty(TextView name, const Value& defaultValue) {
    const auto found = PositionIn(entries_, name);
    return found == entries_.end() ? defaultValue : std::visit(FromStored(), found->value);
}

void StoredProperties::WriteProperty(TextView name, const Value& value, const Value& defaultValue) {
    const auto former = PositionIn(entries_, name);
    if (former != entries_.end()) {
        entries_.erase(former);
    }
    if (!SameValue(value, defaultValue)) {
        Add(Text(name), std::visit(ToStored(), value));
    }
}

}  // namespace lumenkit::ole
