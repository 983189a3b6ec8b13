#include "runtime/memory/user.h"

#include "runtime/memory/form.h"
#include "runtime/memory/hosted_control.h"
#include "runtime/memory/scroll_bar.h"
#include "runtime/memory/text_box.h"

namespace lumenkit::memory {

bool User::Type(TextBox& box, TextView text) {
    for (const char16_t unit : text) {
        if (!Reach(box)) {
            return false;
        }
        box.ReceiveKey(unit);
    }
    return true;
}

bool User::Press(TextBox& box, std::int16_t keyCode) {
    if (!Reach(box)) {
        return false;
    }
    box.ReceiveEditingKey(keyCode);
    return true;
}

bool User::Select(TextBox& box, std::int32_t start, std::int32_t length) {
    if (!Reach(box)) {
        return false;
    }
    box.ReceiveSelection(start, length);
    return true;
}

bool User::Paste(TextBox& box, TextView text) {
    if (!Reach(box) || box.IsLocked()) {
        return false;
    }
    box.ReceivePaste(text);
    return true;
}

bool User::Click(Element& element) {
    if (!Reach(element)) {
        return false;
    }
    element.ReceiveClick();
    return true;
}

bool User::DblClick(Element& element) {
    if (!Reach(element)) {
        return false;
    }
    element.ReceiveDblClick();
    return true;
}

bool User::Mouse(Element& element, MouseAction action, const host::MouseArguments& mouse) {
    const bool presses = action == MouseAction::Down;
    if (!(presses ? Reach(element) : element.AcceptsInput())) {
        return false;
    }
    element.ReceiveMouse(action, mouse);
    return true;
}

bool User::Click(HostedControl& control) {
    if (!control.Drawing().AcceptsInput()) {
        return false;
    }
    control.GetControl().UserControl_Click();
    return true;
}

bool User::DblClick(HostedControl& control) {
    if (!control.Drawing().AcceptsInput()) {
        return false;
    }
    control.GetControl().UserControl_DblClick();
    return true;
}

bool User::Mouse(HostedControl& control, MouseAction action, const host::MouseArguments& mouse) {
    if (!control.Drawing().AcceptsInput()) {
        return false;
    }
    host::MouseArguments arguments = mouse;
    switch (action) {
        case MouseAction::Down:
            control.GetControl().UserControl_MouseDown(arguments);
            break;
        case MouseAction::Move:
            control.GetControl().UserControl_MouseMove(arguments);
            break;
        case MouseAction::Up:
            control.GetControl().UserControl_MouseUp(arguments);
            break;
    }
    return true;
}

bool User::Scroll(ScrollBar& bar, std::int32_t value) {
    if (!Reach(bar)) {
        return false;
    }
    bar.ReceiveScroll(value);
    return true;
}

bool User::MoveFocusTo(Element& element) {
    return Reach(element);
}

void User::LeaveFocus() {
    form_.GetFocus().MoveTo(nullptr);
}

bool User::Reach(Element& element) {
    if (!element.AcceptsInput()) {
        return false;
    }
    if (element.TakesFocus()) {
        form_.GetFocus().MoveTo(&element);
    }
    return true;
}

}  // namespace lumenkit::memory
