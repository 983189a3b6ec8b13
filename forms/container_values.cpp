#include "forms/container_values.h"

#include <array>
#include <concepts>
#include <cstdint>
#include <string>
#include <type_traits>
#include <variant>

#include "forms/controls.h"
#include "forms/literal.h"
#include "forms/property.h"
#include "frame/automation/value.h"
#include "frame/runtime_error.h"
#include "frame/text.h"
#include "frame/utf8.h"

namespace lumenkit::forms {

namespace {

// Raises 13 for a literal that is neither a number nor a text.
Value ValueOf(const Literal& literal) {
    return std::visit(
        []<typename T>(const T& held) -> Value {
            if constexpr (std::same_as<T, HexNumber>) {
                return static_cast<std::int32_t>(held.bits);
            } else if constexpr (std::is_arithmetic_v<T> || std::same_as<T, Text>) {
                return held;
            } else {
                Raise(ErrorNumber::TypeMismatch);
            }
        },
        literal);
}

class BlockCheck {
 public:
    BlockCheck(const Block& block, std::vector<Warning>& warnings)
        : block_(block), warnings_(warnings) {}

    void Number(TextView name) {
        Check(name, [](const Value& value) { ToSingle(value); });
    }
    void Size(TextView name) {
        Check(name, [](const Value& value) { RefuseNegative(ToSingle(value)); });
    }
    void Count(TextView name) {
        Check(name, [](const Value& value) { RefuseNegative(ToInteger(value)); });
    }
    void Font() {
        if (const Property* font = Find(u"Font")) {
            warnings_.push_back({font->ValuePlace(), "Font: expected a font"});
        }
    }

 private:
    template <typename T>
    static void RefuseNegative(T number) {
        if (number < 0) {
            Raise(ErrorNumber::InvalidPropertyValue);
        }
    }

    // Returns null for a value that was not understood.
    const Property* Find(TextView name) const {
        const Property* property = block_.FindProperty(name);
        const bool isRead =
            property != nullptr && !std::holds_alternative<UnreadValue>(property->Literal());
        return isRead ? property : nullptr;
    }

    template <typename Convert>
    void Check(TextView name, const Convert& convert) {
        const Property* property = Find(name);
        if (property == nullptr) {
            return;
        }
        try {
            convert(ValueOf(property->Literal()));
        } catch (const RuntimeError& error) {
            warnings_.push_back(
                {property->ValuePlace(), ToUtf8(name) + ": " + ToUtf8(error.Description())});
        }
    }

    const Block& block_;
    std::vector<Warning>& warnings_;
};

}  // namespace

std::vector<Warning> ContainerWarnings(const Block& form) {
    constexpr std::array<TextView, 6> coordinates = {u"Left", u"Top", u"X1", u"X2", u"Y1", u"Y2"};
    std::vector<Warning> warnings;
    BlockCheck outermost(form, warnings);
    outermost.Size(u"ClientWidth");
    outermost.Size(u"ClientHeight");
    outermost.Font();
    for (const Block* block : AllControls(form)) {
        BlockCheck control(*block, warnings);
        for (const TextView name : coordinates) {
            control.Number(name);
        }
        control.Size(u"Width");
        control.Size(u"Height");
        control.Count(u"TabIndex");
        control.Count(u"Index");
        control.Font();
    }
    return warnings;
}

}  // namespace lumenkit::forms
