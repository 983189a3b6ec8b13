// Handles the events of the text boxes and forwards them to the container.
#include "frame/automation/raise_event.h"
#include "vmemo/vmemo.h"

namespace lumenkit {

namespace {

template <typename... Arguments>
void Raise(host::Container& container, VMemoEvent event, Arguments&... arguments) {
    RaiseEvent(container, static_cast<std::int32_t>(event), arguments...);
}

}  // namespace

void VMemo::Text1_Change(std::int16_t index) {
    module_.Procedure(u"Text1_Change", [&] {
        if (m_Updating) {
            return;
        }
        ApplyRestrictions(index, Text1(index).GetText(), RestrictionMode::Apply);
        if (index == m_ScrollBars) {
            Raise(host_.container, VMemoEvent::Change);
        }
    });
}

void VMemo::Text1_Click() {
    Raise(host_.container, VMemoEvent::Click);
}

void VMemo::Text1_DblClick() {
    Raise(host_.container, VMemoEvent::DblClick);
}

void VMemo::Text1_KeyDown(std::int16_t index, std::int16_t& keyCode, std::int16_t& shift) {
    module_.Procedure(u"Text1_KeyDown", [&] {
        m_KeyDownSelStart = Text1(index).SelStart();
        m_LastKeyCode = keyCode;  // stored before the container can change it
        Raise(host_.container, VMemoEvent::KeyDown, keyCode, shift);
    });
}

void VMemo::Text1_KeyPress(std::int16_t& keyAscii) {
    module_.Procedure(u"Text1_KeyPress",
                      [&] { Raise(host_.container, VMemoEvent::KeyPress, keyAscii); });
}

void VMemo::Text1_KeyUp(std::int16_t& keyCode, std::int16_t& shift) {
    module_.Procedure(u"Text1_KeyUp", [&] {
        m_LastKeyCode = 0;
        Raise(host_.container, VMemoEvent::KeyUp, keyCode, shift);
    });
}

void VMemo::Text1_MouseDown(host::MouseArguments& mouse) {
    RaiseMouseEvent(u"Text1_MouseDown", VMemoEvent::MouseDown, mouse);
}

void VMemo::Text1_MouseMove(host::MouseArguments& mouse) {
    RaiseMouseEvent(u"Text1_MouseMove", VMemoEvent::MouseMove, mouse);
}

void VMemo::Text1_MouseUp(host::MouseArguments& mouse) {
    RaiseMouseEvent(u"Text1_MouseUp", VMemoEvent::MouseUp, mouse);
}

void VMemo::RaiseMouseEvent(ProcedureName procedure, VMemoEvent event,
                            host::MouseArguments& mouse) {
    module_.Procedure(procedure, [&] {
        Raise(host_.container, event, mouse.button, mouse.shift, mouse.x, mouse.y);
    });
}

}  // namespace lumenkit
