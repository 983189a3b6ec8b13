#pragma once

#include <cstdint>
#include <list>
#include <memory>
#include <stdexcept>

#include "frame/host/constituents.h"
#include "runtime/memory/element.h"

namespace lumenkit::memory {

class Form;
class Surface;
class TextBox;

/// Makes the constituents of one control or page and finds them again.
class Constituents final : public host::Constituents {
 public:
    /// `surface` is the control's, null for a page's. `userMode` is what embedded controls are
    /// told. All must outlive the constituents, and this object too.
    Constituents(Form& form, const Surface* surface, bool userMode)
        : form_(form), surface_(surface), userMode_(userMode) {}

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

    Form& GetForm() const { return form_; }
    /// Whether the control they lie on takes input.
    bool AcceptInput() const;

    /// Those that exist, in the order in which they were made.
    const std::list<Element*>& All() const { return elements_; }
    /// The constituent with this full name ("Text1(0)", "labChar"), without regard to case; null
    /// when there is none.
    Element* Find(TextView fullName) const;
    /// The constituent of kind T with this name, and index in a control array. Throws
    /// std::out_of_range when there is none.
    template <typename T>
    T& Get(TextView name, std::int16_t index = -1) const {
        auto* element = dynamic_cast<T*>(Find(name, index));
        if (element == nullptr) {
            throw std::out_of_range("no such constituent");
        }
        return *element;
    }
    /// The first text box that is visible; null when there is none.
    TextBox* VisibleTextBox() const;

    // For the elements, as they come and go.
    std::list<Element*>::iterator Register(Element& element);
    void Unregister(std::list<Element*>::iterator position);

 private:
    Element* Find(TextView name, std::int16_t index) const;
    void Call(TextView member) const;

    Form& form_;
    const Surface* surface_;
    bool userMode_;
    std::list<Element*> elements_;
};

}  // namespace lumenkit::memory
