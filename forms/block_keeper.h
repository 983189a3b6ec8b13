#pragma once

#include <functional>
#include <map>
#include <optional>
#include <variant>

#include "forms/block.h"
#include "forms/document.h"
#include "forms/font_description.h"
#include "frame/automation/value.h"
#include "frame/host/property_bag.h"
#include "frame/text.h"

namespace lumenkit::forms {

/// Saves a control to the block that it was read from. Unchanged properties keep their lines, so
/// the block of an unchanged control keeps its bytes. Document and block must outlive the keeper.
class BlockKeeper {
 public:
    /// Makes the control write all its properties to a bag. Throws if the control cannot.
    using SaveControl = std::function<void(host::PropertyBag&)>;

    /// Records the current values of the control, which must be those of the block. If the control
    /// cannot save them (SavingFailed), as after a value that it refused, the block keeps its lines
    /// until it can.
    BlockKeeper(const Document& document, Block& block, const SaveControl& save);

    /// Writes the values that changed since the last time. Changes nothing if `save` throws. Does
    /// nothing if the control still cannot be saved.
    void Update(const SaveControl& save);

 private:
    struct Default {
        friend bool operator==(Default, Default) = default;
    };
    // A font is held by its attributes, because the control continues to use the font object.
    using Held = std::variant<Default, Value, FontDescription>;
    using HeldByName = std::map<Text, Held, std::less<>>;
    class Notes;

    static Held HeldAs(const Value& value, const Value& defaultValue);
    static bool IsSame(const Held& one, const Held& other);
    void Write(const Notes& notes);

    const Document& document_;
    Block& block_;
    std::optional<HeldByName> held_;  // none until the control can be saved
};

}  // namespace lumenkit::forms
