#pragma once

#include <functional>
#include <string>
#include <vector>

#include "frame/class_table.h"
#include "frame/control.h"

namespace lumenkit::testing {

/// A control that paints with `onPaint`, gives tests its host, and records mouse events in `heard`.
class PaintingControl final : public Control {
 public:
    explicit PaintingControl(const ControlHost& host);
    ~PaintingControl() override;

    /// Returns the control created last, which must exist.
    static PaintingControl& Last();

    Object& Automation() override { return automation_; }
    void UserControl_Paint() override;
    void UserControl_Click() override { heard.emplace_back("click"); }
    void UserControl_DblClick() override { heard.emplace_back("dblclick"); }
    void UserControl_MouseDown(host::MouseArguments& mouse) override { Hear("down", mouse); }
    void UserControl_MouseMove(host::MouseArguments& mouse) override { Hear("move", mouse); }
    void UserControl_MouseUp(host::MouseArguments& mouse) override { Hear("up", mouse); }

    const ControlHost& Host() const { return host_; }

    std::function<void(host::Surface&)> onPaint;
    std::vector<std::string> heard;

 private:
    void Hear(const std::string& what, const host::MouseArguments& mouse);

    ControlHost host_;
    TableObject automation_;
};

/// "testing.Painting".
const ClassTable& PaintingClasses();

}  // namespace lumenkit::testing
