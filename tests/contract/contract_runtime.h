// The interface through which the tests of the host contract use a control runtime.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <ostream>
#include <span>
#include <vector>

#include "frame/class_table.h"
#include "frame/control.h"
#include "frame/host/font.h"
#include "frame/host/property_bag.h"
#include "frame/host/text_box.h"

namespace lumenkit::contract {

using EventHandler = std::function<void(TextView name, std::span<Value> arguments)>;

/// One runtime with one control in its container. The user's functions take constituents that this
/// runtime made, on a control that is shown. Lengths are in twips.
class ContractRuntime {
 public:
    virtual ~ContractRuntime() = default;

    // The container. A control is placed in run mode, named "probe", with the tag "its tag" and a
    // size of 3000 by 1500 twips, and is shown. It replaces the control placed before.
    virtual void PlaceNew(const ClassDescriptor& type) = 0;
    virtual void PlaceSaved(const ClassDescriptor& type, host::PropertyBag& bag) = 0;
    /// The size must be a whole number of pixels.
    virtual void Resize(float width, float height) = 0;
    /// Covers the control's window and uncovers it.
    virtual void Expose() = 0;
    virtual void Save(host::PropertyBag& bag) = 0;
    virtual void SetEventHandler(EventHandler handler) = 0;
    virtual void AllowChange(TextView property, bool allowed) = 0;
    virtual std::vector<Text> ChangedProperties() = 0;

    virtual std::unique_ptr<host::PropertyBag> NewBag() = 0;
    virtual host::FontRef NewFont(TextView name, float points) = 0;

    // The user. Each function does nothing if the constituent cannot be used.
    virtual void Focus(host::TextBox& box) = 0;
    virtual bool HasFocus(host::TextBox& box) = 0;
    virtual void Type(host::TextBox& box, TextView text) = 0;
    /// Presses a key that enters no text: End (35), Home (36), Left (37), Right (39), Delete (46).
    virtual void Press(host::TextBox& box, std::int16_t keyCode) = 0;
    virtual void Select(host::TextBox& box, std::int32_t start, std::int32_t length) = 0;
    virtual void Paste(host::TextBox& box, TextView text) = 0;
    virtual void Click(host::OptionButton& button) = 0;
    virtual void Click(host::CheckBox& box) = 0;
    virtual void Click(host::CommandButton& button) = 0;
    virtual void Scroll(host::ScrollBar& bar, std::int16_t value) = 0;
    virtual void ClickSurface() = 0;
};

/// A runtime under test. `create` receives the classes whose controls the runtime may create.
struct RuntimeKind {
    const char* name;
    std::unique_ptr<ContractRuntime> (*create)(const ClassTable& classes);
};

inline std::ostream& operator<<(std::ostream& out, const RuntimeKind& kind) {
    return out << kind.name;
}

/// Returns the runtime to which the test program is linked.
RuntimeKind RuntimeUnderTest();

}  // namespace lumenkit::contract
