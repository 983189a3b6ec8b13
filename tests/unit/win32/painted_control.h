#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "frame/class_table.h"
#include "frame/control.h"

namespace lumenkit::testing {

/// A control that paints as a test says, and records the mouse events.
class PaintedControl final : public Control {
 public:
    explicit PaintedControl(const ControlHost& host);
    ~PaintedControl() override;

    /// Returns the control created last; null if it no longer exists.
    static PaintedControl* Last();

    Object& Automation() override { return automation_; }
    void UserControl_Resize() override;
    void UserControl_Show() override { ++shows; }
    void UserControl_Paint() override;
    void UserControl_Click() override;
    void UserControl_DblClick() override { lines.emplace_back("dblclick"); }
    void UserControl_MouseDown(host::MouseArguments& mouse) override { Write("down", mouse); }
    void UserControl_MouseMove(host::MouseArguments& mouse) override { Write("move", mouse); }
    void UserControl_MouseUp(host::MouseArguments& mouse) override { Write("up", mouse); }

    const ControlHost& Host() const { return host_; }

    std::function<void(host::Surface&)> paint;
    std::function<void()> onResize;
    std::function<void()> onClick;
    int paints = 0;
    int resizes = 0;
    int shows = 0;
    std::vector<std::string> lines;

 private:
    void Write(const char* what, const host::MouseArguments& mouse);

    ControlHost host_;
    TableObject automation_;
};

/// "test.Painted".
const ClassTable& PaintedClasses();

}  // namespace lumenkit::testing
