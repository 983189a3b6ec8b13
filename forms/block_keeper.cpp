#include "forms/block_keeper.h"

#include <utility>
#include <vector>

#include "forms/form_bag.h"
#include "frame/runtime_error.h"

namespace lumenkit::forms {

namespace {

bool IsSavingFailed(const RuntimeError& error) {
    return error.Number() == static_cast<std::int32_t>(ErrorNumber::SavingFailed);
}

}  // namespace

// Records the values that a control writes, in their order.
class BlockKeeper::Notes final : public host::PropertyBag {
 public:
    struct Note {
        Text name;
        Value value;
        Value defaultValue;
    };

    explicit Notes(const SaveControl& save) { save(*this); }

    Value ReadProperty(TextView /*name*/, const Value& defaultValue) override {
        return defaultValue;
    }
    void WriteProperty(TextView name, const Value& value, const Value& defaultValue) override {
        notes_.push_back({Text(name), value, defaultValue});
    }

    const std::vector<Note>& All() const { return notes_; }

 private:
    std::vector<Note> notes_;
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
    try {
        const Notes notes(save);
        HeldByName held;
        for (const Notes::Note& note : notes.All()) {
            held.insert_or_assign(note.name, HeldAs(note.value, note.defaultValue));
        }
        held_ = std::move(held);
    } catch (const RuntimeError& error) {
        if (!IsSavingFailed(error)) {
            throw;
        }
    }
}

// The block is changed only after the control has saved everything.
void BlockKeeper::Update(const SaveControl& save) {
    std::optional<Notes> notes;
    try {
        notes.emplace(save);
    } catch (const RuntimeError& error) {
        if (held_ || !IsSavingFailed(error)) {
            throw;
        }
        return;
    }
    Write(*notes);
}

void BlockKeeper::Write(const Notes& notes) {
    FormBag bag(document_, block_, nullptr);
    const bool keepsLines = held_.has_value();
    HeldByName& held = keepsLines ? *held_ : held_.emplace();
    for (const auto& [name, value, defaultValue] : notes.All()) {
        const auto before = held.find(name);
        Held now = HeldAs(value, defaultValue);
        if (keepsLines && IsSame(now, before == held.end() ? Held(Default()) : before->second)) {
            bag.Keep(name);
        } else {
            bag.WriteProperty(name, value, defaultValue);
            held.insert_or_assign(name, std::move(now));
        }
    }
}

}  // namespace lumenkit::forms
