#include "apps/lumenkit/drive/json.h"

#include <array>
#include <charconv>
#include <cmath>
#include <concepts>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>

#include "frame/host/font.h"
#include "frame/utf8.h"

namespace lumenkit::cli {

namespace {

// As a double with the same decimal digits: 8.4 rather than 8.39999961853.
double Shortest(float number) {
    std::array<char, 32> image{};
    const auto end = std::to_chars(image.data(), image.data() + image.size(), number).ptr;
    double shortest = 0;
    std::from_chars(image.data(), end, shortest);
    return shortest;
}

Json NumberToJson(float number) {
    // Whole numbers without a point: 300, not 300.0.
    constexpr float wholeBelow = 1e15F;
    const bool whole = std::abs(number) < wholeBelow && std::trunc(number) == number;
    return whole ? Json(static_cast<std::int64_t>(number)) : Json(Shortest(number));
}

Json FontToJson(const host::Font& font) {
    return {{"Name", ToUtf8(font.Name())},
            {"Size", NumberToJson(font.Size())},
            {"Bold", font.Bold()},
            {"Italic", font.Italic()},
            {"Underline", font.Underline()}};
}

Json ObjectToJson(const ObjectRef& object) {
    const auto font = std::dynamic_pointer_cast<host::Font>(object);
    return font ? FontToJson(*font) : Json();
}

Json ColorToJson(Color color) {
    return static_cast<std::int32_t>(color);
}

Json ItemToJson(memory::ClsItem /*item*/) {
    return {{"op", "cls"}};
}

Json ItemToJson(const memory::PrintItem& item) {
    return {{"op", "print"},
            {"text", ToUtf8(item.text)},
            {"x", NumberToJson(item.x)},
            {"y", NumberToJson(item.y)},
            {"bold", item.bold},
            {"italic", item.italic},
            {"underline", item.underline},
            {"size", NumberToJson(item.size)},
            {"color", ColorToJson(item.color)}};
}

Json ItemToJson(const memory::BoxItem& item) {
    return {{"op", "box"},
            {"x1", NumberToJson(item.x1)},
            {"y1", NumberToJson(item.y1)},
            {"x2", NumberToJson(item.x2)},
            {"y2", NumberToJson(item.y2)},
            {"color", ColorToJson(item.color)}};
}

Json EntryToJson(const memory::RaisedEvent& event) {
    Json arguments = Json::array();
    for (const Value& argument : event.arguments) {
        arguments.push_back(cli::ToJson(argument));
    }
    return {{"event", ToUtf8(event.name)}, {"args", arguments}};
}

Json EntryToJson(const memory::ChangedProperty& changed) {
    return {{"changed", ToUtf8(changed.name)}};
}

Json EntryToJson(const memory::ShownMessage& message) {
    return {{"message",
             {{"text", ToUtf8(message.text)},
              {"title", message.title ? Json(ToUtf8(*message.title)) : Json()},
              {"style", static_cast<std::int32_t>(message.style)}}}};
}

Json EntryToJson(memory::HeardBeep /*beep*/) {
    return {{"beep", true}};
}

Value IntegerOf(std::int64_t number) {
    if (std::in_range<std::int16_t>(number)) {
        return static_cast<std::int16_t>(number);
    }
    if (std::in_range<std::int32_t>(number)) {
        return static_cast<std::int32_t>(number);
    }
    return static_cast<double>(number);
}

Value FontOf(const Json& json, memory::Form& form) {
    if (!json.contains("Name")) {
        throw std::invalid_argument("an object as value is a font and needs a \"Name\"");
    }
    const auto font =
        form.NewFont(TextOf(json.at("Name")), json.value("Size", form.AmbientFont().Size()));
    font->SetBold(json.value("Bold", false));
    font->SetItalic(json.value("Italic", false));
    font->SetUnderline(json.value("Underline", false));
    return ObjectRef(font);
}

}  // namespace

Json ToJson(TextView text) {
    return ToUtf8(text);
}

Json ToJson(const Value& value) {
    return std::visit(
        []<typename T>(const T& held) -> Json {
            if constexpr (std::same_as<T, Text>) {
                return ToUtf8(held);
            } else if constexpr (std::same_as<T, ObjectRef>) {
                return ObjectToJson(held);
            } else if constexpr (std::same_as<T, float>) {
                return NumberToJson(held);
            } else if constexpr (std::is_arithmetic_v<T>) {
                return held;
            } else {
                return nullptr;
            }
        },
        value);
}

Json ToJson(const memory::Log& log) {
    Json entries = Json::array();
    for (const memory::LogEntry& entry : log.Entries()) {
        entries.push_back(std::visit([](const auto& held) { return EntryToJson(held); }, entry));
    }
    return entries;
}

Json ToJson(const memory::DisplayList& list) {
    Json items = Json::array();
    for (const memory::DisplayItem& item : list.Items()) {
        items.push_back(std::visit([](const auto& held) { return ItemToJson(held); }, item));
    }
    return items;
}

Json ToJson(const memory::PropertyList& properties) {
    Json object = Json::object();
    for (const auto& [name, value] : properties) {
        object[ToUtf8(name)] = ToJson(value);
    }
    return object;
}

Json ToJson(const memory::PropertyBag& bag) {
    Json object = Json::object();
    for (const auto& [name, value] : bag.Entries()) {
        object[ToUtf8(name)] = ToJson(value);
    }
    return object;
}

Text TextOf(const Json& json) {
    return FromUtf8(json.get_ref<const std::string&>());
}

Value ValueOf(const Json& json, memory::Form& form) {
    switch (json.type()) {
        case Json::value_t::null:
            return Empty{};
        case Json::value_t::boolean:
            return json.get<bool>();
        case Json::value_t::string:
            return TextOf(json);
        case Json::value_t::number_integer:
            return IntegerOf(json.get<std::int64_t>());
        case Json::value_t::number_unsigned:
            return std::in_range<std::int64_t>(json.get<std::uint64_t>())
                       ? IntegerOf(json.get<std::int64_t>())
                       : Value(json.get<double>());
        case Json::value_t::number_float:
            return json.get<double>();
        case Json::value_t::object:
            return FontOf(json, form);
        default:
            throw std::invalid_argument("an array is no value");
    }
}

}  // namespace lumenkit::cli
