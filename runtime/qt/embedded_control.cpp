#include "runtime/qt/embedded_control.h"

namespace lumenkit::qt {

// The site, container and ambient of an embedded control, on behalf of the control around it.
class EmbeddedControl::Surroundings final : public ControlSite,
                                            private host::Container,
                                            private host::Ambient {
 public:
    explicit Surroundings(const Constituents& owner) : owner_(owner) {}

    host::Container& GetContainer() override { return *this; }
    host::Ambient& GetAmbient() override { return *this; }

 private:
    void PropertyChanged(TextView /*name*/) override {}
    bool CanPropertyChange(TextView /*name*/) override { return true; }
    void RaiseEvent(std::int32_t /*event*/, std::span<Value> /*arguments*/) override {}

    bool UserMode() const override { return owner_.UserMode(); }
    host::FontRef AmbientFont() const override {
        constexpr float points = 8.25F;
        return std::make_shared<Font>(u"MS Sans Serif", points);
    }
    Color BackColor() const override { return Color::ButtonFace; }

    const Constituents& owner_;
};

EmbeddedControl::EmbeddedControl(Constituents& owner, const host::Design& design,
                                 const ClassDescriptor& type)
    : BasicConstituent(owner, design), surroundings_(std::make_unique<Surroundings>(owner)) {
    AdoptHidden(std::make_unique<HostedControl>(
        owner.GetContext(), type, *surroundings_,
        Placing{.name = design.name, .placement = design.placement, .visible = design.visible},
        &ParentFor(owner, design)));
    Inner().StartNew();
}

EmbeddedControl::~EmbeddedControl() {
    Release();
}

void EmbeddedControl::Move(const host::Placement& placement) {
    Inner().Move(placement);
    BasicConstituent::Move(placement);
}

void EmbeddedControl::SetVisible(bool visible) {
    BasicConstituent::SetVisible(visible);
    Inner().SetShown(visible);
}

void EmbeddedControl::Refresh() {
    Inner().Drawing().Refresh();
}

}  // namespace lumenkit::qt
