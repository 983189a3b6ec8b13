#pragma once

#include <QPointer>
#include <optional>

#include "apps/lumenform/form_view/form_site.h"
#include "apps/lumenform/form_view/live_control.h"
#include "forms/block_keeper.h"
#include "frame/class_table.h"

namespace lumenkit::lumenform {

/// A control of this library on a form.
class LibraryControl final : public LiveControl {
 public:
    LibraryControl(const Stage& stage, const Surroundings& around, forms::Block& block,
                   const ClassDescriptor& type);
    ~LibraryControl() override;
    LibraryControl(const LibraryControl&) = delete;
    LibraryControl& operator=(const LibraryControl&) = delete;

    QWidget& Widget() const override { return *widget_; }
    const Surroundings& Inside() const override { return *inside_; }
    qt::HostedControl* Hosted() const override { return widget_; }
    QString SpokenText() const override { return widget_->SpokenText(); }
    void SetSpokenName(const QString& name) override { widget_->SetSpokenName(name); }
    host::Placement Place() const override { return widget_->Place(); }
    void Move(const host::Placement& place) override { widget_->Move(place); }
    void PaletteChanged() override;
    void Save() override;

 private:
    void Start(QWidget& parent, const ClassDescriptor& type);
    void Raise(const EventTable& table, TextView event, std::span<Value> arguments);

    const Stage& stage_;
    const Color ground_;
    FormSite site_;
    QPointer<qt::HostedControl> widget_;
    std::optional<Surroundings> inside_;
    std::optional<forms::BlockKeeper> keeper_;
};

}  // namespace lumenkit::lumenform
