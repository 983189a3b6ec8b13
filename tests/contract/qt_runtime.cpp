// Runs the contract tests on the Qt runtime, with the property bags of form files. The user's
// actions are Qt events.
#include <QApplication>
#include <QClipboard>
#include <QMainWindow>
#include <QMimeData>
#include <QScrollBar>
#include <QTest>
#include <utility>

#include "forms/document.h"
#include "forms/form_bag.h"
#include "runtime/qt/application.h"
#include "runtime/qt/check_box.h"
#include "runtime/qt/command_button.h"
#include "runtime/qt/form_container.h"
#include "runtime/qt/hosted_control.h"
#include "runtime/qt/input.h"
#include "runtime/qt/option_button.h"
#include "runtime/qt/qt_text.h"
#include "runtime/qt/scroll_bar.h"
#include "runtime/qt/surface_widget.h"
#include "runtime/qt/text_box.h"
#include "tests/contract/contract_runtime.h"
#include "tests/support/qt_form.h"
#include "tests/support/qt_keys.h"
#include "tests/support/qt_windows.h"

namespace lumenkit::contract {
namespace {

host::FontRef MakeFont(const forms::FontDescription& description) {
    const auto font = std::make_shared<qt::Font>(description.name, description.size);
    forms::SetStyle(*font, description);
    return font;
}

// A property bag over the outermost block of a separate form.
class OwnBag final : public host::PropertyBag {
 public:
    Value ReadProperty(TextView name, const Value& defaultValue) override {
        return bag_.ReadProperty(name, defaultValue);
    }
    void WriteProperty(TextView name, const Value& value, const Value& defaultValue) override {
        bag_.WriteProperty(name, value, defaultValue);
    }

 private:
    forms::Document document_ =
        forms::Document::Parse("probe.frm", "VERSION 5.00\r\nBegin VB.Form Form1\r\nEnd\r\n",
                               [](const std::string& /*name*/) { return std::string(); });
    forms::FormBag bag_{document_, document_.Root(), MakeFont};
};

class QtRuntime final : public ContractRuntime, public qt::ControlSite, private host::Ambient {
 public:
    explicit QtRuntime(const ClassTable& classes) : classes_(classes), application_(classes) {
        window_.resize(400, 300);
        testing::ShowActive(window_);
    }

    void PlaceNew(const ClassDescriptor& type) override {
        Place(type);
        control_->StartNew();
    }
    void PlaceSaved(const ClassDescriptor& type, host::PropertyBag& bag) override {
        Place(type);
        control_->StartSaved(bag);
    }
    void Resize(float width, float height) override {
        host::Placement placement = control_->Place();
        placement.width = width;
        placement.height = height;
        control_->Move(placement);
    }
    void Expose() override { control_->Drawing().Area().repaint(); }
    void Save(host::PropertyBag& bag) override { control_->Save(bag); }
    void SetEventHandler(EventHandler handler) override {
        container_->onEvent = std::move(handler);
    }
    void AllowChange(TextView property, bool allowed) override {
        container_->mayPropertyChange = [name = Text(property), allowed](TextView asked) {
            return !SameText(asked, name, Compare::IgnoreCase) || allowed;
        };
    }
    std::vector<Text> ChangedProperties() override { return changed_; }
    std::unique_ptr<host::PropertyBag> NewBag() override { return std::make_unique<OwnBag>(); }
    host::FontRef NewFont(TextView name, float points) override {
        return std::make_shared<qt::Font>(name, points);
    }

    void Focus(host::TextBox& box) override { Edit(box).setFocus(Qt::MouseFocusReason); }
    void Type(host::TextBox& box, TextView text) override {
        qt::TextEdit& edit = Edit(box);
        edit.setFocus(Qt::MouseFocusReason);
        if (edit.hasFocus()) {
            testing::TypeKeys(edit, text);
        }
    }
    bool HasFocus(host::TextBox& box) override { return Edit(box).hasFocus(); }
    void Press(host::TextBox& box, std::int16_t keyCode) override {
        Edit(box).setFocus(Qt::MouseFocusReason);
        QTest::keyClick(&Edit(box), static_cast<Qt::Key>(qt::EditingKeyOf(keyCode)));
    }
    void Select(host::TextBox& box, std::int32_t start, std::int32_t length) override {
        Edit(box).setFocus(Qt::MouseFocusReason);
        box.SetSelStart(start);
        box.SetSelLength(length);
    }
    void Paste(host::TextBox& box, TextView text) override {
        qt::TextEdit& edit = Edit(box);
        edit.setFocus(Qt::MouseFocusReason);
        QApplication::clipboard()->setText(qt::ToQString(text));
        QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
    }
    void Click(host::OptionButton& button) override {
        Click(*static_cast<qt::OptionButton&>(button).Widget());
    }
    void Click(host::CheckBox& box) override { Click(*static_cast<qt::CheckBox&>(box).Widget()); }
    void Click(host::CommandButton& button) override {
        Click(*static_cast<qt::CommandButton&>(button).Widget());
    }
    void Scroll(host::ScrollBar& bar, std::int16_t value) override {
        static_cast<QScrollBar&>(*static_cast<qt::ScrollBar&>(bar).Widget())
            .setSliderPosition(value);
    }
    void ClickSurface() override {
        QTest::mouseClick(&control_->Drawing().Area(), Qt::LeftButton, {}, {5, 5});
    }

 private:
    host::Container& GetContainer() override { return *container_; }
    host::Ambient& GetAmbient() override { return *this; }
    bool UserMode() const override { return true; }
    host::FontRef AmbientFont() const override {
        return std::make_shared<qt::Font>(u"MS Sans Serif", 8.25F);
    }
    Color BackColor() const override { return Color::ButtonFace; }

    static qt::TextEdit& Edit(host::TextBox& box) { return static_cast<qt::TextBox&>(box).Edit(); }
    // Clicks near the left edge, where every kind of button reacts.
    static void Click(QWidget& widget) {
        if (widget.isVisible()) {
            QTest::mouseClick(&widget, Qt::LeftButton, {}, {8, widget.height() / 2});
        }
    }
    void Place(const ClassDescriptor& type) {
        control_.reset();
        container_ = std::make_unique<qt::FormContainer>(type.eventTable);
        container_->onPropertyChanged = [this](TextView name) { changed_.emplace_back(name); };
        control_ = std::make_unique<qt::HostedControl>(
            context_, type, *this, qt::Placing{.name = u"probe", .tag = u"its tag"}, &window_);
    }

    const ClassTable& classes_;
    qt::Application application_;
    testing::WrittenInteraction interaction_;
    qt::Context context_{
        .classes = classes_, .application = application_, .interaction = interaction_};
    QMainWindow window_;
    std::vector<Text> changed_;
    std::unique_ptr<qt::FormContainer> container_;
    std::unique_ptr<qt::HostedControl> control_;
};

}  // namespace

RuntimeKind RuntimeUnderTest() {
    return {.name = "Qt",
            .create = [](const ClassTable& classes) -> std::unique_ptr<ContractRuntime> {
                return std::make_unique<QtRuntime>(classes);
            }};
}

}  // namespace lumenkit::contract
