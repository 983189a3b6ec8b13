// What a control runtime must offer to be held to the host contract's documented behaviour.
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

/// One runtime with one control on its container. What belongs to the user takes constituents that
/// this runtime made, on a control that is shown. Lengths are in twips.
class ContractRuntime {
 public:
    virtual ~ContractRuntime() = default;

    // The container. A control is placed in run mode, named "probe", with the tag "its tag", 3000
    // by 1500 twips large, and shown; a later one takes the place of the former.
    virtual void PlaceNew(const ClassDescriptor& type) = 0;
    virtual void PlaceSaved(const ClassDescriptor& type, host::PropertyBag& bag) = 0;
    /// To a size of whole pixels.
    virtual void Resize(float width, float height) = 0;
    virtual void Repaint() = 0;
    virtual void Save(host::PropertyBag& bag) = 0;
    virtual void SetEventHandler(EventHandler handler) = 0;
    virtual void AllowChange(TextView property, bool allowed) = 0;
    virtual std::vector<Text> ChangedProperties() = 0;

    virtual std::unique_ptr<host::PropertyBag> NewBag() = 0;
    virtual host::FontRef NewFont(TextView name, float points) = 0;

    // The user. Each does nothing where the thing cannot be used.
    virtual void Focus(host::TextBox& box) = 0;
    virtual void Type(host::TextBox& box, TextView text) = 0;
    virtual void Select(host::TextBox& box, std::int32_t start, std::int32_t length) = 0;
    virtual void Paste(host::TextBox& box, TextView text) = 0;
    virtual void Click(host::OptionButton& button) = 0;
    virtual void Click(host::CheckBox& box) = 0;
    virtual void Click(host::CommandButton& button) = 0;
    virtual void Scroll(host::ScrollBar& bar, std::int16_t value) = 0;
    virtual void ClickSurface() = 0;
};

/// A runtime under test. `create` gets the classes that it may create controls of.
struct RuntimeKind {
    const char* name;
    std::unique_ptr<ContractRuntime> (*create)(const ClassTable& classes);
};

inline std::ostream& operator<<(std::ostream& out, const RuntimeKind& kind) {
    return out << kind.name;
}

/// The one that a test program is linked with.
RuntimeKind RuntimeUnderTest();

}  // namespace lumenkit::contract
