#pragma once

#include <functional>
#include <vector>

#include "frame/automation/value.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// How the value of a property is shown and edited.
enum class PropertyKind {
    Text,
    LongText,  ///< a text that may have line breaks
    Items,     ///< a text with items separated by bars
    Lines,     ///< a text with an item in each line
    Number,
    Choice,  ///< one of the property's choices
    Color,
    Font,
    Picture,  ///< a picture as a text: see TextOfBytes
};

struct Choice {
    Text label;
    Value value;

    friend bool operator==(const Choice&, const Choice&) = default;
};

/// What an assignment changes.
enum class PropertyPlace {
    Live,   ///< the live control
    Block,  ///< the document's blocks; the view is created again
};

/// A property of one control or of the form, as the property list reads and writes it. Valid until
/// the view or the selection changes.
struct ObjectProperty {
    Text name;
    Text help = {};
    PropertyKind kind = PropertyKind::Text;
    std::vector<Choice> choices = {};
    PropertyPlace place = PropertyPlace::Block;
    bool isIndividual = false;  ///< cannot be set for several controls
    bool isOnPage = false;      ///< also on the control's property page
    /// Returns Empty if there is no value.
    std::function<Value()> get = {};
    /// Accepts a text for every kind but fonts. Raises the errors of conversions and of the
    /// control. Null if the property is read-only.
    std::function<void(const Value&)> set = {};
    /// Whether the value differs from the default. Null if the property has no default.
    std::function<bool()> isChanged = {};
    /// Assigns the default value, or removes the property from the block. Null if the property has
    /// no default or is read-only.
    std::function<void()> reset = {};
};

/// The choices True and False.
inline std::vector<Choice> TruthChoices() {
    return {{u"True", true}, {u"False", false}};
}

}  // namespace lumenkit::lumenform
