// A property that is stored in a block of the document.
#pragma once

#include <cstdint>
#include <vector>

#include "apps/lumenform/design/model/form_design.h"
#include "apps/lumenform/design/properties/object_property.h"

namespace lumenkit::lumenform {

/// The type of the value in the block.
enum class StoredType : std::uint8_t {
    Text,
    LongText,  ///< a text that may have line breaks
    Truth,
    Whole,
    Number,
    Enumeration,
    Color,
    Font,
    Picture,  ///< for a table of properties: see PictureProperty
};

struct StoredProperty {
    Text name;
    const char* help = "";
    StoredType type = StoredType::Text;
    Value otherwise = {};              ///< the value that a block without the property means
    std::vector<Choice> choices = {};  ///< of an enumeration
    bool isRequired = false;           ///< has no default that could take its place
};

/// Sets a value in the block, in the place that a designer gives the property.
void StoreLiteral(forms::Block& block, TextView name, forms::Literal literal);

/// Sets or, if the text is empty, removes the shortcut key of a menu.
void StoreShortcut(forms::Block& menu, Text written);

/// Returns the help of a property, which is marked with QT_TRANSLATE_NOOP("help", ...), in the
/// user's language.
Text HelpText(const char* help);

/// What is shown in place of a value in the companion that cannot be read.
Text CompanionText();

/// Says in the help of a property why its record in the companion cannot be edited.
Text WhyNotEditable(const char* why);

/// Makes the property of the block. Assigned values are converted to its type.
ObjectProperty MakeProperty(FormDesign& design, forms::Block& block, StoredProperty property);

}  // namespace lumenkit::lumenform
