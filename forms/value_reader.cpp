#include "forms/value_reader.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <optional>
#include <string>
#include <system_error>

#include "frame/numbers.h"

namespace lumenkit::forms {

namespace {

bool IsDigit(char16_t unit) {
    return unit >= u'0' && unit <= u'9';
}
bool IsLetter(char16_t unit) {
    return (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z');
}
bool IsHexDigit(char16_t unit) {
    return IsDigit(unit) || (unit >= u'A' && unit <= u'F') || (unit >= u'a' && unit <= u'f');
}

std::string Narrow(TextView ascii) {
    std::string narrow(ascii.size(), '\0');
    std::transform(ascii.begin(), ascii.end(), narrow.begin(),
                   [](char16_t unit) { return static_cast<char>(unit); });
    return narrow;
}

template <typename Belongs>
TextView TakeWhile(Scanner& scanner, Belongs belongs) {
    const std::size_t start = scanner.Offset();
    while (belongs(scanner.Peek())) {
        scanner.Take();
    }
    return scanner.Since(start);
}

std::uint32_t ReadHexDigits(Scanner& scanner) {
    const Position place = scanner.Here();
    const TextView digits = TakeWhile(scanner, IsHexDigit);
    if (digits.empty()) {
        scanner.Expect("a hexadecimal digit");
    }
    constexpr std::size_t most = 8;
    if (digits.size() > most) {
        scanner.Fail(
            place, "expected at most 8 hexadecimal digits, found " + std::to_string(digits.size()));
    }
    std::uint32_t number = 0;
    const std::string narrow = Narrow(digits);
    std::from_chars(narrow.data(), narrow.data() + narrow.size(), number, 16);
    return number;
}

// Without a trailing "&", a number of up to 16 bits is a 16-bit signed integer.
HexNumber ReadHexNumber(Scanner& scanner) {
    scanner.Take();
    if (!scanner.TakeIf(u'H') && !scanner.TakeIf(u'h')) {
        scanner.Expect("H");
    }
    const std::uint32_t bits = ReadHexDigits(scanner);
    const bool isLong = scanner.TakeIf(u'&');
    if (!isLong && bits <= 0xFFFF) {
        return {static_cast<std::uint32_t>(static_cast<std::int16_t>(bits))};
    }
    return {bits};
}

void TakeDigits(Scanner& scanner) {
    if (TakeWhile(scanner, IsDigit).empty()) {
        scanner.Expect("a digit");
    }
}

Literal ReadNumber(Scanner& scanner) {
    const Position place = scanner.Here();
    const std::size_t start = scanner.Offset();
    scanner.TakeIf(u'-');
    bool whole = true;
    if (scanner.Peek() != u'.') {
        TakeDigits(scanner);
    }
    if (scanner.TakeIf(u'.')) {
        whole = false;
        TakeDigits(scanner);
    }
    if (scanner.TakeIf(u'E') || scanner.TakeIf(u'e')) {
        whole = false;
        if (!scanner.TakeIf(u'-')) {
            scanner.TakeIf(u'+');
        }
        TakeDigits(scanner);
    }
    const std::string digits = Narrow(scanner.Since(start));
    const char* const end = digits.data() + digits.size();
    std::int32_t integer = 0;
    if (whole && std::from_chars(digits.data(), end, integer).ec == std::errc()) {
        return integer;
    }
    double number = 0;
    if (std::from_chars(digits.data(), end, number).ec != std::errc()) {
        scanner.Fail(place, "expected a number that double precision can hold");
    }
    // The result of the C++ library may be wrong in its last bit where it was compiled for x87.
    return ParseNumber(scanner.Since(start));
}

bool IsPlainFileName(TextView name) {
    return !name.empty() && name.find_first_of(u"/\\:*?<>|") == TextView::npos && name != u"." &&
           name != u"..";
}

Literal ReadReference(Scanner& scanner, Text file, Position place, bool marked) {
    if (!IsPlainFileName(file)) {
        scanner.Fail(place, "expected the name of a file beside the form");
    }
    return Reference{std::move(file), ReadHexDigits(scanner), marked};
}

Literal ReadTextOrReference(Scanner& scanner) {
    const Position place = scanner.Here();
    Text text = ReadQuoted(scanner);
    if (scanner.TakeIf(u':')) {
        return ReadReference(scanner, std::move(text), place, false);
    }
    return text;
}

Literal ReadMarkedReference(Scanner& scanner) {
    scanner.Take();
    const Position place = scanner.Here();
    Text file = ReadQuoted(scanner);
    if (!scanner.TakeIf(u':')) {
        scanner.Expect("':' and an offset");
    }
    return ReadReference(scanner, std::move(file), place, true);
}

bool IsModifier(char16_t unit) {
    return unit == u'^' || unit == u'+' || unit == u'%';
}

void TakeBracedKey(Scanner& scanner) {
    scanner.Take();
    if (TakeWhile(scanner, [](char16_t unit) { return IsLetter(unit) || IsDigit(unit); }).empty()) {
        scanner.Expect("the name of a key");
    }
    if (!scanner.TakeIf(u'}')) {
        scanner.Expect("'}'");
    }
}

// ^N, {F1}, +^{F12}
Literal ReadShortcut(Scanner& scanner) {
    const std::size_t start = scanner.Offset();
    TakeWhile(scanner, IsModifier);
    if (scanner.Peek() == u'{') {
        TakeBracedKey(scanner);
    } else if (IsLetter(scanner.Peek()) || IsDigit(scanner.Peek())) {
        scanner.Take();
    } else {
        scanner.Expect("a key");
    }
    return Shortcut{Text(scanner.Since(start))};
}

// Shortcuts and identifiers may both begin with a brace; only an identifier has hyphens.
Literal ReadBraced(Scanner& scanner) {
    const TextView line = scanner.Rest().substr(0, scanner.Rest().find_first_of(u"}\r\n"));
    if (line.find(u'-') == TextView::npos) {
        return ReadShortcut(scanner);
    }
    return Guid{ReadGuid(scanner)};
}

Literal ReadLiteral(Scanner& scanner) {
    const char16_t first = scanner.Peek();
    switch (first) {
        case u'"':
            return ReadTextOrReference(scanner);
        case u'$':
            return ReadMarkedReference(scanner);
        case u'&':
            return ReadHexNumber(scanner);
        case u'{':
            return ReadBraced(scanner);
        default:
            break;
    }
    if (IsModifier(first)) {
        return ReadShortcut(scanner);
    }
    if (IsDigit(first) || first == u'-' || first == u'.') {
        return ReadNumber(scanner);
    }
    scanner.Expect("a value");
}

// Booleans are numbers followed by a word in a comment.
std::optional<bool> AsBoolean(const CommentedLiteral& value) {
    const auto* number = std::get_if<std::int32_t>(&value.literal);
    const TextView word = Trim(value.comment);
    if (number != nullptr && *number == -1 && IsKeyword(word, u"True")) {
        return true;
    }
    if (number != nullptr && *number == 0 && IsKeyword(word, u"False")) {
        return false;
    }
    return std::nullopt;
}

}  // namespace

CommentedLiteral ReadValue(Scanner& scanner) {
    Literal literal = ReadLiteral(scanner);
    CommentedLiteral value{std::move(literal), ReadComment(scanner)};
    if (const std::optional<bool> truth = AsBoolean(value)) {
        value.literal = *truth;
    }
    return value;
}

Text ReadQuoted(Scanner& scanner) {
    if (!scanner.TakeIf(u'"')) {
        scanner.Expect("'\"'");
    }
    Text text;
    for (;;) {
        const char16_t unit = scanner.Peek();
        if (unit < blank && unit != u'\t') {
            scanner.Expect("'\"' to end the text");
        }
        scanner.Take();
        if (unit == u'"' && !scanner.TakeIf(u'"')) {
            return text;
        }
        text += unit;
    }
}

Text ReadGuid(Scanner& scanner) {
    const std::size_t start = scanner.Offset();
    if (!scanner.TakeIf(u'{')) {
        scanner.Expect("'{'");
    }
    constexpr TextView form = u"00000000-0000-0000-0000-000000000000";
    for (const char16_t unit : form) {
        if (unit == u'-' && !scanner.TakeIf(u'-')) {
            scanner.Expect("'-'");
        }
        if (unit == u'0' && !IsHexDigit(scanner.Peek())) {
            scanner.Expect("a hexadecimal digit");
        }
        if (unit == u'0') {
            scanner.Take();
        }
    }
    if (!scanner.TakeIf(u'}')) {
        scanner.Expect("'}'");
    }
    return Text(scanner.Since(start));
}

Text ReadComment(Scanner& scanner) {
    scanner.SkipBlanks();
    if (scanner.TakeIf(u'\'')) {
        return Text(scanner.TakeLine());
    }
    if (!scanner.AtLineEnd()) {
        scanner.Expect("the end of the line");
    }
    return {};
}

}  // namespace lumenkit::forms
