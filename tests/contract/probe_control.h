#pragma once

#include <memory>
#include <string>
#include <vector>

#include "frame/class_table.h"
#include "frame/control.h"

namespace lumenkit::contract {

/// A control that records the calls of its container and gives access to its host.
class ProbeControl final : public Control {
 public:
    explicit ProbeControl(const ControlHost& host);
    ~ProbeControl() override;

    /// Returns the control created last that still exists; null if there is none.
    static ProbeControl* Last();

    Object& Automation() override { return automation_; }
    void UserControl_Initialize() override { calls.emplace_back("Initialize"); }
    void UserControl_InitProperties() override { calls.emplace_back("InitProperties"); }
    /// Reads "Number".
    void UserControl_ReadProperties(host::PropertyBag& bag) override;
    /// Writes "Number", whose default is 0, or reports an error instead.
    void UserControl_WriteProperties(host::PropertyBag& bag) override;
    void UserControl_Resize() override;
    void UserControl_Show() override { calls.emplace_back("Show"); }
    void UserControl_Paint() override { calls.emplace_back("Paint"); }
    void UserControl_Click() override { calls.emplace_back("Click"); }

    std::int32_t pGetNumber() { return number_; }
    void pLetNumber(std::int32_t number) { number_ = number; }
    host::FontRef pGetFont() { return host_.surface.CurrentFont(); }
    void pSetFont(host::FontRef font) { host_.surface.SetCurrentFont(std::move(font)); }

    const ControlHost& Host() const { return host_; }
    std::vector<std::string> Take() { return std::exchange(calls, {}); }

    std::vector<std::string> calls;
    bool reportsErrors = false;
    /// The drawing area's size when Resize was last called, in twips.
    float resizedWidth = 0;
    float resizedHeight = 0;

 private:
    ControlHost host_;
    TableObject automation_;
    std::int32_t number_ = 0;
    ProbeControl* former_;
};

inline constexpr std::int32_t keyEvent = 1;    ///< KeyCode (16-bit), Position (single)
inline constexpr std::int32_t plainEvent = 2;  ///< no arguments

/// "contract.Probe".
const ClassTable& ProbeClasses();

}  // namespace lumenkit::contract
