#include "forms/literal.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>
#include <string_view>

#include "forms/hexadecimal.h"
#include "frame/checked_integer.h"
#include "frame/numbers.h"
#include "frame/utf8.h"

namespace lumenkit::forms {

namespace {

Text Quoted(TextView text) {
    Text quoted = u"\"";
    for (const char16_t unit : text) {
        quoted.append(unit == u'"' ? 2 : 1, unit);
    }
    return quoted += u'"';
}

Text HexadecimalText(std::uint32_t number, std::size_t digits) {
    return FromUtf8(Hexadecimal(number, digits));
}

Text WithLeadingZero(Text number) {
    const std::size_t point = number.front() == u'-' ? 1 : 0;
    return number[point] == u'.' ? number.insert(point, 1, u'0') : number;
}

struct SourceWriter {
    Text operator()(const Text& text) const { return Quoted(text); }
    Text operator()(bool truth) const { return truth ? u"-1  'True" : u"0   'False"; }
    Text operator()(std::int32_t number) const { return Decimal(number); }
    Text operator()(HexNumber number) const {
        return u"&H" + HexadecimalText(number.bits, 8) + u'&';
    }
    Text operator()(double number) const { return WithLeadingZero(Text(Trim(Str(number)))); }
    Text operator()(const Shortcut& shortcut) const { return shortcut.keys; }
    Text operator()(const Guid& guid) const { return guid.text; }
    Text operator()(const Reference& reference) const {
        return (reference.marked ? u"$" : u"") + Quoted(reference.file) + u':' +
               HexadecimalText(reference.offset, 4);
    }
    Text operator()(const CompanionText& /*text*/) const { return {}; }
    Text operator()(const UnreadValue& value) const { return value.source; }
};

bool BelongsInCompanion(TextView text) {
    return text.size() > longestInlineText ||
           std::any_of(text.begin(), text.end(), [](char16_t unit) { return unit < blank; });
}

}  // namespace

Literal TextLiteral(TextView text) {
    if (BelongsInCompanion(text)) {
        return CompanionText{Text(text)};
    }
    return Text(text);
}

Literal NumberLiteral(double number) {
    if (!std::isfinite(number)) {
        Raise(ErrorNumber::Overflow);
    }
    using Limits = std::numeric_limits<std::int32_t>;
    if (number == std::trunc(number) && number >= Limits::min() && number <= Limits::max()) {
        return static_cast<std::int32_t>(number);
    }
    return number;
}

Literal NumberLiteral(float number) {
    if (!std::isfinite(number)) {
        Raise(ErrorNumber::Overflow);
    }
    return NumberLiteral(ParseNumber(Str(number)));
}

Text SourceOf(const Literal& literal) {
    return std::visit(SourceWriter(), literal);
}

}  // namespace lumenkit::forms
