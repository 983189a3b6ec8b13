#include "apps/lumenkit/drive/request.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>

#include "frame/utf8.h"

namespace lumenkit::cli {

namespace {

constexpr int deepestNesting = 16;

std::string Quoted(std::string_view key) {
    return '"' + std::string(key) + '"';
}

// Describes the column of the byte at `offset`. Both count from 1.
std::string ColumnOf(std::string_view line, std::size_t offset) {
    const std::string_view before = line.substr(0, offset - 1);
    const auto characters = std::count_if(before.begin(), before.end(),
                                          [](char byte) { return (byte & 0xC0) != 0x80; });
    return "column " + std::to_string(characters + 1);
}

std::string WhyNoJson(std::string_view line, std::size_t offset) {
    try {
        FromUtf8(line);
    } catch (const MalformedUtf8& error) {
        return "not valid UTF-8 at " + ColumnOf(line, error.offset + 1);
    }
    return offset > line.size() ? "not valid JSON: the line ends too early"
                                : "not valid JSON at " + ColumnOf(line, offset);
}

// Callback of the parser. `depth` is the number of arrays and objects around the present element.
// Throws BadRequest if it is too large.
bool IsShallow(int depth, RequestJson::parse_event_t event, RequestJson& /*parsed*/) {
    const bool opens = event == RequestJson::parse_event_t::object_start ||
                       event == RequestJson::parse_event_t::array_start;
    if (opens && depth >= deepestNesting) {
        throw BadRequest("nested deeper than " + std::to_string(deepestNesting) + " levels");
    }
    return true;
}

}  // namespace

RequestJson ParseRequest(std::string_view line) {
    // The parser would treat a NUL as the end.
    if (const std::size_t nul = line.find('\0'); nul != std::string_view::npos) {
        throw BadRequest(WhyNoJson(line, nul + 1));
    }
    try {
        return RequestJson::parse(line, IsShallow);
    } catch (const RequestJson::parse_error& error) {
        throw BadRequest(WhyNoJson(line, error.byte));
    } catch (const RequestJson::out_of_range&) {
        throw BadRequest("a number is beyond double precision");
    }
}

Fields::Fields(const RequestJson& json, std::string_view what) : json_(json), what_(what) {
    if (!json.is_object()) {
        throw BadRequest(std::string(what) + " must be a JSON object");
    }
}

const RequestJson& Fields::At(std::string_view key) const {
    const auto found = json_.find(key);
    if (found == json_.end()) {
        throw BadRequest(std::string(what_) + " needs " + Quoted(key));
    }
    return *found;
}

std::string Fields::String(std::string_view key) const {
    const RequestJson& json = At(key);
    if (!json.is_string()) {
        throw BadRequest(Quoted(key) + " must be a string");
    }
    return json.get<std::string>();
}

std::string Fields::String(std::string_view key, std::string_view fallback) const {
    return Has(key) ? String(key) : std::string(fallback);
}

bool Fields::Boolean(std::string_view key) const {
    const RequestJson& json = At(key);
    if (!json.is_boolean()) {
        throw BadRequest(Quoted(key) + " must be true or false");
    }
    return json.get<bool>();
}

bool Fields::Boolean(std::string_view key, bool fallback) const {
    return Has(key) ? Boolean(key) : fallback;
}

float Fields::Single(std::string_view key) const {
    const RequestJson& json = At(key);
    if (!json.is_number()) {
        throw BadRequest(Quoted(key) + " must be a number");
    }
    const auto number = json.get<double>();
    if (std::abs(number) > static_cast<double>(std::numeric_limits<float>::max())) {
        throw BadRequest(Quoted(key) + " is beyond single precision");
    }
    return static_cast<float>(number);
}

float Fields::Single(std::string_view key, float fallback) const {
    return Has(key) ? Single(key) : fallback;
}

std::vector<std::string> Fields::Strings(std::string_view key) const {
    At(key);
    std::vector<std::string> strings;
    for (const RequestJson& element : List(key)) {
        if (!element.is_string()) {
            throw BadRequest(Quoted(key) + " must be an array of strings");
        }
        strings.push_back(element.get<std::string>());
    }
    return strings;
}

std::vector<RequestJson> Fields::List(std::string_view key) const {
    if (!Has(key)) {
        return {};
    }
    if (!At(key).is_array()) {
        throw BadRequest(Quoted(key) + " must be an array");
    }
    return At(key).get<std::vector<RequestJson>>();
}

std::int64_t Fields::WholeBetween(std::string_view key, std::int64_t lowest,
                                  std::int64_t highest) const {
    const RequestJson& json = At(key);
    const double number = json.is_number() ? json.get<double>() : std::nan("");
    if (!(std::trunc(number) == number && number >= static_cast<double>(lowest) &&
          number <= static_cast<double>(highest))) {
        throw BadRequest(Quoted(key) + " must be a whole number from " + std::to_string(lowest) +
                         " to " + std::to_string(highest));
    }
    return static_cast<std::int64_t>(number);
}

bool IsUserMode(const Fields& request) {
    const std::string mode = request.String("mode", "run");
    if (mode != "run" && mode != "design") {
        throw BadRequest(R"("mode" must be "run" or "design")");
    }
    return mode == "run";
}

Value ValueOf(const RequestJson& json, memory::Form& form) {
    if (json.is_null()) {
        return Empty{};
    }
    if (json.is_boolean()) {
        return json.get<bool>();
    }
    if (json.is_number()) {
        return json.get<double>();
    }
    if (json.is_string()) {
        return FromUtf8(json.get_ref<const std::string&>());
    }
    if (json.is_object()) {
        return ObjectRef(FontOf(json, form));
    }
    throw BadRequest("an array is no value");
}

std::shared_ptr<memory::Font> FontOf(const RequestJson& json, memory::Form& form) {
    constexpr std::array<std::string_view, 5> known = {"Name", "Size", "Bold", "Italic",
                                                       "Underline"};
    const Fields fields(json, "the font");
    for (const auto& [name, value] : fields.Items()) {
        if (std::find(known.begin(), known.end(), name) == known.end()) {
            throw BadRequest("an object as value is a font, and a font has no " + Quoted(name));
        }
    }
    const memory::Font& ambient = form.AmbientFont();
    auto font = form.NewFont(FromUtf8(fields.String("Name", ToUtf8(ambient.Name()))),
                             fields.Single("Size", ambient.Size()));
    font->SetBold(fields.Boolean("Bold", false));
    font->SetItalic(fields.Boolean("Italic", false));
    font->SetUnderline(fields.Boolean("Underline", false));
    return font;
}

memory::PropertyBag BagOf(const RequestJson& json, memory::Form& form) {
    const Fields fields(json, "the bag");
    memory::PropertyBag bag;
    for (const auto& [name, value] : fields.Items()) {
        bag.Store(FromUtf8(name), ValueOf(value, form));
    }
    return bag;
}

}  // namespace lumenkit::cli
