// VLabel: a label whose caption is written in a small markup language.
#pragma once

#include <cstdint>

#include "frame/automation/interface_table.h"
#include "frame/class_table.h"
#include "frame/color.h"
#include "frame/control.h"
#include "frame/module.h"
#include "frame/module_errors.h"
#include "frame/text.h"
#include "vlabel/caption_renderer.h"

namespace lumenkit {

/// Identifiers of the events in the class's event table.
enum class VLabelEvent : std::int32_t {
    Click = 1,
    DblClick = 2,
    MouseDown = 3,
    MouseMove = 4,
    MouseUp = 5,
};

/// The control. vlabel_interface.cpp describes the members. They report their own errors to the
/// user and do not raise them; only an error that the container raises in a change notification can
/// propagate.
class VLabel final : public Control {
 public:
    explicit VLabel(const ControlHost& host);

    Object& Automation() override { return automation_; }
    Text SpokenText() const override;

    // Properties.
    Color pGetBackColor() const { return BackColor; }
    void pLetBackColor(Color color);
    Color pGetForeColor() const;
    void pLetForeColor(Color color);
    bool pGetEnabled() const;
    void pLetEnabled(bool enabled);
    host::FontRef pGetFont() const;
    void pSetFont(host::FontRef font);
    std::int16_t pGetBorderStyle() const;
    void pLetBorderStyle(std::int16_t style);
    bool pGetFontTransparent() const;
    void pLetFontTransparent(bool transparent);
    std::int16_t pGetMousePointer() const;
    void pLetMousePointer(std::int16_t pointer);
    const Text& pGetCaption() const { return settings_.Caption; }
    void pLetCaption(TextView caption);
    bool pGetWordWrap() const { return settings_.WordWrap; }
    void pLetWordWrap(bool wrap);
    std::int16_t pGetBulletIndent() const { return settings_.BulletIndent; }
    void pLetBulletIndent(std::int16_t indent);
    const Text& pGetBulletPrefix() const { return settings_.BulletPrefix; }
    void pLetBulletPrefix(TextView prefix);
    bool pGetAutoSize() const { return AutoSize; }
    void pLetAutoSize(bool autoSize);
    std::int16_t pGetBackStyle() const { return BackStyle; }
    void pLetBackStyle(std::int16_t style);

    // Methods.
    void Refresh();
    /// Resizes the control to its drawn caption, unless WordWrap is on or the size already exceeds
    /// the content by one to two pixels.
    void SetIdealSize();
    /// Returns the control's "width" or "height" (any case) in twips, as Single; Empty for other
    /// names.
    Value GetProperty(TextView PropertyName);
    /// Assigns the caption to test it.
    void Test(TextView CaptionToVerify);

    /// Returns the measurements of the last drawing.
    const CaptionDrawing& Drawing() const { return renderer_.Drawing(); }

    // Called by the container.
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

 private:
    template <typename Result, typename Read>
    Result Get(ProcedureName procedure, Read&& read) const;
    enum class Repaint { No, Yes };
    template <typename Put>
    void Let(ProcedureName procedure, TextView property, Repaint repaint, Put&& put);
    void PropertyChanged(TextView property, Repaint repaint);
    void RefreshControl(bool noRefresh);
    void ApplyBackColour();
    void RaiseMouseEvent(ProcedureName procedure, VLabelEvent event, host::MouseArguments& mouse);

    host::Surface& surface_;
    host::Container& container_;
    host::Ambient& ambient_;
    host::Screen& screen_;
    ModuleErrors errors_;
    Module module_;
    CaptionSettings settings_;
    CaptionRenderer renderer_;
    TableObject automation_;

    Color BackColor = Color::WindowBackground;
    std::int16_t BackStyle = 0;
    bool AutoSize = false;
    /// False while properties are read: assignments then do not repaint.
    bool IsReady = false;
    /// False while Test assigns its caption. Nothing reads it; it is a part of the documented
    /// state.
    bool NotTesting_ = false;
};

// The published description of the class, in vlabel_interface.cpp.
extern const InterfaceTable vlabelInterface;
extern const EventTable vlabelEvents;
extern const ClassDescriptor vlabelClass;

}  // namespace lumenkit
