#include "apps/lumenkit/drive/json.h"

#include <cmath>
#include <concepts>
#include <cstdint>
#include <memory>
#include <string>
#include <type_traits>
#include <variant>

#include "frame/host/font.h"
#include "frame/numbers.h"
#include "frame/utf8.h"

namespace lumenkit::cli {

namespace {

// Returns the double with the same decimal digits: 8.4 and not 8.39999961853.
template <std::floating_point Number>
double Shortest(Number number) {
    return std::isfinite(number) ? ParseNumber(Str(number)) : number;
}

template <std::floating_point Number>
Json NumberToJson(Number number) {
    // Whole numbers have no decimal point: 300, not 300.0.
    constexpr Number wholeBelow = 1e15F;
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

}  // namespace

Json ToJson(const Value& value) {
    return std::visit(
        []<typename T>(const T& held) -> Json {
            if constexpr (std::same_as<T, Text>) {
                return ToUtf8(held);
            } else if constexpr (std::same_as<T, ObjectRef>) {
                return ObjectToJson(held);
            } else if constexpr (std::floating_point<T>) {
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

}  // namespace lumenkit::cli
