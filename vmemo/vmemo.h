// VMemo: a multi-line text box that holds its text to a number of characters a line and of lines.
#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include "frame/automation/interface_table.h"
#include "frame/color.h"
#include "frame/control.h"
#include "frame/host/text_box.h"
#include "frame/module.h"
#include "frame/module_errors.h"
#include "frame/text.h"
#include "vmemo/restriction_engine.h"
#include "vmemo/vmemo_interface.h"

namespace lumenkit {

/// The control. It lies under four text boxes, one for each ScrollBars setting, of which it shows
/// the one whose index is the setting: the active box. Gets read the active box, lets write all
/// four. Errors are reported to the person at the screen and not raised, but for what the container
/// raises while it is told of a new MaxCharsPerLine or MaxLines, or of a click.
class VMemo final : public Control {
 public:
    explicit VMemo(const ControlHost& host);

    Object& Automation() override { return automation_; }

    // Properties.
    Color pGetForeColor() const;
    void pLetForeColor(Color color);
    bool pGetEnabled() const;
    void pLetEnabled(bool enabled);
    host::FontRef pGetFont() const;
    /// All boxes come to share the font.
    void pSetFont(host::FontRef font);
    /// Always True; assigning it does nothing.
    bool pGetCausesValidation() const { return true; }  // NOLINT(*-to-static)
    void pLetCausesValidation(bool /*causes*/) {}
    Text pGetFontName() const;
    void pLetFontName(TextView name);
    /// Points.
    float pGetFontSize() const;
    void pLetFontSize(float points);
    bool pGetLocked() const;
    void pLetLocked(bool locked);
    /// Most UTF-16 units that the user may enter, 0 for no limit. Of a control whose Tag is "Return
    /// hWnd via ML", the window handle of the active box.
    std::int32_t pGetMaxLength() const;
    void pLetMaxLength(std::int32_t length);
    host::MousePointer pGetMousePointer() const;
    void pLetMousePointer(host::MousePointer pointer);
    host::ScrollBars pGetScrollBars() const;
    void pLetScrollBars(host::ScrollBars scrollBars);
    Text pGetText() const;
    /// Cuts the text to the limits. `text` must not lie in one of the boxes.
    void pLetText(TextView text);
    /// UTF-16 units, 0 for no limit. New limits hold from the next edit or assignment on.
    std::int16_t pGetMaxCharsPerLine() const { return m_MaxCharsPerLine; }
    void pLetMaxCharsPerLine(std::int16_t count);
    std::int16_t pGetMaxLines() const { return m_MaxLines; }
    void pLetMaxLines(std::int16_t count);
    /// Sets MaxCharsPerLine to the number of letters "A" that are this wide, in twips.
    void pLetPageWidth(float width);

    // Methods.
    void Refresh();
    /// Fails, for the sake of the error report.
    void TestMessage();

    // The container's calls.
    void UserControl_InitProperties() override;
    void UserControl_ReadProperties(host::PropertyBag& bag) override;
    void UserControl_WriteProperties(host::PropertyBag& bag) override;
    void UserControl_Resize() override;

 private:
    friend class VMemoProbe;  // lets tests look at the fields

    // Tells which of the boxes speaks.
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

    /// The box with that index; raises 340 outside 0 to 3.
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
    /// What the engine accepted last while a limit was in force; a refused edit is put back to it.
    Text m_AcceptedText;
    /// True while the control itself writes into the boxes: their changes are nobody's edit.
    bool m_Updating = false;
    /// The caret at the last key-down, before the key took effect.
    std::int32_t m_KeyDownSelStart = 0;
    /// 0 once the key is up.
    std::int16_t m_LastKeyCode = 0;
    /// Counts in every loop over the boxes.
    std::int16_t m_BoxIndex = 0;

    static constexpr std::int16_t boxCount = 4;
    std::array<BoxEvents, boxCount> boxEvents_;
    std::array<std::unique_ptr<host::TextBox>, boxCount> text1_;
};

}  // namespace lumenkit
