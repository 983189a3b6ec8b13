#pragma once

#include <functional>
#include <vector>

#include "frame/automation/value.h"
#include "frame/text.h"

namespace lumenkit::form {

/// How the value of a property is shown and edited.
enum class SettingKind {
    Text,
    LongText,  ///< a text that may have line breaks
    Items,     ///< a text whose parts are divided by bars
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

/// What a change of a setting changes.
enum class SettingPlace {
    Live,   ///< what the live control holds
    Block,  ///< the document's blocks: the view is made anew
};

/// One property of one control, or of the form. Valid until the view or the selection is another.
struct Setting {
    Text name;
    Text help = {};
    SettingKind kind = SettingKind::Text;
    std::vector<Choice> choices = {};
    SettingPlace place = SettingPlace::Block;
    bool isOwn = false;     ///< of one control alone, not to be set for several
    bool isOnPage = false;  ///< the control's property page edits it too
    /// Empty where there is no value.
    std::function<Value()> get = {};
    /// Takes a text for everything but fonts. Raises the errors of conversions and what the control
    /// raises. Null for what can only be read.
    std::function<void(const Value&)> set = {};
};

/// True and False.
std::vector<Choice> TruthChoices();

}  // namespace lumenkit::form
