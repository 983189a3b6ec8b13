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
    /// A text of the application's own.
    virtual Text Tag() const = 0;
    virtual void SetTag(TextView tag) = 0;
    virtual bool IsSelected() const = 0;
    /// Selecting a button that is not selected clears every other one of the array and then
    /// notifies the click before it returns. Deselecting notifies nothing, nor does what changes
    /// nothing.
    virtual void Select(bool selected) = 0;
    /// 0: the button left of its caption; 1: right of it. Raises 380 for other values.
    virtual std::int16_t Alignment() const = 0;
    virtual void SetAlignment(std::int16_t alignment) = 0;
    virtual Color ForeColor() const = 0;
    virtual void SetForeColor(Color color) = 0;
};

class OptionButtonEvents {
 public:
    virtual ~OptionButtonEvents() = default;

    /// The button `index` was selected, by the user or by code.
    virtual void Click(std::int16_t /*index*/) {}
};

struct OptionButtonDesign : Design {
    TextView caption = {};
};

/// A control array of option buttons inside a frame: one group, of which one at most is selected.
/// Element 0 exists from the start.
class OptionButtons {
 public:
    virtual ~OptionButtons() = default;

    /// Raises 340 when there is no such element. Valid as long as the array.
    virtual OptionButton& Item(std::int16_t index) = 0;
    /// Creates the element `index` in the same frame and group: hidden, without caption and tag,
    /// not selected, otherwise as element 0 was designed. Raises 360 when it exists, 340 when
    /// negative.
    virtual void Load(std::int16_t index) = 0;
};

}  // namespace lumenkit::host
