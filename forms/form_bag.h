#pragma once

#include <optional>

#include "forms/block.h"
#include "forms/document.h"
#include "forms/font_description.h"
#include "frame/host/property_bag.h"
#include "frame/text.h"

namespace lumenkit::forms {

/// The property bag of one control of a form: its block. Document and block must outlive the bag.
///
/// Reading: a text is a Text wherever the form keeps it, a shortcut and an identifier too; a
/// Boolean is a bool, a whole number and a hexadecimal one a 32-bit integer, another number a
/// double. A group with a font's identifier, or of the name Font, is a new font each time. Any
/// other group counts as absent, and so does a name that stands nowhere. Raises 13 for a reference
/// to what is no string.
///
/// Writing: what has the value already keeps its line; a whole number under a name that ends in
/// Color is written as a colour. A new property stands behind the one that was written before it
/// or, as the first, behind those whose names begin with an underscore. Raises 13 for an object
/// that is no font, 94 for Null, 449 for a missing argument. Empty and a font that is nothing take
/// the property away.
class FormBag final : public host::PropertyBag {
 public:
    FormBag(const Document& document, Block& block, FontFactory makeFont);

    Value ReadProperty(TextView name, const Value& defaultValue) override;
    /// A value that is the same as its default takes the property away.
    void WriteProperty(TextView name, const Value& value, const Value& defaultValue) override;
    /// In the place of WriteProperty: the property stays as it stands, if it does.
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
    Text last_;  // the property that is written or kept before the next one
};

}  // namespace lumenkit::forms
