#include "tests/unit/win32/painted_control.h"

#include <array>

namespace lumenkit::testing {

namespace {

PaintedControl* last = nullptr;

constexpr InterfaceTable interfaceTable = {u"_Painted", {}};

}  // namespace

PaintedControl::PaintedControl(const ControlHost& host)
    : host_(host), automation_(interfaceTable, this) {
    last = this;
}

PaintedControl::~PaintedControl() {
    last = last == this ? nullptr : last;
}

PaintedControl* PaintedControl::Last() {
    return last;
}

void PaintedControl::UserControl_Resize() {
    ++resizes;
    if (onResize) {
        onResize();
    }
}

void PaintedControl::UserControl_Paint() {
    ++paints;
    if (paint) {
        paint(host_.surface);
    }
}

void PaintedControl::UserControl_Click() {
    lines.emplace_back("click");
    if (onClick) {
        onClick();
    }
}

void PaintedControl::Write(const char* what, const host::MouseArguments& mouse) {
    lines.push_back(std::string(what) + " " + std::to_string(mouse.button) + " " +
                    std::to_string(mouse.shift) + " " + std::to_string(static_cast<int>(mouse.x)) +
                    "," + std::to_string(static_cast<int>(mouse.y)));
}

const ClassTable& PaintedClasses() {
    static constexpr std::array classes = {
        ClassDescriptor{.name = u"Painted",
                        .interfaceTable = &interfaceTable,
                        .createControl = [](const ControlHost& host) -> std::unique_ptr<Control> {
                            return std::make_unique<PaintedControl>(host);
                        }},
    };
    static constexpr ClassTable table = {.libraryName = u"test", .classes = classes};
    return table;
}

}  // namespace lumenkit::testing
