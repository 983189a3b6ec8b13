#include "runtime/memory/constituents.h"

#include <algorithm>

#include "frame/runtime_error.h"
#include "runtime/memory/check_box.h"
#include "runtime/memory/command_button.h"
#include "runtime/memory/frame_box.h"
#include "runtime/memory/label.h"
#include "runtime/memory/option_buttons.h"
#include "runtime/memory/picture_box.h"
#include "runtime/memory/scroll_bar.h"
#include "runtime/memory/text_box.h"

namespace lumenkit::memory {

namespace {

template <typename Condition>
Element* FirstOf(const std::list<Element*>& elements, Condition condition) {
    const auto found = std::find_if(elements.begin(), elements.end(), condition);
    return found == elements.end() ? nullptr : *found;
}

}  // namespace

void Constituents::Call(TextView member) const {
    elements_.GetForm().Faults().Call(u"Constituents", member);
}

std::unique_ptr<host::TextBox> Constituents::AddTextBox(const host::TextBoxDesign& design,
                                                        host::TextBoxEvents& events) {
    Call(u"AddTextBox");
    return std::make_unique<TextBox>(elements_, design, events);
}

std::unique_ptr<host::OptionButtons> Constituents::AddOptionButtons(
    const host::OptionButtonDesign& design, host::Frame& frame, host::OptionButtonEvents& events) {
    Call(u"AddOptionButtons");
    return std::make_unique<OptionButtons>(elements_, design, frame, events);
}

std::unique_ptr<host::Frame> Constituents::AddFrame(const host::CaptionDesign& design) {
    Call(u"AddFrame");
    return std::make_unique<FrameBox>(elements_, design);
}

std::unique_ptr<host::Label> Constituents::AddLabel(const host::CaptionDesign& design) {
    Call(u"AddLabel");
    return std::make_unique<Label>(elements_, design);
}

std::unique_ptr<host::CheckBox> Constituents::AddCheckBox(const host::CaptionDesign& design,
                                                          host::ClickEvents& events) {
    Call(u"AddCheckBox");
    return std::make_unique<CheckBox>(elements_, design, events);
}

std::unique_ptr<host::CommandButton> Constituents::AddCommandButton(
    const host::CaptionDesign& design, host::ClickEvents& events) {
    Call(u"AddCommandButton");
    return std::make_unique<CommandButton>(elements_, design, events);
}

std::unique_ptr<host::PictureBox> Constituents::AddPictureBox(const host::Design& design) {
    Call(u"AddPictureBox");
    return std::make_unique<PictureBox>(elements_, design);
}

std::unique_ptr<host::ScrollBar> Constituents::AddScrollBar(const host::Design& design,
                                                            host::Orientation orientation,
                                                            host::ScrollBarEvents& events) {
    Call(u"AddScrollBar");
    return std::make_unique<ScrollBar>(elements_, design, orientation, events);
}

std::unique_ptr<host::EmbeddedControl> Constituents::AddControl(const host::Design& design,
                                                                TextView programmaticIdentifier) {
    Call(u"AddControl");
    const ClassDescriptor* type = elements_.GetForm().Classes().Find(programmaticIdentifier);
    if (type == nullptr || type->kind != ClassKind::Control) {
        Raise(ErrorNumber::CannotCreateObject);
    }
    return embed_(elements_, design, *type);
}

Element* Constituents::Find(TextView fullName) const {
    return FirstOf(elements_.All(), [&](const Element* element) {
        return SameText(element->FullName(), fullName, Compare::IgnoreCase);
    });
}

Element* Constituents::Find(TextView name, std::int16_t index) const {
    return FirstOf(elements_.All(), [&](const Element* element) {
        return element->Index() == index && SameText(element->Name(), name, Compare::IgnoreCase);
    });
}

TextBox* Constituents::VisibleTextBox() const {
    return dynamic_cast<TextBox*>(FirstOf(elements_.All(), [](const Element* element) {
        return dynamic_cast<const TextBox*>(element) != nullptr && element->IsVisible();
    }));
}

}  // namespace lumenkit::memory
