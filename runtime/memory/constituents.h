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

/// Creates and finds the constituents of one control or page.
class Constituents final : public host::Constituents {
 public:
    /// `surface` is that of the control, null for a page. `userMode` is passed to embedded
    /// controls. All arguments must outlive the constituents, and so must this object.
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
    /// Returns whether the control that contains the constituents accepts input.
    bool AcceptInput() const;

    /// Returns the existing constituents, in the order of creation.
    const std::list<Element*>& All() const { return elements_; }
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

    // Called by the elements when they are created and destroyed.
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
