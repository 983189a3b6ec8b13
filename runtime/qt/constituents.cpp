#include "runtime/qt/constituents.h"

#include <QPlainTextEdit>
#include <algorithm>
#include <iterator>

#include "frame/runtime_error.h"
#include "runtime/qt/check_box.h"
#include "runtime/qt/command_button.h"
#include "runtime/qt/embedded_control.h"
#include "runtime/qt/frame_box.h"
#include "runtime/qt/label.h"
#include "runtime/qt/option_buttons.h"
#include "runtime/qt/picture_box.h"
#include "runtime/qt/scroll_bar.h"
#include "runtime/qt/text_box.h"

namespace lumenkit::qt {

std::unique_ptr<host::TextBox> Constituents::AddTextBox(const host::TextBoxDesign& design,
                                                        host::TextBoxEvents& events) {
    return std::make_unique<TextBox>(*this, design, events);
}

std::unique_ptr<host::OptionButtons> Constituents::AddOptionButtons(
    const host::OptionButtonDesign& design, host::Frame& frame, host::OptionButtonEvents& events) {
    return std::make_unique<OptionButtons>(*this, design, frame, events);
}

std::unique_ptr<host::Frame> Constituents::AddFrame(const host::CaptionDesign& design) {
    return std::make_unique<FrameBox>(*this, design);
}

std::unique_ptr<host::Label> Constituents::AddLabel(const host::CaptionDesign& design) {
    return std::make_unique<Label>(*this, design);
}

std::unique_ptr<host::CheckBox> Constituents::AddCheckBox(const host::CaptionDesign& design,
                                                          host::ClickEvents& events) {
    return std::make_unique<CheckBox>(*this, design, events);
}

std::unique_ptr<host::CommandButton> Constituents::AddCommandButton(
    const host::CaptionDesign& design, host::ClickEvents& events) {
    return std::make_unique<CommandButton>(*this, design, events);
}

std::unique_ptr<host::PictureBox> Constituents::AddPictureBox(const host::Design& design) {
    return std::make_unique<PictureBox>(*this, design);
}

std::unique_ptr<host::ScrollBar> Constituents::AddScrollBar(const host::Design& design,
                                                            host::Orientation orientation,
                                                            host::ScrollBarEvents& events) {
    return std::make_unique<ScrollBar>(*this, design, orientation, events);
}

std::unique_ptr<host::EmbeddedControl> Constituents::AddControl(const host::Design& design,
                                                                TextView programmaticIdentifier) {
    const ClassDescriptor* type = context_.classes.Find(programmaticIdentifier);
    if (type == nullptr || type->kind != ClassKind::Control) {
        Raise(ErrorNumber::CannotCreateObject);
    }
    return std::make_unique<EmbeddedControl>(*this, design, *type);
}

Element* Constituents::Find(TextView name, std::int16_t index) const {
    const auto found = std::ranges::find_if(elements_, [&](const Element* element) {
        return element->Index() == index && SameText(element->Name(), name, Compare::IgnoreCase);
    });
    return found == elements_.end() ? nullptr : *found;
}

void Constituents::Name(const Element& element) const {
    QWidget* widget = element.Widget();
    if (elements_.size() < 2 || widget->focusPolicy() == Qt::NoFocus) {
        return;
    }
    auto* label = dynamic_cast<Label*>(*std::next(elements_.rbegin()));
    if (label != nullptr && label->Widget()->parentWidget() == widget->parentWidget() &&
        (qobject_cast<QPlainTextEdit*>(widget) != nullptr || label->HasMnemonicNow())) {
        label->SetBuddy(widget);
    }
}

void Constituents::Disconnect() {
    for (Element* element : elements_) {
        element->Disconnect();
    }
}

void Constituents::ShowColors() {
    for (Element* element : elements_) {
        element->ShowColors();
    }
}

std::list<Element*>::iterator Constituents::Register(Element& element) {
    return elements_.insert(elements_.end(), &element);
}

}  // namespace lumenkit::qt
