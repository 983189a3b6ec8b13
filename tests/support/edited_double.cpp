#include "tests/support/edited_double.h"

#include <utility>

#include "frame/color.h"
#include "frame/utf8.h"

namespace lumenkit::testing {

namespace {

void RaiseIfPlanned(const std::map<Text, RuntimeError>& errors, const Text& name) {
    const auto planned = errors.find(name);
    if (planned != errors.end()) {
        throw planned->second;
    }
}

std::string TypeName(const Value& value) {
    if (std::holds_alternative<bool>(value)) {
        return "Boolean";
    }
    if (std::holds_alternative<std::int16_t>(value)) {
        return "Integer";
    }
    if (std::holds_alternative<std::int32_t>(value)) {
        return "Long";
    }
    if (std::holds_alternative<float>(value)) {
        return "Single";
    }
    return std::holds_alternative<Text>(value) ? "String" : "Other";
}

}  // namespace

std::string TypedText(const Value& value) {
    if (std::holds_alternative<ObjectRef>(value)) {
        return "Object";
    }
    return TypeName(value) + " " + ToUtf8(ToText(value));
}

EditedDouble::EditedDouble(ObjectRef font, float width, float height)
    : width_(width),
      height_(height),
      values_{{u"Caption", Text(u"Hello")},
              {u"BulletPrefix", Text(u"* ")},
              {u"BulletIndent", std::int16_t{240}},
              {u"WordWrap", true},
              {u"BackColor", FromColor(Rgb(1, 2, 3))},
              {u"ForeColor", FromColor(Color::WindowText)},
              {u"Font", std::move(font)},
              {u"GetProperty", Empty{}}} {}

std::optional<std::int32_t> EditedDouble::FindMember(TextView name) const {
    if (!values_.contains(Text(name))) {
        return std::nullopt;
    }
    names_.emplace_back(name);
    return static_cast<std::int32_t>(names_.size() - 1);
}

Value EditedDouble::Invoke(std::int32_t identifier, InvokeKind kind, std::span<Value> arguments) {
    const Text name = names_.at(static_cast<std::size_t>(identifier));
    if (kind == InvokeKind::Let) {
        log_.push_back("let " + ToUtf8(name) + " " + TypedText(arguments[0]));
        RaiseIfPlanned(assignErrors_, name);
        return values_.at(name) = arguments[0];
    }
    const bool isCall = kind == InvokeKind::Call;
    log_.push_back((isCall ? "call " : "get ") + ToUtf8(name) +
                   (isCall ? " " + ToUtf8(ToText(arguments[0])) : ""));
    RaiseIfPlanned(readErrors_, name);
    return Read(name, arguments);
}

Value EditedDouble::Read(const Text& name, std::span<Value> arguments) const {
    if (name != u"GetProperty") {
        return values_.at(name);
    }
    return ToText(arguments[0]) == u"Width" ? width_ : height_;
}

void EditedDouble::StopFailing() {
    readErrors_.clear();
    assignErrors_.clear();
}

std::vector<std::string> EditedDouble::TakeLog() {
    return std::exchange(log_, {});
}

}  // namespace lumenkit::testing
