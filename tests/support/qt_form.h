#pragma once

#include <QMainWindow>
#include <memory>
#include <string>
#include <vector>

#include "frame/class_table.h"
#include "runtime/qt/application.h"
#include "runtime/qt/form_container.h"
#include "runtime/qt/hosted_control.h"
#include "runtime/qt/hosted_page.h"

namespace lumenkit::testing {

/// Records beeps and messages instead of showing them.
class WrittenInteraction final : public host::Interaction {
 public:
    void Beep() override { said.emplace_back(u"(beep)"); }
    void MsgBox(TextView message, host::MessageStyle /*style*/,
                std::optional<TextView> /*title*/) override {
        said.emplace_back(message);
    }

    std::vector<Text> said;
};

/// An active window with controls of any class table. Controls are placed by class name: "VLabel".
class QtForm final : public qt::ControlSite, private host::Ambient {
 public:
    explicit QtForm(const ClassTable& classes, bool userMode = true);

    /// Places a new control. The form owns it.
    qt::HostedControl& Place(TextView className, const host::Placement& placement);
    /// Creates a page without showing it. The caller owns it.
    std::unique_ptr<qt::HostedPage> Page(TextView className);
    void Remove(qt::HostedControl& control);

    QMainWindow window;
    WrittenInteraction interaction;
    std::vector<RuntimeError> errors;  ///< errors that event handlers let out
    std::vector<Text> events;          ///< names of the events raised, in order
    std::function<void(TextView name, std::span<Value> arguments)> onEvent;

 private:
    const ClassDescriptor& Class(TextView name) const;
    host::Container& GetContainer() override { return *containers_.back(); }
    host::Ambient& GetAmbient() override { return *this; }
    bool UserMode() const override { return userMode_; }
    host::FontRef AmbientFont() const override;
    Color BackColor() const override { return Color::ButtonFace; }

    ClassTable classes_;
    bool userMode_;
    qt::Application application_;
    qt::Context context_;
    std::vector<std::unique_ptr<qt::FormContainer>> containers_;
    std::vector<std::unique_ptr<qt::HostedControl>> controls_;
};

}  // namespace lumenkit::testing
