#include "runtime/qt/constituents.h"

#include <algorithm>

#include "frame/runtime_error.h"
#include "runtime/qt/check_box.h"
#include "runtime/qt/command_button.h"
#include "runtime/qt/frame_box.h"
#include "runtime/qt/label.h"
#include "runtime/qt/option_buttons.h"
#include "runtime/qt/picture_box.h"
#include "runtime/qt/scroll_bar.h"
#include "runtime/qt/text_box.h"

namespace lumenkit::qt {

std::unique_ptr<host::TextBox> Constituents::AddTextBox(const host::TextBoxDesign& design,
                                                        host::TextBoxEvents& events) {
    return std::make_unique<TextBox>(elements_, design, events);
}

std::unique_ptr<host::OptionButtons> Constituents::AddOptionButtons(
    const host::OptionButtonDesign& design, host::Frame& frame, host::OptionButtonEvents& events) {
    return std::make_unique<OptionButtons>(elements_, design, frame, events);
}

std::unique_ptr<host::Frame> Constituents::AddFrame(const host::CaptionDesign& design) {
    return std::make_unique<FrameBox>(elements_, design);
}

std::unique_ptr<host::Label> Constituents::AddLabel(const host::CaptionDesign& design) {
    return std::make_unique<Label>(elements_, design);
}

std::unique_ptr<host::CheckBox> Constituents::AddCheckBox(const host::CaptionDesign& design,
                                                          host::ClickEvents& events) {
    return std::make_unique<CheckBox>(elements_, design, events);
}

std::unique_ptr<host::CommandButton> Constituents::AddCommandButton(
    const host::CaptionDesign& design, host::ClickEvents& events) {
    return std::make_unique<CommandButton>(elements_, design, events);
}

std::unique_ptr<host::PictureBox> Constituents::AddPictureBox(const host::Design& design) {
    return std::make_unique<PictureBox>(elements_, design);
}

std::unique_ptr<host::ScrollBar> Constituents::AddScrollBar(const host::Design& design,
                                                            host::Orientation orientation,
                                                            host::ScrollBarEvents& events) {
    return std::make_unique<ScrollBar>(elements_, design, orientation, events);
}

std::unique_ptr<host::EmbeddedControl> Constituents::AddControl(const host::Design& design,
                                                                TextView programmaticIdentifier) {
    const ClassDescriptor* type = elements_.GetContext().classes.Find(programmaticIdentifier);
    if (type == nullptr || type->kind != ClassKind::Control) {
        Raise(ErrorNumber::CannotCreateObject);
    }
    return embed_(elements_, design, *type);
}

Element* Constituents::Find(TextView name, std::int16_t index) const {
    const auto found = std::ranges::find_if(All(), [&](const Element* element) {
        return element->Index() == index && SameText(element->Name(), name, Compare::IgnoreCase);
    });
    return found == All().end() ? nullptr : *found;
}

void Constituents::Describe(const QString& name, const QString& hint) const {
    for (Element* element : All()) {
        element->Describe(name, hint);
    }
}

void Constituents::Disconnect() const {
    for (Element* element : All()) {
        element->Disconnect();
    }
}

void Constituents::FollowArea(QSize growth) {
    elements_.SetGrowth(growth);
    for (Element* element : All()) {
        element->FollowArea();
    }
}

void Constituents::ShowColors() const {
    for (Element* element : All()) {
        element->ShowColors();
    }
}

}  // namespace lumenkit::qt
