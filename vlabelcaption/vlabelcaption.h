// VLabelCaption: the property page that edits the caption of a VLabel with a live preview.
#pragma once

#include <cstdint>
#include <memory>

#include "frame/automation/interface_table.h"
#include "frame/class_table.h"
#include "frame/control.h"
#include "frame/host/constituents.h"
#include "frame/text.h"

namespace lumenkit {

/// The page. It edits the first selected control, of any class, through the names of its members,
/// and keeps no reference to it between events. It traps no errors: errors of the edited control
/// and of the constituents propagate to the host, and the page stays usable.
class VLabelCaption final : public PropertyPage {
 public:
    explicit VLabelCaption(const PageHost& host);

    Object& Automation() override { return automation_; }

    void PropertyPage_Initialize() override;
    void PropertyPage_SelectionChanged() override;
    void PropertyPage_ApplyChanges() override;

 private:
    // Forward the events of the constituents to the handlers of the page.
    struct CaptionEvents final : host::TextBoxEvents {
        explicit CaptionEvents(VLabelCaption& owner) : page(owner) {}
        void Change() override { page.txtCaption_Change(); }
        void GotFocus() override { page.txtCaption_GotFocus(); }
        void LostFocus() override { page.txtCaption_LostFocus(); }
        void KeyPress(std::int16_t& keyAscii) override { page.txtCaption_KeyPress(keyAscii); }
        void KeyUp(std::int16_t& /*keyCode*/, std::int16_t& /*shift*/) override {
            page.txtCaption_KeyUp();
        }
        void MouseUp(host::MouseArguments& /*mouse*/) override { page.txtCaption_MouseUp(); }
        VLabelCaption& page;
    };
    struct PrefixEvents final : host::TextBoxEvents {
        explicit PrefixEvents(VLabelCaption& owner) : page(owner) {}
        void Change() override { page.txtBulletPrefix_Change(); }
        VLabelCaption& page;
    };
    struct IndentEvents final : host::TextBoxEvents {
        explicit IndentEvents(VLabelCaption& owner) : page(owner) {}
        void Change() override { page.txtBulletIndent_Change(); }
        void KeyPress(std::int16_t& keyAscii) override { txtBulletIndent_KeyPress(keyAscii); }
        VLabelCaption& page;
    };
    struct WrapEvents final : host::ClickEvents {
        explicit WrapEvents(VLabelCaption& owner) : page(owner) {}
        void Click() override { page.chkWordWrap_Click(); }
        VLabelCaption& page;
    };
    struct HelpEvents final : host::ClickEvents {
        explicit HelpEvents(VLabelCaption& owner) : page(owner) {}
        void Click() override { page.cmdHelp_Click(); }
        VLabelCaption& page;
    };
    struct HorizontalEvents final : host::ScrollBarEvents {
        explicit HorizontalEvents(VLabelCaption& owner) : page(owner) {}
        void Change() override { page.HScroll1_Change(); }
        VLabelCaption& page;
    };
    struct VerticalEvents final : host::ScrollBarEvents {
        explicit VerticalEvents(VLabelCaption& owner) : page(owner) {}
        void Change() override { page.VScroll1_Change(); }
        VLabelCaption& page;
    };

    void txtCaption_Change();
    void txtCaption_GotFocus();
    void txtCaption_LostFocus();
    void txtCaption_KeyUp();
    void txtCaption_MouseUp();
    void txtCaption_KeyPress(std::int16_t& KeyAscii);
    void txtBulletPrefix_Change();
    void txtBulletIndent_Change();
    static void txtBulletIndent_KeyPress(std::int16_t& KeyAscii);
    void chkWordWrap_Click();
    void HScroll1_Change();
    void VScroll1_Change();
    void cmdHelp_Click();

    // Create the constituents.
    void AddCaption(host::Constituents& parts);
    void AddMagnifier(host::Constituents& parts);
    void AddSettings(host::Constituents& parts);
    void AddPreview(host::Constituents& parts);

    void RefreshPreview();
    void CopyAppearance(Object& edited);
    /// Size of the visible part of the preview, left of and above the scroll bars.
    float VisibleWidth() const;
    float VisibleHeight() const;
    void SetUpScrollBars(float width, float height);
    void ShowSelection();
    void InsertToken(TextView token);
    void SelectNext();

    // Copy the page's fields to the properties of the preview.
    void PreviewCaption();
    void PreviewBulletPrefix();
    void PreviewBulletIndent();
    void PreviewWordWrap();

    host::PropertyPageSite& site_;
    host::SelectedControls& selectedControls_;
    host::Interaction& interaction_;
    TableObject automation_;

    CaptionEvents captionEvents_{*this};
    PrefixEvents prefixEvents_{*this};
    IndentEvents indentEvents_{*this};
    WrapEvents wrapEvents_{*this};
    HelpEvents helpEvents_{*this};
    HorizontalEvents horizontalEvents_{*this};
    VerticalEvents verticalEvents_{*this};

    // In tab order.
    std::unique_ptr<host::Label> lblCaption;
    std::unique_ptr<host::TextBox> txtCaption;
    std::unique_ptr<host::Label> Label1;
    std::unique_ptr<host::CommandButton> cmdHelp;
    std::unique_ptr<host::Label> labLeft;
    std::unique_ptr<host::Label> labChar;
    std::unique_ptr<host::Label> labSelect;
    std::unique_ptr<host::Label> labRight;
    std::unique_ptr<host::Label> lblBulletPrefix;
    std::unique_ptr<host::TextBox> txtBulletPrefix;
    std::unique_ptr<host::Label> lblBulletIndent;
    std::unique_ptr<host::TextBox> txtBulletIndent;
    std::unique_ptr<host::CheckBox> chkWordWrap;
    std::unique_ptr<host::PictureBox> Picture1;
    std::unique_ptr<host::ScrollBar> HScroll1;  // in front of the preview
    std::unique_ptr<host::ScrollBar> VScroll1;
    std::unique_ptr<host::EmbeddedControl> VLabel1;

    // The caption box's selection, in UTF-16 units from 0, the end exclusive.
    std::int32_t SelStart = 0;
    std::int32_t SelEnd = 0;
    bool NoSelection = true;
};

// The published description of the class, in vlabelcaption_interface.cpp.
extern const InterfaceTable vlabelCaptionInterface;
extern const ClassDescriptor vlabelCaptionClass;

}  // namespace lumenkit
