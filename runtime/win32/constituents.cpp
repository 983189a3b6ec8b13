#include "runtime/win32/constituents.h"

#include "frame/runtime_error.h"
#include "runtime/win32/check_box.h"
#include "runtime/win32/command_button.h"
#include "runtime/win32/frame_box.h"
#include "runtime/win32/label.h"
#include "runtime/win32/option_buttons.h"
#include "runtime/win32/picture_box.h"
#include "runtime/win32/scroll_bar.h"
#include "runtime/win32/text_box.h"

namespace lumenkit::win32 {

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
    const ClassDescriptor* type = elements_.context.classes.Find(programmaticIdentifier);
    if (type == nullptr || type->kind != ClassKind::Control) {
        Raise(ErrorNumber::CannotCreateObject);
    }
    return embed_(elements_, design, *type);
}

}  // namespace lumenkit::win32
