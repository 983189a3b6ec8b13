#pragma once

#include <functional>
#include <vector>

#include "frame/automation/value.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// How the value of a property is shown and edited.
enum class SettingKind {
    Text,
    LongText,  ///< a text that may have line breaks
    Items,     ///< a text with items separated by bars
    Number,
    Choice,  ///< one of the setting's choices
    Color,
    Font,
};

struct Choice {
    Text label;
    Value value;

    friend bool operator==(const Choice&, const Choice&) = default;
};

/// The place that a setting changes.
enum class SettingPlace {
    Live,   ///< the live control
    Block,  ///< the document's blocks; the view is created again
};

/// A property of a control or of the form. Valid until the view or the selection changes.
struct Setting {
    Text name;
    Text help = {};
    SettingKind kind = SettingKind::Text;
    std::vector<Choice> choices = {};
    SettingPlace place = SettingPlace::Block;
    bool isOwn = false;     ///< cannot be set for several controls
    bool isOnPage = false;  ///< also on the control's property page
    /// Returns Empty if there is no value.
    std::function<Value()> get = {};
    /// Accepts a text for every kind but fonts. Raises the errors of conversions and of the
    /// control. Null if the property is read-only.
    std::function<void(const Value&)> set = {};
};

/// The choices True and False.
std::vector<Choice> TruthChoices();

}  // namespace lumenkit::lumenform
