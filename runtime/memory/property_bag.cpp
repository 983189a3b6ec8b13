#include "runtime/memory/property_bag.h"

#include <algorithm>

#include "runtime/memory/font.h"

namespace lumenkit::memory {

namespace {

// Fonts are kept by value: another font object with the same attributes.
Value Copy(const Value& value) {
    if (const auto* object = std::get_if<ObjectRef>(&value)) {
        if (const auto font = std::dynamic_pointer_cast<Font>(*object)) {
            return ObjectRef(font->Clone());
        }
    }
    return value;
}

template <typename Entries>
auto PositionIn(Entries& entries, TextView name) {
    return std::find_if(entries.begin(), entries.end(), [&](const auto& entry) {
        return SameText(entry.first, name, Compare::IgnoreCase);
    });
}

}  // namespace

Value PropertyBag::ReadProperty(TextView name, const Value& defaultValue) {
    const Value* stored = Find(name);
    return stored == nullptr ? defaultValue : Copy(*stored);
}

void PropertyBag::WriteProperty(TextView name, const Value& value, const Value& defaultValue) {
    if (!SameValue(value, defaultValue)) {
        Store(name, value);
        return;
    }
    const auto stored = PositionIn(entries_, name);
    if (stored != entries_.end()) {
        entries_.erase(stored);
    }
}

const Value* PropertyBag::Find(TextView name) const {
    const auto found = PositionIn(entries_, name);
    return found == entries_.end() ? nullptr : &found->second;
}

void PropertyBag::Store(TextView name, const Value& value) {
    const auto stored = PositionIn(entries_, name);
    if (stored == entries_.end()) {
        entries_.emplace_back(name, Copy(value));
    } else {
        stored->second = Copy(value);
    }
}

}  // namespace lumenkit::memory
