#pragma once

#include <QWidget>
#include <cstdint>
#include <list>
#include <memory>

#include "frame/class_table.h"
#include "frame/host/constituents.h"
#include "runtime/qt/element.h"
#include "runtime/qt/elements.h"

namespace lumenkit::qt {

/// Creates a new control of the class `type` on a control or page.
using EmbedFunction = std::unique_ptr<host::EmbeddedControl> (*)(Elements& elements,
                                                                 const host::Design& design,
                                                                 const ClassDescriptor& type);

/// Creates and finds the constituents of one control or page, which are widgets on its drawing
/// area.
class Constituents final : public host::Constituents {
 public:
    /// The first three arguments are those of Elements. `embed` creates the constituents that are
    /// controls themselves. This object must outlive the constituents.
    Constituents(const Context& context, QWidget& area, bool userMode, EmbedFunction embed)
        : elements_(context, area, userMode), embed_(embed) {}

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

    /// The existing constituents in the order of their creation.
    const std::list<Element*>& All() const { return elements_.All(); }
    /// Returns the constituent with this name and this index in a control array (-1 outside of
    /// one), or null if there is none. The case of the name does not matter.
    Element* Find(TextView name, std::int16_t index = -1) const;

    /// Tells screen readers the name and the limits of the control. See Element::Describe.
    void Describe(const QString& name, const QString& hint) const;
    /// Stops the notifications of all constituents. Called before their control is destroyed.
    void Disconnect() const;
    /// Called when the colours of the area's palette changed.
    void ShowColors() const;
    /// Called when the area is larger than it is designed, by `growth` pixels, or no longer is.
    void FollowArea(QSize growth);

 private:
    Elements elements_;
    EmbedFunction embed_;
};

}  // namespace lumenkit::qt
