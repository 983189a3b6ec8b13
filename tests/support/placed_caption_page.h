// A caption page on the memory runtime, with accessors for tests.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "project/lumenkit_classes.h"
#include "runtime/memory/check_box.h"
#include "runtime/memory/command_button.h"
#include "runtime/memory/embedded_control.h"
#include "runtime/memory/form.h"
#include "runtime/memory/hosted_page.h"
#include "runtime/memory/label.h"
#include "runtime/memory/picture_box.h"
#include "runtime/memory/scroll_bar.h"
#include "runtime/memory/text_box.h"
#include "runtime/memory/user.h"
#include "tests/support/edited_double.h"

namespace lumenkit::testing {

class PlacedCaptionPage {
 public:
    PlacedCaptionPage() : page_(form_, form_.FindClass(u"VLabelCaption")) {}

    memory::Form& Form() { return form_; }
    memory::HostedPage& Page() { return page_; }
    memory::User& User() { return user_; }

    template <typename T>
    T& Part(TextView name) {
        return page_.Parts().Get<T>(name);
    }
    memory::TextBox& Caption() { return Part<memory::TextBox>(u"txtCaption"); }
    memory::TextBox& Prefix() { return Part<memory::TextBox>(u"txtBulletPrefix"); }
    memory::TextBox& Indent() { return Part<memory::TextBox>(u"txtBulletIndent"); }
    memory::CheckBox& Wrap() { return Part<memory::CheckBox>(u"chkWordWrap"); }
    memory::ScrollBar& Horizontal() { return Part<memory::ScrollBar>(u"HScroll1"); }
    memory::ScrollBar& Vertical() { return Part<memory::ScrollBar>(u"VScroll1"); }
    memory::EmbeddedControl& PreviewPart() { return Part<memory::EmbeddedControl>(u"VLabel1"); }
    /// The preview as automation clients see it.
    Object& Preview() { return PreviewPart().Inner().Automation(); }
    /// Returns a property of the preview as text.
    std::string Previewed(TextView property);

    /// Returns the magnifier's text as "left|middle|right", with "[middle]" if the middle is a
    /// selection.
    std::string Magnifier();
    bool IsMagnifierVisible();
    /// Returns the selection of the caption box as "start-end".
    std::string Selection();

    std::shared_ptr<EditedDouble> NewEdited(float width = 3000, float height = 1500) {
        return std::make_shared<EditedDouble>(form_.NewFont(u"Arial", 9.0F), width, height);
    }
    void Select(ObjectRef edited) { page_.SelectObjects({std::move(edited)}); }

 private:
    bool IsVisible(TextView label) { return Part<memory::Label>(label).IsVisible(); }
    std::string LabelText(TextView label);

    memory::Form form_{lumenkitClasses};
    memory::HostedPage page_;
    memory::User user_{form_};
};

}  // namespace lumenkit::testing
