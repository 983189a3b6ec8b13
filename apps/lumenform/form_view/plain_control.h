#pragma once

#include <QPointer>
#include <functional>
#include <optional>
#include <vector>

#include "apps/lumenform/form_view/likeness/tab_pages.h"
#include "apps/lumenform/form_view/live_control.h"
#include "apps/lumenform/form_view/plain_kinds.h"

namespace lumenkit::lumenform {

/// A control of another library, shown as a plain widget that looks like it. Only its place is
/// written to its block, and the size of a picture box in its own units. A control that fits its
/// contents can be elsewhere than the block says; its place is written as soon as it is moved.
class PlainControl final : public LiveControl {
 public:
    PlainControl(const Stage& stage, const Surroundings& around, forms::Block& block);
    ~PlainControl() override;
    PlainControl(const PlainControl&) = delete;
    PlainControl& operator=(const PlainControl&) = delete;

    QWidget& Widget() const override { return *widget_; }
    const Surroundings& Inside() const override;
    const Surroundings& InsideFor(const forms::Block& inner) const override;
    std::vector<const Surroundings*> Rooms() const override;
    TabPages* Pages() const override { return pages_; }
    bool IsContainer() const override { return kind_.isContainer; }
    bool IsInBack() const override { return kind_.isInBack; }
    QString SpokenText() const override;
    void SetSpokenName(const QString& name) override;
    host::Placement Place() const override { return place_; }
    bool IsFitted() const override { return fit_ != nullptr; }
    bool IsSizable() const override { return kind_.isSeen; }
    void Move(const host::Placement& place) override;
    std::int32_t DockingEdge() const override;
    void Dock(const host::Placement& place) override;
    void PaletteChanged() override;
    void Save() override;

 private:
    PlainWidget Make(const Stage& stage);
    void AddPages(const Surroundings& inside);
    QRect Covered() const;
    void Occupy(const host::Placement& place);
    QSizeF RoomInside(const PlainWidget& made) const;
    void Raise(const Stage& stage, TextView event);
    void SetUp(const Stage& stage, const qt::Font& font);

    const PlainKind& kind_;
    WidgetColors colors_;
    Color ground_ = Color::ButtonFace;  // behind the text
    host::Placement place_;
    int reach_ = 0;
    std::function<host::Placement(const host::Placement&)> fit_;
    QPointer<QWidget> widget_;
    std::optional<Surroundings> inside_;
    QPointer<TabPages> pages_;
    std::vector<Surroundings> onPages_;
};

}  // namespace lumenkit::lumenform
