// VMemo: a multi-line text box that limits the characters per line and the number of lines.
#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include "frame/automation/interface_table.h"
#include "frame/class_table.h"
#include "frame/color.h"
#include "frame/control.h"
#include "frame/host/text_box.h"
#include "frame/module.h"
#include "frame/module_errors.h"
#include "frame/text.h"
#include "vmemo/restriction_engine.h"

namespace lumenkit {

/// Identifiers of the events in the class's event table.
enum class VMemoEvent : std::int32_t {
    Click = 1,
    DblClick = 2,
    KeyDown = 3,
    KeyPress = 4,
    KeyUp = 5,
    MouseDown = 6,
    MouseMove = 7,
    MouseUp = 8,
    Change = 9,
    Validate = 10,  ///< never raised
};

/// The control. It contains four text boxes, one for each ScrollBars setting, and shows the one
/// whose index is the current setting: the active box. Getters read the active box; setters write
/// all four. Errors are reported to the user and not raised, except an error that the container
/// raises when it is notified of a new MaxCharsPerLine or MaxLines, or of a click.
class VMemo final : public Control {
 public:
    explicit VMemo(const ControlHost& host);

    Object& Automation() override { return automation_; }
    Text SpokenHint() const override;

    // Properties.
    Color pGetForeColor() const;
    void pLetForeColor(Color color);
    bool pGetEnabled() const;
    void pLetEnabled(bool enabled);
    host::FontRef pGetFont() const;
    /// Makes all boxes share the font.
    void pSetFont(host::FontRef font);
    /// Always True; assigning it does nothing.
    bool pGetCausesValidation() const { return true; }  // NOLINT(*-to-static)
    void pLetCausesValidation(bool /*causes*/) {}
    Text pGetFontName() const;
    void pLetFontName(TextView name);
    /// In points.
    float pGetFontSize() const;
    void pLetFontSize(float points);
    bool pGetLocked() const;
    void pLetLocked(bool locked);
    /// The most UTF-16 units that the user may enter, 0 for no limit. If the control's Tag is
    /// "Return hWnd via ML", the getter returns the window handle of the active box instead.
    std::int32_t pGetMaxLength() const;
    void pLetMaxLength(std::int32_t length);
    host::MousePointer pGetMousePointer() const;
    void pLetMousePointer(host::MousePointer pointer);
    host::ScrollBars pGetScrollBars() const;
    void pLetScrollBars(host::ScrollBars scrollBars);
    Text pGetText() const;
    /// Cuts the text to the limits. `text` must not be a view of the text of one of the boxes.
    void pLetText(TextView text);
    /// In UTF-16 units, 0 for no limit. A new limit applies from the next edit or assignment on.
    std::int16_t pGetMaxCharsPerLine() const { return m_MaxCharsPerLine; }
    void pLetMaxCharsPerLine(std::int16_t count);
    std::int16_t pGetMaxLines() const { return m_MaxLines; }
    void pLetMaxLines(std::int16_t count);
    /// Sets MaxCharsPerLine to the number of letters "A" that fit `width`, in twips, rounded to the
    /// nearest.
    void pLetPageWidth(float width);

    // Methods.
    void Refresh();
    /// Divides by zero, to test the error report.
    void TestMessage();

    // Called by the container.
    void UserControl_InitProperties() override;
    void UserControl_ReadProperties(host::PropertyBag& bag) override;
    void UserControl_WriteProperties(host::PropertyBag& bag) override;
    void UserControl_Resize() override;

 private:
    friend class VMemoProbe;  // gives tests access to the fields

    // Forwards the events of one box, with its index, to the control.
    class BoxEvents final : public host::TextBoxEvents {
     public:
        BoxEvents(VMemo& memo, std::int16_t index) : memo_(memo), index_(index) {}

        void Change() override { memo_.Text1_Change(index_); }
        void Click() override { memo_.Text1_Click(); }
        void DblClick() override { memo_.Text1_DblClick(); }
        void KeyDown(std::int16_t& keyCode, std::int16_t& shift) override {
            memo_.Text1_KeyDown(index_, keyCode, shift);
        }
        void KeyPress(std::int16_t& keyAscii) override { memo_.Text1_KeyPress(keyAscii); }
        void KeyUp(std::int16_t& keyCode, std::int16_t& shift) override {
            memo_.Text1_KeyUp(keyCode, shift);
        }
        void MouseDown(host::MouseArguments& mouse) override { memo_.Text1_MouseDown(mouse); }
        void MouseMove(host::MouseArguments& mouse) override { memo_.Text1_MouseMove(mouse); }
        void MouseUp(host::MouseArguments& mouse) override { memo_.Text1_MouseUp(mouse); }

     private:
        VMemo& memo_;
        std::int16_t index_;
    };

    void Text1_Change(std::int16_t index);
    void Text1_Click();
    void Text1_DblClick();
    void Text1_KeyDown(std::int16_t index, std::int16_t& keyCode, std::int16_t& shift);
    void Text1_KeyPress(std::int16_t& keyAscii);
    void Text1_KeyUp(std::int16_t& keyCode, std::int16_t& shift);
    void Text1_MouseDown(host::MouseArguments& mouse);
    void Text1_MouseMove(host::MouseArguments& mouse);
    void Text1_MouseUp(host::MouseArguments& mouse);
    void RaiseMouseEvent(ProcedureName procedure, VMemoEvent event, host::MouseArguments& mouse);

    Restriction ApplyRestrictions(std::int16_t index, TextView text, RestrictionMode mode);
    void WriteBack(host::TextBox& box, const Restriction& restriction);
    void CopyProperties();

    /// Returns the box `index`; raises 340 outside 0 to 3.
    host::TextBox& Text1(std::int32_t index) const;
    host::TextBox& ActiveBox() const { return Text1(m_ScrollBars); }
    template <typename Act>
    void ForBoxes(std::int16_t first, Act&& act);
    template <typename Result, typename Read>
    Result Get(ProcedureName procedure, Read&& read) const;
    template <typename Put>
    void Let(ProcedureName procedure, TextView property, Put&& put);

    ControlHost host_;
    ModuleErrors errors_;
    Module module_;
    TableObject automation_;

    std::int16_t m_MaxCharsPerLine = 0;
    std::int16_t m_MaxLines = 0;
    std::int32_t m_ScrollBars = 0;
    /// The text that the engine accepted last while a limit was set. A refused edit is reverted to
    /// it.
    Text m_AcceptedText;
    /// True while the control itself writes to the boxes: their changes are then not edits by the
    /// user.
    bool m_Updating = false;
    /// The caret at the last key-down, before the key took effect.
    std::int32_t m_KeyDownSelStart = 0;
    /// Code of the key that is down; 0 after it is released.
    std::int16_t m_LastKeyCode = 0;
    /// The counter of each loop over the boxes.
    std::int16_t m_BoxIndex = 0;

    static constexpr std::int16_t boxCount = 4;
    std::array<BoxEvents, boxCount> boxEvents_;
    std::array<std::unique_ptr<host::TextBox>, boxCount> boxes_;
};

// The published description of the class, in vmemo_interface.cpp.
extern const InterfaceTable vmemoInterface;
extern const EventTable vmemoEvents;
extern const ClassDescriptor vmemoClass;

}  // namespace lumenkit
