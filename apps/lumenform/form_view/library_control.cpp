#include "apps/lumenform/form_view/library_control.h"

#include <algorithm>

#include "apps/lumenform/form_view/look.h"
#include "frame/host/property_bag.h"
#include "frame/runtime_error.h"

namespace lumenkit::lumenform {

namespace {

// The bag from which a control is loaded. A value that cannot be read counts as missing and leaves
// a warning in the document.
class LoadingBag final : public host::PropertyBag {
 public:
    LoadingBag(const forms::Document& document, forms::Block& block)
        : document_(document), block_(block), bag_(BagOf(document, block)) {}

    Value ReadProperty(TextView name, const Value& defaultValue) override {
        try {
            Value value = bag_.ReadProperty(name, defaultValue);
            const bool wantsObject = SameText(name, u"Font", Compare::IgnoreCase);
            if (wantsObject && !std::holds_alternative<ObjectRef>(value)) {
                Raise(ErrorNumber::TypeMismatch);
            }
            return value;
        } catch (const RuntimeError& error) {
            WarnAbout(document_, block_, name, error);
            return defaultValue;
        }
    }
    void WriteProperty(TextView /*name*/, const Value& /*value*/,
                       const Value& /*defaultValue*/) override {}

 private:
    const forms::Document& document_;
    forms::Block& block_;
    forms::FormBag bag_;
};

// Returns the colour behind the text of the control. Captions have one of their own, memos that of
// windows, and option lists that of their container.
Color GroundOf(const BlockReader& reader, const Surroundings& around) {
    const auto is = [&](TextView name) {
        return SameText(reader.Block().ClassName(), name, Compare::IgnoreCase);
    };
    if (is(u"lumenkit.VLabel") && reader.Whole(u"BackStyle", 0) == 0) {
        return reader.ColorOf(u"BackColor", Color::WindowBackground);
    }
    return is(u"lumenkit.VMemo") ? Color::WindowBackground : around.backColor;
}

}  // namespace

LibraryControl::LibraryControl(const Stage& stage, const Surroundings& around, forms::Block& block,
                               const ClassDescriptor& type)
    : LiveControl(stage, around, block),
      stage_(stage),
      ground_(GroundOf(Reader(), around)),
      site_(stage.mode, around, type.eventTable) {
    if (const EventTable* table = type.eventTable) {
        site_.GetContainer().onEvent = [this, table](TextView event, std::span<Value> arguments) {
            Raise(*table, event, arguments);
        };
    }
    try {
        Start(around.widget, type);
    } catch (const RuntimeError& error) {
        delete widget_.data();
        Refuse(stage.document, block.NamePlace(), Name(), error.Description());
    } catch (...) {
        delete widget_.data();
        throw;
    }
    inside_.emplace(Surroundings{*widget_, around.backColor, around.font, Scale()});
    SetStoredPlace(widget_->Place());
}

LibraryControl::~LibraryControl() {
    qt::DeleteSafely(widget_.data());
}

void LibraryControl::Start(QWidget& parent, const ClassDescriptor& type) {
    const qt::Placing standard;
    const Text tag = Reader().String(u"Tag");
    const qt::Placing placing{
        .name = Name(),
        .placement = SavedPlace(standard.placement),
        .tag = tag,
        .visible = stage_.mode == Mode::Design || Reader().Flag(u"Visible", true)};
    widget_ = new qt::HostedControl(stage_.context, type, site_, placing, &parent);
    PaletteChanged();
    LoadingBag bag(stage_.document, Block());
    widget_->StartSaved(bag);
    keeper_.emplace(stage_.document, Block(),
                    [this](host::PropertyBag& notes) { widget_->Save(notes); });
}

void LibraryControl::Raise(const EventTable& table, TextView event, std::span<Value> arguments) {
    if (!stage_.raise) {
        return;
    }
    const auto found = std::ranges::find(table.events, event, &Event::name);
    if (found != table.events.end()) {
        stage_.raise({Block(), Name(), event, found->parameters, arguments});
    }
}

// The control has its own colours. Those that it takes from the palette are not the container's.
void LibraryControl::PaletteChanged() {
    ApplyColors(*widget_, {}, {}, ground_);
}

void LibraryControl::Save() {
    LiveControl::Save();
    keeper_->Update([this](host::PropertyBag& bag) { widget_->Save(bag); });
}

}  // namespace lumenkit::lumenform
