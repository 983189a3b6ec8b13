// A small control that uses every facility of the host, under the controls' error convention.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "frame/class_table.h"
#include "frame/control.h"
#include "frame/module.h"

namespace lumenkit::testing {

class SampleControl final : public Control,
                            private host::TextBoxEvents,
                            private host::OptionButtonEvents {
 public:
    explicit SampleControl(const ControlHost& host);

    Object& Automation() override { return automation_; }

    void UserControl_Initialize() override;
    void UserControl_InitProperties() override;
    void UserControl_ReadProperties(host::PropertyBag& bag) override;
    void UserControl_WriteProperties(host::PropertyBag& bag) override;
    void UserControl_Resize() override;
    void UserControl_Show() override;
    void UserControl_Paint() override;
    void UserControl_Click() override;
    void UserControl_DblClick() override;
    void UserControl_MouseDown(host::MouseArguments& mouse) override;
    void UserControl_MouseMove(host::MouseArguments& mouse) override;
    void UserControl_MouseUp(host::MouseArguments& mouse) override;

    Text pGetCaption();
    void pLetCaption(TextView caption);
    /// Reads the extender's Tag.
    Text pGetTag();
    void Ask();

    /// The calls of the container, in order: "Initialize", ...
    std::vector<std::string> calls;

 private:
    using host::TextBoxEvents::Click;

    void Change() override;
    void KeyPress(std::int16_t& keyAscii) override;
    void Click(std::int16_t index) override;

    ControlHost host_;
    ModuleErrors errors_;
    Module module_;
    TableObject automation_;
    std::unique_ptr<host::TextBox> Text1_;
    std::unique_ptr<host::Frame> Frame1_;
    std::unique_ptr<host::OptionButtons> Option1_;
    Text caption_;
};

namespace sample_event {
inline constexpr std::int32_t change = 1;    ///< no arguments
inline constexpr std::int32_t keyPress = 2;  ///< KeyAscii
inline constexpr std::int32_t click = 3;     ///< Index
inline constexpr std::int32_t mouseUp = 4;   ///< Button, X
}  // namespace sample_event

/// "sample.Sample". A new control has Text1 with "start", and Frame1 with Option1(0) and
/// Option1(1).
const ClassTable& SampleClasses();

}  // namespace lumenkit::testing
