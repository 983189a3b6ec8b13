#pragma once

#include <functional>
#include <map>
#include <variant>

#include "forms/block.h"
#include "forms/document.h"
#include "forms/font_description.h"
#include "frame/automation/value.h"
#include "frame/host/property_bag.h"
#include "frame/text.h"

namespace lumenkit::forms {

/// Puts into a block what the control that was read from it holds, and leaves what it held from the
/// start as it is written: a control of which nothing was changed keeps its bytes, whoever wrote
/// them. Document and block must outlive the keeper.
class BlockKeeper {
 public:
    /// Has the control write all its properties into a bag.
    using SaveControl = std::function<void(host::PropertyBag&)>;

    /// Notes what the control holds now, which is what the block says.
    BlockKeeper(const Document& document, Block& block, const SaveControl& save);

    /// Writes what is no more as it was at the last time.
    void Update(const SaveControl& save);

 private:
    struct Default {
        friend bool operator==(Default, Default) = default;
    };
    // A font by its attributes, since the control goes on using the object.
    using Held = std::variant<Default, Value, FontDescription>;
    using HeldByName = std::map<Text, Held, std::less<>>;
    class Notes;
    class Changes;

    static Held HeldAs(const Value& value, const Value& defaultValue);
    static bool IsSame(const Held& one, const Held& other);

    const Document& document_;
    Block& block_;
    HeldByName held_;
};

}  // namespace lumenkit::forms
