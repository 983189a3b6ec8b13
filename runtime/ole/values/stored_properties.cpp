#include "runtime/ole/values/stored_properties.h"

#include <algorithm>

#include "frame/runtime_error.h"
#include "runtime/ole/values/font_maker.h"

namespace lumenkit::ole {

namespace {

using Stored = stored::Record::Value;

struct ToStored {
    Stored operator()(Empty /*value*/) const { return std::monostate(); }
    Stored operator()(Null /*value*/) const { Raise(ErrorNumber::TypeMismatch); }
    Stored operator()(const Missing& /*value*/) const { Raise(ErrorNumber::TypeMismatch); }
    Stored operator()(const ObjectRef& object) const {
        const host::FontRef font = host::ToFont(object);
        return font == nullptr ? Stored() : Stored(RecordOf(*font));
    }
    template <typename T>
    Stored operator()(const T& value) const {
        return value;
    }
};

struct FromStored {
    Value operator()(std::monostate /*value*/) const { return Empty{}; }
    Value operator()(const stored::FontRecord& font) const { return ObjectRef(NewOleFont(font)); }
    template <typename T>
    Value operator()(const T& value) const {
        return value;
    }
};

auto PositionIn(const stored::Records& records, TextView name) {
    return std::ranges::find_if(records, [&](const stored::Record& record) {
        return SameText(record.name, name, Compare::IgnoreCase);
    });
}

}  // namespace

Value StoredProperties::ReadProperty(TextView name, const Value& defaultValue) {
    const auto found = PositionIn(records_, name);
    return found == records_.end() ? defaultValue : std::visit(FromStored(), found->value);
}

void StoredProperties::WriteProperty(TextView name, const Value& value, const Value& defaultValue) {
    const auto former = PositionIn(records_, name);
    if (former != records_.end()) {
        records_.erase(former);
    }
    if (!SameValue(value, defaultValue)) {
        records_.push_back({Text(name), std::visit(ToStored(), value)});
    }
}

}  // namespace lumenkit::ole
