#include "tests/support/painting_control.h"

#include <array>
#include <stdexcept>

namespace lumenkit::testing {

namespace {

PaintingControl* lastMade = nullptr;

constexpr InterfaceTable interfaceTable = {u"_Painting", {}};

std::string Number(float number) {
    return std::to_string(static_cast<int>(number));
}

}  // namespace

PaintingControl::PaintingControl(const ControlHost& host)
    : host_(host), automation_(interfaceTable, this) {
    lastMade = this;
}

PaintingControl::~PaintingControl() {
    lastMade = lastMade == this ? nullptr : lastMade;
}

PaintingControl& PaintingControl::Last() {
    if (lastMade == nullptr) {
        throw std::logic_error("there is no painting control");
    }
    return *lastMade;
}

void PaintingControl::UserControl_Paint() {
    if (onPaint) {
        onPaint(host_.surface);
    }
}

void PaintingControl::Hear(const std::string& what, const host::MouseArguments& mouse) {
    heard.push_back(what + " " + std::to_string(mouse.button) + " " + std::to_string(mouse.shift) +
                    " " + Number(mouse.x) + " " + Number(mouse.y));
}

const ClassTable& PaintingClasses() {
    static constexpr std::array classes = {
        ClassDescriptor{.name = u"Painting",
                        .interfaceTable = &interfaceTable,
                        .createControl = [](const ControlHost& host) -> std::unique_ptr<Control> {
                            return std::make_unique<PaintingControl>(host);
                        }},
    };
    static constexpr ClassTable table = {.libraryName = u"testing", .classes = classes};
    return table;
}

}  // namespace lumenkit::testing
