#pragma once

#include <QWidget>
#include <cstdint>
#include <memory>
#include <optional>

#include "apps/lumenform/form_view/block_reader.h"
#include "apps/lumenform/form_view/stage.h"
#include "frame/class_table.h"
#include "frame/host/constituent.h"
#include "runtime/qt/control_widget.h"

namespace lumenkit::form {

/// A block of the form together with the widget that shows it. The block stays the truth: what it
/// says is kept as it is written until something else is to be saved. The widget is a child of the
/// one that it lies on, and goes with the live control or before it.
class LiveControl {
 public:
    virtual ~LiveControl() = default;
    LiveControl(const LiveControl&) = delete;
    LiveControl& operator=(const LiveControl&) = delete;

    /// One of our own controls where the block's class is one, a plain equivalent otherwise.
    /// Throws FormError for what the block says and the control refuses.
    static std::unique_ptr<LiveControl> Make(const Stage& stage, const Surroundings& around,
                                             forms::Block& block);

    forms::Block& Block() const { return reader_.Block(); }
    /// As code calls it: "VMemo1", "optSize(2)".
    const Text& Name() const { return name_; }
    /// Its turn when Tab is pressed; nothing for what takes none.
    std::optional<std::int32_t> TabIndex() const { return tabIndex_; }
    bool TabStop() const { return tabStop_; }

    virtual QWidget& Widget() const = 0;
    /// What those controls see that lie in it.
    virtual const Surroundings& Inside() const = 0;
    /// One of our controls; null for an equivalent.
    virtual qt::ControlWidget* Own() const { return nullptr; }
    /// Whether others can be put into it.
    virtual bool IsContainer() const { return false; }
    /// Whether it lies behind all that are not so, as labels and pictures do.
    virtual bool IsInBack() const { return false; }

    /// The units in which the form says where it lies.
    const Scale& Units() const { return scale_; }
    /// In twips, from the upper left corner of what it lies in.
    virtual host::Placement Place() const = 0;
    /// Raises 380 for a negative width or height.
    virtual void Move(const host::Placement& place) = 0;
    /// The application's palette is another.
    virtual void PaletteChanged() {}

    /// Writes into the block what is no more as it was; see forms::BlockKeeper.
    virtual void Save();

 protected:
    LiveControl(const Stage& stage, const Surroundings& around, forms::Block& block);

    const BlockReader& Reader() const { return reader_; }
    /// Where the block has it, in twips; `otherwise` says how large it is if the block does not.
    host::Placement SavedPlace(const host::Placement& otherwise) const;

 private:
    void SavePlace();

    BlockReader reader_;
    Scale scale_;
    Text name_;
    std::optional<std::int32_t> tabIndex_;
    bool tabStop_;
    std::optional<host::Placement> keptPlace_;  // that the block says
};

}  // namespace lumenkit::form
