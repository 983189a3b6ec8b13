#include "runtime/memory/property_bag.h"

#include <algorithm>
#include <utility>

#include "runtime/memory/font.h"

namespace lumenkit::memory {

namespace {

// Fonts are stored by value, as another font object with the same attributes.
Value Copy(const Value& value) {
    if (const auto* object = std::get_if<ObjectRef>(&value)) {
        if (const auto font = std::dynamic_pointer_cast<Font>(*object)) {
            return ObjectRef(font->Clone());
        }
    }
    return value;
}

}  // namespace

bool PropertyBag::CaselessLess::operator()(TextView left, TextView right) const {
    return std::lexicographical_compare(
        left.begin(), left.end(), right.begin(), right.end(),
        [](char16_t one, char16_t other) { return LowerUnit(one) < LowerUnit(other); });
}

Value PropertyBag::ReadProperty(TextView name, const Value& defaultValue) {
    const Value* stored = Find(name);
    return stored == nullptr ? defaultValue : Copy(*stored);
}

void PropertyBag::WriteProperty(TextView name, const Value& value, const Value& defaultValue) {
    if (SameValue(value, defaultValue)) {
        Remove(name);
    } else {
        Store(name, value);
    }
}

const Value* PropertyBag::Find(TextView name) const {
    const auto found = positions_.find(name);
    return found == positions_.end() ? nullptr : &entries_[found->second].second;
}

void PropertyBag::Store(TextView name, const Value& value) {
    Value copy = Copy(value);
    if (const auto found = positions_.find(name); found != positions_.end()) {
        entries_[found->second].second = std::move(copy);
        return;
    }
    const auto added = positions_.emplace(name, entries_.size()).first;
    try {
        entries_.emplace_back(name, std::move(copy));
    } catch (...) {
        positions_.erase(added);
        throw;
    }
}

void PropertyBag::Remove(TextView name) {
    const auto found = positions_.find(name);
    if (found == positions_.end()) {
        return;
    }
    const std::size_t removed = found->second;
    positions_.erase(found);
    entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(removed));
    for (auto& [other, position] : positions_) {
        position -= position > removed ? 1 : 0;
    }
}

}  // namespace lumenkit::memory
