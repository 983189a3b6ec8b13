#pragma once

#include <cstdint>
#include <list>
#include <memory>
#include <stdexcept>

#include "frame/class_table.h"
#include "frame/host/constituents.h"
#include "runtime/memory/element.h"
#include "runtime/memory/elements.h"

namespace lumenkit::memory {

class TextBox;

/// Creates a new control of the class `type` on a control or page.
using EmbedFunction = std::unique_ptr<host::EmbeddedControl> (*)(Elements& elements,
                                                                 const host::Design& design,
                                                                 const ClassDescriptor& type);

/// Creates and finds the constituents of one control or page.
class Constituents final : public host::Constituents {
 public:
    /// The first three arguments are those of Elements. `embed` creates the constituents that are
    /// controls themselves. This object must outlive the constituents.
    Constituents(Form& form, const Surface* surface, bool userMode, EmbedFunction embed)
        : elements_(form, surface, userMode), embed_(embed) {}

    std::unique_ptr<host::TextBox> AddTextBox(const host::TextBoxDesign& design,
                                              host::TextBoxEvents& events) override;
    std::unique_ptr<host::OptionButtons> AddOptionButtons(
        const host::OptionButtonDesign& design, host::Frame& frame,
        host::OptionButtonEvents& events) override;
    std::unique_ptr<host::Frame> AddFrame(const host::CaptionDesign& design) override;
    std::unique_ptr<host::Label> AddLabel(const host::CaptionDesign& design) override;
    std::unique_ptr<host::CheckBox> AddCheckBox(const host::CaptionDesign& design,
                                                host::ClickEvents& events) override;
    std::unique_ptr<host::CommandButton> AddCommandButton(const host::CaptionDesign& design,
                                                          host::ClickEvents& events) override;
    std::unique_ptr<host::PictureBox> AddPictureBox(const host::Design& design) override;
    std::unique_ptr<host::ScrollBar> AddScrollBar(const host::Design& design,
                                                  host::Orientation orientation,
                                                  host::ScrollBarEvents& events) override;
    std::unique_ptr<host::EmbeddedControl> AddControl(const host::Design& design,
                                                      TextView programmaticIdentifier) override;

    /// Returns the existing constituents, in the order of creation.
    const std::list<Element*>& All() const { return elements_.All(); }
    /// Returns the constituent with this full name ("Text1(0)", "labChar"), compared without regard
    /// to case; null when there is none.
    Element* Find(TextView fullName) const;
    /// Returns the constituent of kind T with this name and, in a control array, this index. Throws
    /// std::out_of_range when there is none.
    template <typename T>
    T& Get(TextView name, std::int16_t index = -1) const {
        auto* element = dynamic_cast<T*>(Find(name, index));
        if (element == nullptr) {
            throw std::out_of_range("no such constituent");
        }
        return *element;
    }
    /// Returns the first visible text box; null when there is none.
    TextBox* VisibleTextBox() const;

 private:
    Element* Find(TextView name, std::int16_t index) const;
    void Call(TextView member) const;

    Elements elements_;
    EmbedFunction embed_;
};

}  // namespace lumenkit::memory
