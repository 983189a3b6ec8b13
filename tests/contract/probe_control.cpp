#include "tests/contract/probe_control.h"

#include <array>

#include "frame/automation/member_binding.h"

namespace lumenkit::contract {

namespace {

ProbeControl* last = nullptr;

constexpr std::array members = {
    Property<&ProbeControl::pGetNumber, &ProbeControl::pLetNumber>(0, u"Number", u""),
    Property<&ProbeControl::pGetNumber, &ProbeControl::pLetNumber>(1, u"Other", u""),
    Property<&ProbeControl::pGetFont, &ProbeControl::pSetFont>(2, u"Font", u""),
};
constexpr InterfaceTable interfaceTable = {u"_Probe", members};

constexpr std::array keyParameters = {Parameter{u"KeyCode", ValueType::Integer},
                                      Parameter{u"Position", ValueType::Single}};
constexpr std::array events = {
    Event{keyEvent, u"Key", u"", keyParameters},
    Event{plainEvent, u"Plain", u""},
};
constexpr EventTable eventTable = {u"__Probe", events};

}  // namespace

ProbeControl::ProbeControl(const ControlHost& host)
    : host_(host), automation_(interfaceTable, this), former_(std::exchange(last, this)) {}

ProbeControl::~ProbeControl() {
    if (last == this) {
        last = former_;
    } else if (last != nullptr && last->former_ == this) {
        last->former_ = former_;
    }
}

ProbeControl* ProbeControl::Last() {
    return last;
}

void ProbeControl::UserControl_ReadProperties(host::PropertyBag& bag) {
    calls.emplace_back("ReadProperties");
    number_ = ToLong(bag.ReadProperty(u"Number", std::int32_t{0}));
}

void ProbeControl::UserControl_WriteProperties(host::PropertyBag& bag) {
    calls.emplace_back("WriteProperties");
    if (reportsErrors) {
        host_.interaction.MsgBox(u"an error", host::MessageStyle::Critical, u"LUMENKIT ERROR");
        return;
    }
    bag.WriteProperty(u"Number", number_, std::int32_t{0});
}

void ProbeControl::UserControl_Resize() {
    calls.emplace_back("Resize");
    resizedWidth = host_.surface.ScaleWidth();
    resizedHeight = host_.surface.ScaleHeight();
}

const ClassTable& ProbeClasses() {
    static constexpr std::array classes = {
        ClassDescriptor{.name = u"Probe",
                        .interfaceTable = &interfaceTable,
                        .eventTable = &eventTable,
                        .createControl = [](const ControlHost& host) -> std::unique_ptr<Control> {
                            return std::make_unique<ProbeControl>(host);
                        }},
    };
    static constexpr ClassTable table = {.libraryName = u"contract", .classes = classes};
    return table;
}

}  // namespace lumenkit::contract
