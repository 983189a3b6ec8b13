// The environment of the benchmarks on Qt: an application without a screen, and windows.
#pragma once

#include <QApplication>
#include <QWidget>
#include <array>
#include <memory>
#include <span>

#include "frame/host/container.h"
#include "frame/host/property_bag.h"
#include "runtime/qt/application.h"
#include "runtime/qt/hosted_control.h"

namespace lumenkit::bench {

/// Creates the application, so a program can have only one stage. Ignores the events of the
/// controls. Ends the program when a control reports an error, because an error would distort the
/// figures.
class QtStage final : public qt::ControlSite,
                      private host::Container,
                      private host::Ambient,
                      private host::Interaction {
 public:
    QtStage();

    const qt::Context& Context() const { return context_; }
    /// Creates and starts a control of the class (such as "VLabel") in `window`, with its place in
    /// twips. With `saved`, the control loads its properties from that bag. The control must not
    /// outlive the stage.
    std::unique_ptr<qt::HostedControl> Place(TextView className, const host::Placement& placement,
                                             QWidget& window, host::PropertyBag* saved = nullptr);

 private:
    host::Container& GetContainer() override { return *this; }
    host::Ambient& GetAmbient() override { return *this; }
    void PropertyChanged(TextView /*name*/) override {}
    bool CanPropertyChange(TextView /*name*/) override { return true; }
    void RaiseEvent(std::int32_t /*event*/, std::span<Value> /*arguments*/) override {}
    bool UserMode() const override { return true; }
    host::FontRef AmbientFont() const override;
    Color BackColor() const override { return Color::ButtonFace; }
    void Beep() override {}
    void MsgBox(TextView message, host::MessageStyle style, std::optional<TextView> title) override;

    std::array<char, 6> name_{"bench"};
    std::array<char*, 2> arguments_{name_.data(), nullptr};
    int count_ = 1;
    QApplication application_;
    qt::Application component_;
    qt::Context context_;
};

/// A visible top-level window. Each benchmark has its own, so that its widgets are not covered by
/// those of another benchmark.
class StageWindow final : public QWidget {
 public:
    StageWindow();
    /// Handles the pending events and repaints the whole window.
    void ShowNow();
};

}  // namespace lumenkit::bench
