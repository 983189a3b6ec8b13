#include "tests/model/option_list_twins.h"

#include <cmath>
#include <limits>
#include <sstream>
#include <utility>

#include "frame/utf8.h"
#include "tests/model/caption_comparison.h"
#include "tests/model/input_bytes.h"

namespace lumenkit::testing {

namespace {

using Mode = PlacedOptionList::Mode;

constexpr std::int32_t typeMismatch = 13;

LiteralFont Attributes(const host::Font& font) {
    return {.name = font.Name(), .size = font.Size(), .bold = font.Bold(), .italic = font.Italic()};
}

template <typename... Parts>
std::string Differ(const Parts&... parts) {
    std::ostringstream line;
    (line << ... << parts);
    return line.str();
}

std::string PlaceText(const host::Placement& place) {
    std::ostringstream line;
    PrintTo(place, &line);
    return line.str();
}

std::string Joined(const std::vector<std::string>& lines) {
    std::string joined;
    for (const std::string& line : lines) {
        joined += line + "; ";
    }
    return joined;
}

}  // namespace

OptionListTwins::OptionListTwins(ListFeatures& features)
    : features_(features),
      literal_(std::make_unique<LiteralOptionList>(host_, features)),
      placed_(PlacedOptionList::New(Mode::Run)) {
    literal_->InitProperties();
    literal_->Resize();
}

void OptionListTwins::Do(const ListStep& step) {
    using Literal = LiteralOptionList;
    const bool flag = step.number % 2 != 0;
    switch (step.action) {
        case ListAction::Contents:
            return Let(u"Contents", step.text, &Literal::LetContents);
        case ListAction::ListIndex:
            return Let(u"ListIndex", step.number, &Literal::LetListIndex);
        case ListAction::Text:
            return Let(u"Text", step.text, &Literal::LetText);
        case ListAction::Enabled:
            return Let(u"Enabled", flag, &Literal::LetEnabled);
        case ListAction::BorderStyle:
            return Let(u"BorderStyle", step.number, &Literal::LetBorderStyle);
        case ListAction::Caption:
            return Let(u"Caption", step.text, &Literal::LetCaption);
        case ListAction::ItemAlignment:
            return Let(u"ItemAlignment", step.number, &Literal::LetItemAlignment);
        case ListAction::ItemFontBold:
            return Let(u"ItemFontBold", flag, &Literal::LetItemFontBold);
        case ListAction::ItemFontItalic:
            return Let(u"ItemFontItalic", flag, &Literal::LetItemFontItalic);
        case ListAction::ItemFontName:
            return Let(u"ItemFontName", step.text, &Literal::LetItemFontName);
        case ListAction::ItemFontSize:
            return Let(u"ItemFontSize", step.distance, &Literal::LetItemFontSize);
        case ListAction::LeftMargin:
            return Let(u"LeftMargin", step.distance, &Literal::LetLeftMargin);
        case ListAction::Spacing:
            return Let(u"Spacing", step.distance, &Literal::LetSpacing);
        case ListAction::TopMargin:
            return Let(u"TopMargin", step.distance, &Literal::LetTopMargin);
        case ListAction::ItemForeColor:
            return LetItemForeColor(static_cast<std::uint32_t>(step.number) * 1000);
        case ListAction::ItemCaption:
            return LetItemCaption(step.number, step.text);
        case ListAction::NewFont:
            return UseNewFont(step.text);
        case ListAction::NoFont:
            return UseNoFont();
        case ListAction::ChangeFont:
            return MakeFontItalic(flag);
        case ListAction::UserClick:
            return ClickButton(static_cast<std::size_t>(step.number) % literal_->Buttons().size());
        case ListAction::Mode:
            return SetMode(flag);
        case ListAction::Reload:
            return Reload();
        case ListAction::Width:
            return SetWidth(step.distance);
        case ListAction::AllowText:
            host_.textMayChange = flag;
            return Connect();
        case ListAction::OnClick:
            reaction_ = static_cast<ListReaction>(step.number);
            return Connect();
        case ListAction::Count:
            return;
    }
}

// Assigns a property of the control and of the model.
template <typename Argument, typename Parameter>
void OptionListTwins::Let(TextView name, const Argument& value,
                          void (LiteralOptionList::*let)(Parameter)) {
    Control().Let(name, value);
    (*literal_.*let)(value);
}

void OptionListTwins::LetItemForeColor(std::uint32_t color) {
    Control().Let(u"ItemForeColor", static_cast<std::int32_t>(color));
    literal_->LetItemForeColor(color);
}

void OptionListTwins::LetItemCaption(int index, const Text& caption) {
    std::vector<Value> arguments = {index, caption};
    Control().Invoke(UserProperty(10), InvokeKind::Let, arguments);
    literal_->LetItemCaption(index, caption);
}

void OptionListTwins::UseNewFont(const Text& name) {
    Control().Set(u"Font", placed_->Form().NewFont(name, 12));
    literal_->SetFont(std::make_shared<LiteralFont>(LiteralFont{.name = name, .size = 12}));
}

void OptionListTwins::UseNoFont() {
    try {
        Control().Set(u"Font", nullptr);
    } catch (const RuntimeError& error) {
        if (error.Number() == typeMismatch) {
            return;
        }
        throw;
    }
    throw std::logic_error("the list took Nothing as its font");
}

void OptionListTwins::MakeFontItalic(bool italic) {
    host::ToFont(Control().Get(u"Font"))->SetItalic(italic);
    literal_->Frame().font->italic = italic;
}

void OptionListTwins::ClickButton(std::size_t index) {
    if (placed_->Click(index) != literal_->UserClick(index)) {
        found_ += "only one of the two can be clicked. ";
    }
}

void OptionListTwins::SetMode(bool isUserMode) {
    placed_->SetMode(isUserMode ? Mode::Run : Mode::Design);
    host_.userMode = isUserMode;
}

void OptionListTwins::SetWidth(float width) {
    placed_->Placed().Resize(width, host_.height);
    if (width != host_.width) {
        host_.width = width;
        literal_->Resize();
    }
}

// Applies the container's settings to the control and to the model: whether Text may change, and
// the reaction to Click.
void OptionListTwins::Connect() {
    placed_->Placed().Site().AllowChange(u"Text", host_.textMayChange);
    placed_->Placed().Site().SetEventHandler([this](TextView, std::span<Value>) {
        switch (reaction_) {
            case ListReaction::Nothing:
                break;
            case ListReaction::Deselect:
                Control().Let(u"ListIndex", std::int16_t{-1});
                break;
            case ListReaction::SelectFirst:
                Control().Let(u"ListIndex", std::int16_t{0});
                break;
            case ListReaction::AssignText:
                Control().Let(u"Text", Text(u"b"));
                break;
            case ListReaction::AssignContents:
                Control().Let(u"Contents", Text(u"r;R|b|s"));
                break;
        }
    });
    host_.onClick = nullptr;
    switch (reaction_) {
        case ListReaction::Nothing:
            break;
        case ListReaction::Deselect:
            host_.onClick = [this] { literal_->LetListIndex(-1); };
            break;
        case ListReaction::SelectFirst:
            host_.onClick = [this] { literal_->LetListIndex(0); };
            break;
        case ListReaction::AssignText:
            host_.onClick = [this] { literal_->LetText(u"b"); };
            break;
        case ListReaction::AssignContents:
            host_.onClick = [this] { literal_->LetContents(u"r;R|b|s"); };
            break;
    }
}

void OptionListTwins::Reload() {
    memory::PropertyBag bag = placed_->Placed().Save();
    const LiteralBag literalBag = literal_->WriteProperties();
    found_ += BagDifference(bag, literalBag);
    for (std::string& line : placed_->TakeLog()) {
        log_.push_back(std::move(line));
    }

    memory::Placing placing;
    placing.width = host_.width;
    placing.height = host_.height;
    placed_ = PlacedOptionList::Saved(host_.userMode ? Mode::Run : Mode::Design, bag, placing);
    literal_ = std::make_unique<LiteralOptionList>(host_, features_);
    literal_->ReadProperties(literalBag);
    literal_->Resize();
    Connect();
}

std::string OptionListTwins::BagDifference(const memory::PropertyBag& bag,
                                           const LiteralBag& literal) {
    std::vector<std::pair<Text, Value>> expected;
    const auto add = [&](TextView name, const auto& slot, auto&& convert) {
        if (slot) {
            expected.emplace_back(name, convert(*slot));
        }
    };
    const auto integer = [](int number) { return Value(static_cast<std::int16_t>(number)); };
    const auto same = [](const auto& value) { return Value(value); };
    add(u"Enabled", literal.Enabled, same);
    add(u"Font", literal.Font, [](const LiteralFont&) { return Value(ObjectRef()); });
    add(u"BorderStyle", literal.BorderStyle, integer);
    add(u"Caption", literal.Caption, same);
    add(u"Contents", literal.Contents, same);
    add(u"ItemAlignment", literal.ItemAlignment, integer);
    add(u"ItemFontBold", literal.ItemFontBold, same);
    add(u"ItemFontItalic", literal.ItemFontItalic, same);
    add(u"ItemFontName", literal.ItemFontName, same);
    add(u"ItemFontSize", literal.ItemFontSize, same);
    add(u"ItemForeColor", literal.ItemForeColor,
        [](std::uint32_t color) { return Value(static_cast<std::int32_t>(color)); });
    add(u"LeftMargin", literal.LeftMargin, same);
    add(u"ListIndex", literal.ListIndex, integer);
    add(u"Spacing", literal.Spacing, same);
    add(u"TopMargin", literal.TopMargin, same);

    if (bag.Entries().size() != expected.size()) {
        return Differ("stored ", bag.Entries().size(), ", expected ", expected.size(), ". ");
    }
    for (std::size_t index = 0; index < expected.size(); ++index) {
        const auto& [name, value] = bag.Entries()[index];
        const bool sameValue = name == u"Font" ? Attributes(*host::ToFont(value)) ==
                                                     literal.Font.value_or(LiteralFont())
                                               : value == expected[index].second;
        if (name != expected[index].first || !sameValue) {
            return Differ("stored ", ToUtf8(name), ", expected ", ToUtf8(expected[index].first),
                          ". ");
        }
    }
    return {};
}

std::string OptionListTwins::Difference() {
    for (std::string& line : placed_->TakeLog()) {
        log_.push_back(std::move(line));
    }
    if (log_ != host_.log) {
        return Differ("log ", Joined(log_), " expected ", Joined(host_.log));
    }
    log_.clear();
    host_.log.clear();

    const LiteralFrame& frame = literal_->Frame();
    if (placed_->Frame().Caption() != frame.caption || placed_->Frame().Where() != frame.place ||
        placed_->Frame().IsEnabled() != frame.enabled ||
        placed_->Frame().BorderStyle() != frame.borderStyle ||
        Attributes(*placed_->Frame().CurrentFont()) != *frame.font) {
        return "frame";
    }
    const std::vector<memory::OptionButton*> buttons = placed_->Buttons();
    if (buttons.size() != literal_->Buttons().size()) {
        return Differ(buttons.size(), " buttons, expected ", literal_->Buttons().size());
    }
    for (std::size_t index = 0; index < buttons.size(); ++index) {
        std::string difference =
            ButtonDifference(index, literal_->Buttons()[index], *buttons[index]);
        if (!difference.empty()) {
            return difference;
        }
    }
    return std::exchange(found_, {});
}

std::string OptionListTwins::ButtonDifference(std::size_t index, const LiteralButton& literal,
                                              const memory::OptionButton& button) {
    if (button.Caption() != literal.caption || button.Tag() != literal.tag) {
        return Differ("button ", index, ": ", ToUtf8(button.Tag()), ";", ToUtf8(button.Caption()),
                      " expected ", ToUtf8(literal.tag), ";", ToUtf8(literal.caption));
    }
    if (button.IsVisible() != literal.visible || button.IsSelected() != literal.selected) {
        return Differ("button ", index, ": visible ", button.IsVisible(), " selected ",
                      button.IsSelected(), " expected ", literal.visible, literal.selected);
    }
    if (button.Where() != literal.place) {
        return Differ("button ", index, ": at ", PlaceText(button.Where()), " expected ",
                      PlaceText(literal.place));
    }
    const bool shared = button.CurrentFont() == placed_->Button(0).CurrentFont();
    const bool literalShared = literal.font == literal_->Buttons()[0].font;
    if (button.Alignment() != literal.alignment ||
        static_cast<std::uint32_t>(button.ForeColor()) != literal.foreColor ||
        Attributes(*button.CurrentFont()) != *literal.font || shared != literalShared) {
        return Differ("button ", index, ": appearance");
    }
    return {};
}

std::string OptionListTwins::PropertyDifference() {
    const LiteralFrame& frame = literal_->Frame();
    const LiteralButton& first = literal_->Buttons()[0];
    const auto integer = [](int number) { return Value(static_cast<std::int16_t>(number)); };
    const std::pair<TextView, Value> expected[] = {
        {u"Enabled", frame.enabled},
        {u"BorderStyle", integer(frame.borderStyle)},
        {u"Caption", frame.caption},
        {u"Contents", literal_->Contents()},
        {u"ItemAlignment", integer(first.alignment)},
        {u"ItemFontBold", first.font->bold},
        {u"ItemFontItalic", first.font->italic},
        {u"ItemFontName", first.font->name},
        {u"ItemFontSize", first.font->size},
        {u"ItemForeColor", static_cast<std::int32_t>(first.foreColor)},
        {u"LeftMargin", literal_->GetLeftMargin()},
        {u"ListIndex", integer(literal_->GetListIndex())},
        {u"Spacing", literal_->GetSpacing()},
        {u"TopMargin", literal_->GetTopMargin()},
        {u"Text", literal_->GetText()},
        {u"Value", literal_->GetText()},
    };
    for (const auto& [name, value] : expected) {
        const Value read = Control().Get(name);
        if (read != value) {
            return Differ(ToUtf8(name), " is ", ToUtf8(ToText(read)), " expected ",
                          ToUtf8(ToText(value)));
        }
    }
    if (Attributes(*host::ToFont(Control().Get(u"Font"))) != *frame.font) {
        return "Font";
    }
    return Difference();
}

std::string DifferenceAfter(const std::vector<ListStep>& steps, ListFeatures& features) {
    OptionListTwins twins(features);
    std::string done;
    for (const ListStep& step : steps) {
        twins.Do(step);
        done += "\n  " + Describe(step);
        const std::string difference = twins.Difference();
        if (!difference.empty()) {
            return difference + " after" + done;
        }
    }
    const std::string difference = twins.PropertyDifference();
    return difference.empty() ? "" : difference + " after" + done;
}

std::vector<ListStep> StepsFromBytes(std::string_view bytes) {
    constexpr int mostSteps = 40;
    InputBytes input(bytes);
    std::vector<ListStep> steps;
    while (!input.AtEnd() && steps.size() < mostSteps) {
        ListStep step;
        step.action = static_cast<ListAction>(input.Byte() % static_cast<int>(ListAction::Count));
        const int byte = input.Byte();
        step.number = static_cast<std::int16_t>(byte < 128 ? byte : byte - 256);
        step.distance = step.number == std::numeric_limits<std::int8_t>::max()
                            ? 3e38F
                            : 25.5F * static_cast<float>(step.number);
        if (step.action == ListAction::Width) {
            step.distance = std::abs(step.distance);  // containers allow no negative width
        }
        step.text = CaptionFromBytes(input.Line());
        steps.push_back(std::move(step));
    }
    return steps;
}

}  // namespace lumenkit::testing
