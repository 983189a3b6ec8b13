// What benchmarks of controls on Qt stand on: an application without a screen, and windows.
#pragma once

#include <QApplication>
#include <QWidget>
#include <array>
#include <memory>
#include <span>

#include "frame/host/container.h"
#include "frame/host/property_bag.h"
#include "runtime/qt/application.h"
#include "runtime/qt/control_widget.h"

namespace lumenkit::bench {

/// Also the application: one a program. Nobody listens to the controls' events. An error that a
/// control reports stops the program, as it would spoil the figures.
class QtStage final : public qt::ControlSite,
                      private host::Container,
                      private host::Ambient,
                      private host::Interaction {
 public:
    QtStage();

    const qt::Context& Context() const { return context_; }
    /// A started control of the class ("VLabel") on the window, at that place (twips); saved
    /// settings make a saved one. It must not outlive the stage.
    std::unique_ptr<qt::ControlWidget> Place(TextView className, const host::Placement& placement,
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

/// A shown window. Whatever has one of its own is covered by nothing.
class StageWindow final : public QWidget {
 public:
    StageWindow();
    /// Handles what events there are and paints the window as a whole.
    void ShowNow();
};

}  // namespace lumenkit::bench
