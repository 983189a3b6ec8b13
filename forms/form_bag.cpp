#include "forms/form_bag.h"

#include <concepts>
#include <optional>
#include <utility>

#include "frame/runtime_error.h"

namespace lumenkit::forms {

namespace {

constexpr TextView fontIdentifier = u"{0BE35203-8F91-11CE-9DE3-00AA004BB851}";

bool IsFont(const Block& group) {
    return SameText(group.ClassName(), fontIdentifier, Compare::IgnoreCase) ||
           (group.ClassName().empty() && SameText(group.Name(), u"Font", Compare::IgnoreCase));
}

bool NamesColor(TextView name) {
    constexpr TextView ending = u"Color";
    return name.size() >= ending.size() &&
           SameText(name.substr(name.size() - ending.size()), ending, Compare::IgnoreCase);
}

std::optional<double> NumberOf(const Literal& literal) {
    return std::visit(
        []<typename T>(const T& held) -> std::optional<double> {
            if constexpr (std::same_as<T, bool>) {
                return held ? -1.0 : 0.0;
            } else if constexpr (std::same_as<T, HexNumber>) {
                return static_cast<std::int32_t>(held.bits);
            } else if constexpr (std::is_arithmetic_v<T>) {
                return static_cast<double>(held);
            } else {
                return std::nullopt;
            }
        },
        literal);
}

Literal LiteralOf(TextView name, const Value& value) {
    return std::visit(
        [&]<typename T>(const T& held) -> Literal {
            if constexpr (std::same_as<T, bool>) {
                return held;
            } else if constexpr (std::integral<T>) {
                return NamesColor(name) ? Literal(HexNumber{static_cast<std::uint32_t>(held)})
                                        : Literal(static_cast<std::int32_t>(held));
            } else if constexpr (std::floating_point<T>) {
                return NumberLiteral(held);
            } else {
                return TextLiteral(ToText(held));
            }
        },
        value);
}

// Returns the name of the last property that begins with an underscore, that is of the last extent.
// A control's own properties begin after it.
TextView BeforeOwnProperties(const Block& block) {
    TextView last;
    for (const Block::Item& item : block.Items()) {
        const auto* property = std::get_if<std::unique_ptr<Property>>(&item);
        if (property != nullptr && (*property)->Name().starts_with(u'_')) {
            last = (*property)->Name();
        }
    }
    return last;
}

}  // namespace

FormBag::FormBag(const Document& document, Block& block, FontFactory makeFont)
    : document_(document),
      block_(block),
      makeFont_(std::move(makeFont)),
      last_(BeforeOwnProperties(block)) {}

// Returns nullopt for a property of another kind and for a reference to a record that is not a
// string.
std::optional<Text> FormBag::TextOf(const Property& property) const {
    try {
        return document_.TextOf(property);
    } catch (const FormError&) {
        return std::nullopt;
    }
}

Value FormBag::ValueOf(const Property& property) const {
    return std::visit(
        [&]<typename T>(const T& held) -> Value {
            if constexpr (std::same_as<T, HexNumber>) {
                return static_cast<std::int32_t>(held.bits);
            } else if constexpr (std::is_arithmetic_v<T>) {
                return held;
            } else if constexpr (std::same_as<T, Shortcut>) {
                return held.keys;
            } else if constexpr (std::same_as<T, Guid>) {
                return held.text;
            } else {
                if (std::optional<Text> text = TextOf(property)) {
                    return *std::move(text);
                }
                Raise(ErrorNumber::TypeMismatch);
            }
        },
        property.Literal());
}

Value FormBag::ReadProperty(TextView name, const Value& defaultValue) {
    if (const Property* property = block_.FindProperty(name)) {
        return ValueOf(*property);
    }
    Block* group = block_.FindGroup(name);
    if (group == nullptr || !IsFont(*group)) {
        return defaultValue;
    }
    FormBag attributes(document_, *group, nullptr);
    const FontDescription standard;
    FontDescription font;
    font.name = ToText(attributes.ReadProperty(u"Name", standard.name));
    font.size = ToSingle(attributes.ReadProperty(u"Size", standard.size));
    font.charset = ToInteger(attributes.ReadProperty(u"Charset", standard.charset));
    font.weight = ToInteger(attributes.ReadProperty(u"Weight", standard.weight));
    font.underline = ToBoolean(attributes.ReadProperty(u"Underline", standard.underline));
    font.italic = ToBoolean(attributes.ReadProperty(u"Italic", standard.italic));
    font.strikethrough =
        ToBoolean(attributes.ReadProperty(u"Strikethrough", standard.strikethrough));
    return ObjectRef(makeFont_(font));
}

bool FormBag::Holds(const Property& property, const Value& value) const {
    if (const auto* text = std::get_if<Text>(&value)) {
        return TextOf(property) == *text;
    }
    const std::optional<double> number = NumberOf(property.Literal());
    if (const auto* single = std::get_if<float>(&value)) {
        return number && static_cast<float>(*number) == *single;
    }
    return number && SameValue(*number, value);
}

void FormBag::WriteProperty(TextView name, const Value& value, const Value& defaultValue) {
    const auto* object = std::get_if<ObjectRef>(&value);
    const bool isNothing = std::holds_alternative<Empty>(value) || (object != nullptr && !*object);
    if (isNothing || SameValue(value, defaultValue)) {
        block_.Remove(name);
        return;
    }
    if (object != nullptr) {
        StoreFont(name, *host::ToFont(value));
    } else {
        Store(name, value);
    }
    last_ = name;
}

void FormBag::Keep(TextView name) {
    if (block_.FindProperty(name) != nullptr || block_.FindGroup(name) != nullptr) {
        last_ = name;
    }
}

void FormBag::Store(TextView name, const Value& value) {
    const Property* present = block_.FindProperty(name);
    if (present == nullptr || !Holds(*present, value)) {
        block_.Set(name, LiteralOf(name, value), last_);
    }
}

void FormBag::StoreFont(TextView name, const host::Font& font) {
    const Block* present = block_.FindGroup(name);
    if (present != nullptr && !IsFont(*present)) {
        block_.Remove(name);
    }
    const FontDescription description = Describe(font);
    FormBag attributes(document_, block_.Group(name, fontIdentifier, last_), nullptr);
    const auto store = [&](TextView attribute, const Value& value) {
        attributes.WriteProperty(attribute, value, Empty());
    };
    store(u"Name", description.name);
    store(u"Size", description.size);
    store(u"Charset", description.charset);
    store(u"Weight", description.weight);
    store(u"Underline", description.underline);
    store(u"Italic", description.italic);
    store(u"Strikethrough", description.strikethrough);
}

}  // namespace lumenkit::forms
