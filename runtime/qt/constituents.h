#pragma once

#include <QPointer>
#include <QWidget>
#include <list>

#include "frame/host/constituents.h"
#include "runtime/qt/context.h"

namespace lumenkit::qt {

class Element;

/// Creates the constituents of one control or page as widgets on its drawing area.
class Constituents final : public host::Constituents {
 public:
    /// `area` is the drawing area of the control, or the page. `userMode` is reported to embedded
    /// controls; where it is false, no constituent takes the keyboard focus. The arguments and this
    /// object must outlive the constituents.
    Constituents(const Context& context, QWidget& area, bool userMode)
        : context_(context), area_(area), userMode_(userMode) {}

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

    const Context& GetContext() const { return context_; }
    QWidget& Area() const { return area_; }
    bool UserMode() const { return userMode_; }
    /// The existing constituents in the order of their creation.
    const std::list<Element*>& All() const { return elements_; }
    /// Returns the constituent with this name and this index in a control array (-1 outside of
    /// one), or null if there is none. The case of the name does not matter.
    Element* Find(TextView name, std::int16_t index = -1) const;

    /// Stops the notifications of all constituents. Called before their control is destroyed.
    void Disconnect();
    /// Called when the colours of the area's palette changed.
    void ShowColors();

    /// Makes `element` the buddy of a label that was created just before it.
    void Name(const Element& element) const;

    // Called by the elements when they are created and destroyed.
    std::list<Element*>::iterator Register(Element& element);
    void Unregister(std::list<Element*>::iterator position) { elements_.erase(position); }

 private:
    const Context& context_;
    QWidget& area_;
    bool userMode_;
    std::list<Element*> elements_;
};

}  // namespace lumenkit::qt
