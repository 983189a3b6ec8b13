#pragma once

#include <cstdint>

#include "frame/color.h"
#include "frame/host/constituent.h"
#include "frame/text.h"

namespace lumenkit::host {

/// One element of an array of option buttons.
class OptionButton : public TextConstituent {
 public:
    virtual Text Caption() const = 0;
    virtual void SetCaption(TextView caption) = 0;
    /// A text for the application's use.
    virtual Text Tag() const = 0;
    virtual void SetTag(TextView tag) = 0;
    virtual bool IsSelected() const = 0;
    /// Selecting a button that is not selected deselects all other buttons of the array and then
    /// notifies Click before the call returns. Deselecting a button notifies nothing. A call that
    /// changes nothing notifies nothing either.
    virtual void Select(bool selected) = 0;
    /// 0: the button is left of its caption; 1: right of it. Setting raises 380 for other values.
    virtual std::int16_t Alignment() const = 0;
    virtual void SetAlignment(std::int16_t alignment) = 0;
    virtual Color ForeColor() const = 0;
    virtual void SetForeColor(Color color) = 0;
};

class OptionButtonEvents {
 public:
    virtual ~OptionButtonEvents() = default;

    /// Called when the user or code selects the button `index`.
    virtual void Click(std::int16_t /*index*/) {}
};

struct OptionButtonDesign : Design {
    TextView caption = {};
};

/// A control array of option buttons inside a frame: one group, in which at most one button is
/// selected. Element 0 always exists.
class OptionButtons {
 public:
    virtual ~OptionButtons() = default;

    /// Returns the element `index`, which is valid as long as the array. Raises 340 when there is
    /// no such element.
    virtual OptionButton& Item(std::int16_t index) = 0;
    /// Creates the element `index` in the same frame and group. It is hidden, not selected and has
    /// no caption and no tag; its other properties are those of element 0's design. Raises 360 when
    /// the element exists, 340 when `index` is negative.
    virtual void Load(std::int16_t index) = 0;
};

}  // namespace lumenkit::host
