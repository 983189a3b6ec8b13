#pragma once

#include <cstddef>
#include <map>
#include <utility>
#include <vector>

#include "frame/host/property_bag.h"

namespace lumenkit::memory {

/// Values by name, in the order in which they were first stored. Names are compared without regard
/// to case. Storing a font copies it, and each read returns a new font. Finding a value takes
/// logarithmic time; removing one takes linear time.
class PropertyBag final : public host::PropertyBag {
 public:
    using Entry = std::pair<Text, Value>;

    Value ReadProperty(TextView name, const Value& defaultValue) override;
    /// A value that is the same as its default removes the stored value.
    void WriteProperty(TextView name, const Value& value, const Value& defaultValue) override;

    const std::vector<Entry>& Entries() const { return entries_; }
    /// Returns the value stored under `name`; null when there is none. Valid until the bag changes.
    const Value* Find(TextView name) const;
    /// Stores `value` even if it is the same as its default.
    void Store(TextView name, const Value& value);

 private:
    struct CaselessLess {
        using is_transparent = void;
        bool operator()(TextView left, TextView right) const;
    };

    void Remove(TextView name);

    std::vector<Entry> entries_;
    std::map<Text, std::size_t, CaselessLess> positions_;  // indices in entries_
};

}  // namespace lumenkit::memory
