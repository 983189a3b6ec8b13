#include "forms/block_keeper.h"

#include <utility>

#include "forms/form_bag.h"

namespace lumenkit::forms {

// Records the values that a control writes.
class BlockKeeper::Notes final : public host::PropertyBag {
 public:
    Value ReadProperty(TextView /*name*/, const Value& defaultValue) override {
        return defaultValue;
    }
    void WriteProperty(TextView name, const Value& value, const Value& defaultValue) override {
        held.insert_or_assign(Text(name), HeldAs(value, defaultValue));
    }

    HeldByName held;
};

// Passes only changed values on to the bag of a block, and records each value that was written. A
// control traps its errors, so a save that fails halfway throws nothing; the next save writes the
// rest.
class BlockKeeper::Changes final : public host::PropertyBag {
 public:
    Changes(FormBag& bag, HeldByName& held) : bag_(bag), held_(held) {}

    Value ReadProperty(TextView name, const Value& defaultValue) override {
        return bag_.ReadProperty(name, defaultValue);
    }
    void WriteProperty(TextView name, const Value& value, const Value& defaultValue) override {
        const auto before = held_.find(name);
        Held now = HeldAs(value, defaultValue);
        if (IsSame(now, before == held_.end() ? Held(Default()) : before->second)) {
            bag_.Keep(name);
        } else {
            bag_.WriteProperty(name, value, defaultValue);
            held_.insert_or_assign(Text(name), std::move(now));
        }
    }

 private:
    FormBag& bag_;
    HeldByName& held_;
};

BlockKeeper::Held BlockKeeper::HeldAs(const Value& value, const Value& defaultValue) {
    if (SameValue(value, defaultValue)) {
        return Default();
    }
    if (const auto* object = std::get_if<ObjectRef>(&value)) {
        if (const auto* font = dynamic_cast<const host::Font*>(object->get())) {
            return Describe(*font);
        }
    }
    return value;
}

bool BlockKeeper::IsSame(const Held& one, const Held& other) {
    const auto* value = std::get_if<Value>(&one);
    const auto* otherValue = std::get_if<Value>(&other);
    if (value != nullptr && otherValue != nullptr) {
        return SameValue(*value, *otherValue);
    }
    const auto* font = std::get_if<FontDescription>(&one);
    const auto* otherFont = std::get_if<FontDescription>(&other);
    if (font != nullptr && otherFont != nullptr) {
        return *font == *otherFont;
    }
    return one.index() == other.index();
}

BlockKeeper::BlockKeeper(const Document& document, Block& block, const SaveControl& save)
    : document_(document), block_(block) {
    Notes notes;
    save(notes);
    held_ = std::move(notes.held);
}

void BlockKeeper::Update(const SaveControl& save) {
    FormBag bag(document_, block_, nullptr);
    Changes changes(bag, held_);
    save(changes);
}

}  // namespace lumenkit::forms
