#pragma once

#include <optional>

#include "forms/block.h"
#include "forms/document.h"
#include "forms/font_description.h"
#include "frame/host/property_bag.h"
#include "frame/text.h"

namespace lumenkit::forms {

/// The property bag of one control of a form, stored in its block. Document and block must outlive
/// the bag.
///
/// Reading: a text, wherever the form stores it, a shortcut and an identifier are returned as Text,
/// a Boolean as bool, a whole or hexadecimal number as a 32-bit integer, any other number as
/// double. A group with the identifier of a font, or without an identifier and named Font, is
/// returned as a new font each time. Other groups and missing names return the default value.
/// Raises 13 for a reference to a record that is not a string.
///
/// Writing: a property that already has the value keeps its line. A whole number is written as a
/// colour if the name of the property ends in Color. A new property is placed after the one that
/// was written before it or, if it is the first, after those whose names begin with an underscore.
/// Raises 13 for an object that is not a font, 94 for Null, 449 for a missing argument. Empty and a
/// null font remove the property.
class FormBag final : public host::PropertyBag {
 public:
    FormBag(const Document& document, Block& block, FontFactory makeFont);

    Value ReadProperty(TextView name, const Value& defaultValue) override;
    /// A value that is the same as its default removes the property.
    void WriteProperty(TextView name, const Value& value, const Value& defaultValue) override;
    /// Call it instead of WriteProperty to leave the property, if it exists, unchanged.
    void Keep(TextView name);

 private:
    std::optional<Text> TextOf(const Property& property) const;
    Value ValueOf(const Property& property) const;
    bool Holds(const Property& property, const Value& value) const;
    void Store(TextView name, const Value& value);
    void StoreFont(TextView name, const host::Font& font);

    const Document& document_;
    Block& block_;
    FontFactory makeFont_;
    Text last_;  // the property that was last written or kept
};

}  // namespace lumenkit::forms
