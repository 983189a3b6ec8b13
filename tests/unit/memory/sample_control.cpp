#include "tests/unit/memory/sample_control.h"

#include <array>

#include "frame/automation/member_binding.h"

namespace lumenkit::testing {

namespace {

constexpr TextView defaultCaption = u"Sample";

constexpr std::array members = {
    Property<&SampleControl::pGetCaption, &SampleControl::pLetCaption>(0, u"Caption", u""),
    ReadOnlyProperty<&SampleControl::pGetTag>(UserProperty(1), u"TagSeen", u""),
    Method<&SampleControl::Ask>(UserMethod(1), u"Ask", u""),
};
constexpr InterfaceTable interfaceTable = {u"_Sample", members};

constexpr std::array keyPressParameters = {Parameter{u"KeyAscii", ValueType::Integer}};
constexpr std::array clickParameters = {Parameter{u"Index", ValueType::Integer}};
constexpr std::array mouseParameters = {Parameter{u"Button", ValueType::Integer},
                                        Parameter{u"X", ValueType::Single}};
constexpr std::array events = {
    Event{sample_event::change, u"Change", u""},
    Event{sample_event::keyPress, u"KeyPress", u"", keyPressParameters},
    Event{sample_event::click, u"Click", u"", clickParameters},
    Event{sample_event::mouseUp, u"MouseUp", u"", mouseParameters},
};
constexpr EventTable eventTable = {u"__Sample", events};

}  // namespace

SampleControl::SampleControl(const ControlHost& host)
    : host_(host),
      errors_(host.application, host.interaction),
      module_(errors_, u"SAMPLE"),
      automation_(interfaceTable, this) {}

void SampleControl::UserControl_Initialize() {
    calls.emplace_back("Initialize");
    module_.Procedure(u"UserControl_Initialize", [&] {
        host::TextBoxDesign text;
        text.name = u"Text1";
        text.multiLine = true;
        text.text = u"start";
        Text1_ = host_.constituents.AddTextBox(text, *this);
        host::CaptionDesign frame;
        frame.name = u"Frame1";
        Frame1_ = host_.constituents.AddFrame(frame);
        host::OptionButtonDesign option;
        option.name = u"Option1";
        Option1_ = host_.constituents.AddOptionButtons(option, *Frame1_, *this);
        Option1_->Load(1);
        Option1_->Item(1).SetVisible(true);
    });
}

void SampleControl::UserControl_InitProperties() {
    calls.emplace_back("InitProperties");
    module_.Procedure(u"UserControl_InitProperties", [&] {
        caption_ = defaultCaption;
        host_.surface.SetCurrentFont(host_.ambient.AmbientFont());
        host_.surface.SetBackColor(host_.ambient.BackColor());
    });
}

void SampleControl::UserControl_ReadProperties(host::PropertyBag& bag) {
    calls.emplace_back("ReadProperties");
    module_.Procedure(u"UserControl_ReadProperties", [&] {
        caption_ = ToText(bag.ReadProperty(u"Caption", Text(defaultCaption)));
        host_.surface.SetCurrentFont(lumenkit::Automation<host::FontRef>::From(
            bag.ReadProperty(u"Font", ObjectRef(host_.ambient.AmbientFont()))));
    });
}

void SampleControl::UserControl_WriteProperties(host::PropertyBag& bag) {
    calls.emplace_back("WriteProperties");
    module_.Procedure(u"UserControl_WriteProperties", [&] {
        bag.WriteProperty(u"Caption", caption_, Text(defaultCaption));
        bag.WriteProperty(u"Font", ObjectRef(host_.surface.CurrentFont()),
                          ObjectRef(host_.ambient.AmbientFont()));
    });
}

void SampleControl::UserControl_Resize() {
    calls.emplace_back("Resize");
    module_.Procedure(u"UserControl_Resize", [&] {
        if (!Text1_) {
            Raise(ErrorNumber::ObjectNotSet);  // Initialize failed
        }
        Text1_->Move({.width = host_.surface.ScaleWidth(), .height = host_.surface.ScaleHeight()});
    });
}

void SampleControl::UserControl_Show() {
    calls.emplace_back("Show");
}

void SampleControl::UserControl_Paint() {
    calls.emplace_back("Paint");
    module_.Procedure(u"UserControl_Paint", [&] {
        host::Surface& surface = host_.surface;
        surface.Cls();
        const float pixel = host_.screen.TwipsPerPixelX();
        surface.FillBox(pixel, pixel, pixel * 2, pixel * 3, Color{});
        surface.SetCurrentX(100);
        surface.SetCurrentY(200);
        surface.Print(caption_);
    });
}

void SampleControl::UserControl_Click() {
    calls.emplace_back("Click");
}
void SampleControl::UserControl_DblClick() {
    calls.emplace_back("DblClick");
}
void SampleControl::UserControl_MouseDown(host::MouseArguments&) {
    calls.emplace_back("MouseDown");
}
void SampleControl::UserControl_MouseMove(host::MouseArguments&) {
    calls.emplace_back("MouseMove");
}

void SampleControl::UserControl_MouseUp(host::MouseArguments& mouse) {
    calls.emplace_back("MouseUp");
    std::array<Value, 2> arguments = {mouse.button, mouse.x};
    host_.container.RaiseEvent(sample_event::mouseUp, arguments);
}

Text SampleControl::pGetCaption() {
    return caption_;
}

void SampleControl::pLetCaption(TextView caption) {
    module_.Procedure(u"pLetCaption", [&] {
        if (host_.container.CanPropertyChange(u"Caption")) {
            caption_ = caption;
            host_.container.PropertyChanged(u"Caption");
            host_.surface.Refresh();
        }
    });
}

Text SampleControl::pGetTag() {
    return module_.Function<Text>(
        u"pGetTag", [&](Text& result) { result = ToText(host_.extender.Get(u"Tag")); });
}

void SampleControl::Ask() {
    host_.interaction.Beep();
    host_.interaction.MsgBox(u"Sure?", host::MessageStyle::OkOnly, std::nullopt);
}

void SampleControl::Change() {
    module_.Procedure(u"Text1_Change",
                      [&] { host_.container.RaiseEvent(sample_event::change, {}); });
}

void SampleControl::KeyPress(std::int16_t& keyAscii) {
    module_.Procedure(u"Text1_KeyPress", [&] {
        std::array<Value, 1> arguments = {keyAscii};
        host_.container.RaiseEvent(sample_event::keyPress, arguments);
        keyAscii = std::get<std::int16_t>(arguments[0]);
    });
}

void SampleControl::Click(std::int16_t index) {
    module_.Procedure(u"Option1_Click", [&] {
        std::array<Value, 1> arguments = {index};
        host_.container.RaiseEvent(sample_event::click, arguments);
    });
}

const ClassTable& SampleClasses() {
    static constexpr std::array classes = {
        ClassDescriptor{.name = u"Sample",
                        .interfaceTable = &interfaceTable,
                        .eventTable = &eventTable,
                        .createControl = [](const ControlHost& host) -> std::unique_ptr<Control> {
                            return std::make_unique<SampleControl>(host);
                        }},
    };
    static constexpr ClassTable table = {.libraryName = u"sample", .classes = classes};
    return table;
}

}  // namespace lumenkit::testing
