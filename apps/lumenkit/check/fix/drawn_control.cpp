#include "apps/lumenkit/check/fix/drawn_control.h"

#include <algorithm>
#include <concepts>
#include <cstdint>
#include <initializer_list>
#include <utility>
#include <variant>

#include "apps/lumenkit/windowless/lone_control.h"
#include "forms/font_description.h"
#include "frame/automation/value.h"
#include "frame/color.h"
#include "frame/host/font.h"
#include "frame/numbers.h"
#include "frame/runtime_error.h"
#include "runtime/memory/display_list.h"
#include "runtime/memory/hosted_control.h"
#include "runtime/memory/property_bag.h"

namespace lumenkit::check {

namespace {

// Writes the description, one line for each thing.
class Description {
 public:
    Text Take() { return std::move(text_); }

    void Line(TextView what, std::initializer_list<float> numbers) {
        text_ += what;
        for (const float number : numbers) {
            AppendStr(text_, number);
        }
        text_ += u'\n';
    }
    void Line(TextView what, TextView text) {
        text_ += what;
        text_ += u' ';
        text_ += text;
        text_ += u'\n';
    }

    // Nothing is seen of an empty text. Control characters are drawn as blanks.
    void Add(const memory::PrintItem& item) {
        if (item.text.empty()) {
            return;
        }
        Text seen(item.text);
        std::ranges::replace_if(seen, &IsControl, blank);
        Line(u"text", seen);
        Line(u"in", item.fontName);
        Line(u"at", {item.x, item.y, item.size, item.bold ? 1.0F : 0.0F, item.italic ? 1.0F : 0.0F,
                     item.underline ? 1.0F : 0.0F});
        AddColor(item.color);
    }
    void Add(const memory::BoxItem& item) {
        Line(u"box", {item.x1, item.y1, item.x2, item.y2});
        AddColor(item.color);
    }
    void Add(memory::ClsItem /*item*/) { Line(u"cls", {}); }

    void Add(TextView name, const Value& value) {
        const auto* const object = std::get_if<ObjectRef>(&value);
        const auto* const font =
            object == nullptr ? nullptr : dynamic_cast<const host::Font*>(object->get());
        if (font != nullptr) {
            Line(name, forms::Describe(*font));
        } else {
            Line(name, ShownText(value));
        }
    }

    void Add(const memory::Element& part) {
        Line(part.FullName(),
             {part.Where().left, part.Where().top, part.Where().width, part.Where().height,
              part.IsVisible() ? 1.0F : 0.0F, part.IsEnabled() ? 1.0F : 0.0F});
        for (const auto& [name, value] : part.Properties()) {
            Add(name, value);
        }
    }

 private:
    void AddColor(Color color) { Line(u"color", Decimal(static_cast<std::int32_t>(color))); }
    void Line(TextView what, const forms::FontDescription& font) {
        Line(what, font.name);
        Line(what, {font.size, static_cast<float>(font.charset), static_cast<float>(font.weight),
                    font.underline ? 1.0F : 0.0F, font.italic ? 1.0F : 0.0F,
                    font.strikethrough ? 1.0F : 0.0F});
    }
    // Objects other than fonts and values such as Empty have no text.
    static Text ShownText(const Value& value) {
        try {
            return ToText(value);
        } catch (const RuntimeError&) {
            return {};
        }
    }

    Text text_;
};

class DrawingControl {
 public:
    DrawingControl(const forms::Document& document, forms::Block& block,
                   const ClassDescriptor& type)
        : document_(document), block_(block), type_(type) {}

    // Returns the number of messages.
    std::size_t Describe(bool userMode, const std::vector<Text>& except,
                         Description& description) const {
        windowless::LoneControl lone(document_, block_, type_, userMode);
        memory::HostedControl& control = lone.Hosted();
        control.StartSaved(lone.Saved());
        for (const memory::DisplayItem& item : control.Paint().Items()) {
            std::visit([&](const auto& drawn) { description.Add(drawn); }, item);
        }
        const std::size_t messages = lone.Form().GetLog().Messages().size();
        for (const memory::Element* const part : control.Parts().All()) {
            description.Add(*part);
        }
        DescribeSaved(control, except, description);
        DescribeIdealSize(control, description);
        return messages;
    }

 private:
    static void DescribeSaved(memory::HostedControl& control, const std::vector<Text>& except,
                              Description& description) {
        memory::PropertyBag bag;
        try {
            control.Save(bag);
        } catch (const RuntimeError& error) {
            description.Line(u"unsaved", Decimal(error.Number()));
        }
        for (const auto& [name, value] : bag.Entries()) {
            const auto isName = [name = TextView(name)](const Text& other) {
                return SameText(name, other, Compare::IgnoreCase);
            };
            if (std::ranges::none_of(except, isName)) {
                description.Add(name, value);
            }
        }
    }
    static void DescribeIdealSize(memory::HostedControl& control, Description& description) {
        constexpr TextView method = u"SetIdealSize";
        if (control.Automation().FindMember(method)) {
            control.Automation().Call(method);
            description.Line(u"size", {control.Place().width, control.Place().height});
        }
    }

    const forms::Document& document_;
    forms::Block& block_;
    const ClassDescriptor& type_;
};

}  // namespace

DrawnControl& DrawnControl::operator+=(const DrawnControl& other) {
    picture += other.picture;
    messages += other.messages;
    return *this;
}

DrawnControl Draw(const forms::Document& document, forms::Block& block, const ClassDescriptor& type,
                  const std::vector<Text>& except) {
    Description description;
    DrawnControl drawn;
    for (const bool userMode : {false, true}) {
        drawn.messages +=
            DrawingControl(document, block, type).Describe(userMode, except, description);
    }
    drawn.picture = description.Take();
    return drawn;
}

bool IsNoWorse(const DrawnControl& before, const DrawnControl& after, bool isSame) {
    return after.messages <= before.messages && (!isSame || after.picture == before.picture);
}

}  // namespace lumenkit::check
