#pragma once

#include <QString>
#include <QWidget>
#include <cstdint>
#include <optional>
#include <vector>

#include "apps/lumenform/form_view/block_reader.h"
#include "apps/lumenform/form_view/stage.h"
#include "frame/host/constituent.h"
#include "runtime/qt/hosted_control.h"

namespace lumenkit::lumenform {

class TabPages;

/// A block of the form with the widget that shows it. The block keeps its text until Save writes a
/// changed value. The widget is a child of its container's widget and is destroyed with the live
/// control or before it.
class LiveControl {
 public:
    virtual ~LiveControl() = default;
    LiveControl(const LiveControl&) = delete;
    LiveControl& operator=(const LiveControl&) = delete;

    forms::Block& Block() const { return reader_.Block(); }
    /// The name in code: "VMemo1", "optSize(2)".
    const Text& Name() const { return name_; }
    /// The position in the tab order; empty for controls without a TabIndex.
    std::optional<std::int32_t> TabIndex() const { return tabIndex_; }
    bool TabStop() const { return tabStop_; }

    virtual QWidget& Widget() const = 0;
    /// The surroundings of the controls in this one.
    virtual const Surroundings& Inside() const = 0;
    /// The hosted control, if this is a control of the library, or else null.
    virtual qt::HostedControl* Hosted() const { return nullptr; }
    /// The surroundings of one of the controls in this one. They differ from Inside() for a
    /// control on a page that is not shown.
    virtual const Surroundings& InsideFor(const forms::Block& /*inner*/) const { return Inside(); }
    /// The surroundings of all controls in this one: one for each page.
    virtual std::vector<const Surroundings*> Rooms() const { return {&Inside()}; }
    /// The pages with the controls in this one, or null if it has none.
    virtual TabPages* Pages() const { return nullptr; }
    /// Whether the control can contain other controls.
    virtual bool IsContainer() const { return false; }
    /// Whether the control is in the back layer, like labels and pictures: all controls outside
    /// that layer are in front of it.
    virtual bool IsInBack() const { return false; }

    /// Returns the text that a label shows, as screen readers say it.
    virtual QString SpokenText() const = 0;
    /// Tells screen readers the text of the label before the control. A control that has a caption
    /// ignores it.
    virtual void SetSpokenName(const QString& name) = 0;

    /// The coordinates of the container, in which the form saves the ends of a line.
    const Scale& Units() const { return scale_; }
    /// In twips, relative to the upper left corner of the container.
    virtual host::Placement Place() const = 0;
    /// Whether the control fits its contents, so that it can be elsewhere than its block says.
    virtual bool IsFitted() const { return false; }
    /// Whether the control has a size of its own. One that is not seen when the form runs is an
    /// icon of one size in the designer.
    virtual bool IsSizable() const { return true; }
    /// Raises 380 for a negative width or height.
    virtual void Move(const host::Placement& place) = 0;
    /// Called after the palette of the application has changed.
    virtual void PaletteChanged() {}

    /// Twips by which the place in the block is to the left of Place(), because the control is on a
    /// page that is not shown when the form is opened.
    float Offset() const { return offset_; }
    /// The edge of its container that places the control: 1 to 4 for top, bottom, left and right; 0
    /// for none.
    virtual std::int32_t DockingEdge() const { return 0; }
    /// Places a docking control. This is no change that Save writes.
    virtual void Dock(const host::Placement& /*place*/) {}

    /// Writes changed values into the block. See forms::BlockKeeper.
    virtual void Save();

 protected:
    LiveControl(const Stage& stage, const Surroundings& around, forms::Block& block);

    const BlockReader& Reader() const { return reader_; }
    /// Returns the place in the block, in twips. `otherwise` replaces missing values and
    /// negative sizes.
    host::Placement SavedPlace(const host::Placement& otherwise) const;
    /// The place that the block describes, in twips.
    const host::Placement& StoredPlace() const { return storedPlace_; }
    /// Called once with the initial place. Save writes only a place that differs from it.
    void SetStoredPlace(const host::Placement& place) { storedPlace_ = place; }

 private:
    void SavePlace();

    BlockReader reader_;
    Scale scale_;
    float offset_ = 0;
    Text name_;
    std::optional<std::int32_t> tabIndex_;
    bool tabStop_;
    host::Placement storedPlace_;
};

}  // namespace lumenkit::lumenform
