#include "frame/numbers.h"

#include <algorithm>
#include <array>
#include <cfloat>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <string_view>

#include "frame/runtime_error.h"

namespace lumenkit {

namespace {

bool IsDigit(char16_t unit) {
    return unit >= u'0' && unit <= u'9';
}
bool IsSkipped(char16_t unit) {
    return unit == blank || unit == u'\t' || unit == u'\n';
}
char16_t AsciiLower(char16_t unit) {
    return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + 32) : unit;
}

// On x87, an operation rounds twice, to the width of the registers and then to double, so the last
// bit of the result may be wrong.
constexpr bool operationsRoundOnce = FLT_EVAL_METHOD == 0 || FLT_EVAL_METHOD == 1;

// Reads the units of a number one by one, optionally skipping the blanks between them.
class Units {
 public:
    Units(TextView text, bool skipBlanks) : text_(text), skipBlanks_(skipBlanks) { Settle(); }

    // Returns 0 at the end, a unit that occurs in no number.
    char16_t Peek() const { return at_ < text_.size() ? text_[at_] : u'\0'; }
    void Advance() {
        ++at_;
        Settle();
    }
    bool Take(char16_t lower) {
        if (AsciiLower(Peek()) != lower) {
            return false;
        }
        Advance();
        return true;
    }
    bool AtEnd() const { return at_ >= text_.size(); }

 private:
    void Settle() {
        while (skipBlanks_ && at_ < text_.size() && IsSkipped(text_[at_])) {
            ++at_;
        }
    }

    TextView text_;
    std::size_t at_ = 0;
    bool skipBlanks_;
};

// A decimal number of any length, kept precisely enough to be rounded correctly to double.
// NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): only the used digits are initialised
class DecimalNumber {
 public:
    void AddDigit(char16_t digit, bool afterPoint) {
        any_ = true;
        const bool leadingZero = count_ == 0 && digit == u'0';
        if (!leadingZero && count_ < digits_.size()) {
            digits_[count_++] = static_cast<char>(digit);
            scale_ -= afterPoint ? 1 : 0;
        } else if (leadingZero) {
            scale_ -= afterPoint ? 1 : 0;
        } else {
            // Beyond the digits that affect rounding; only whether any of them is nonzero matters.
            digits_.back() = digit == u'0' ? digits_.back() : std::max(digits_.back(), '1');
            scale_ += afterPoint ? 0 : 1;
        }
    }
    bool HasDigits() const { return any_; }
    void AddExponent(std::int64_t exponent) { scale_ += exponent; }

    double Value() const {
        if (count_ == 0) {
            return 0.0;
        }
        const bool exact = operationsRoundOnce && count_ <= exactDigits && scale_ >= -exactPower &&
                           scale_ <= exactPower;
        return exact ? Exact() : Rounded();
    }

 private:
    static constexpr std::size_t exactDigits = 15;
    static constexpr std::int64_t exactPower = 22;

    // The digits and the power of ten are both exact doubles, so a single operation rounds
    // correctly.
    double Exact() const {
        static constexpr std::array<double, exactPower + 1> powers = {
            1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
            1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
        std::int64_t whole = 0;
        for (std::size_t i = 0; i < count_; ++i) {
            whole = whole * 10 + (digits_[i] - '0');
        }
        const auto number = static_cast<double>(whole);
        const double power = powers[static_cast<std::size_t>(std::abs(scale_))];
        return scale_ < 0 ? number / power : number * power;
    }

    double Rounded() const {
        std::array<char, maxDigits + 32> image{};
        char* end = std::copy_n(digits_.begin(), count_, image.begin());
        const std::size_t zeros = count_ < wideDigits ? wideDigits - count_ : 0;
        end = std::fill_n(end, zeros, '0');
        *end++ = 'e';
        // Certainly outside the range of double, and short enough for the buffer.
        constexpr std::int64_t farPower = 1'000'000;
        const std::int64_t power =
            std::clamp(scale_, -farPower, farPower) - static_cast<std::int64_t>(zeros);
        end = std::to_chars(end, image.data() + image.size(), power).ptr;
        double number = 0.0;
        const auto result = std::from_chars(image.data(), end, number);
        if (result.ec == std::errc::result_out_of_range) {
            const bool tooLarge =
                static_cast<std::int64_t>(count_ + zeros) + power > 0;  // else too small
            if (tooLarge) {
                Raise(ErrorNumber::Overflow);
            }
            return 0.0;
        }
        return number;
    }

    // This many digits exceed the whole numbers that a double holds exactly. The C++ library
    // multiplies shorter numbers by their power of ten as doubles, which rounds twice when compiled
    // for x87, as it is for all 32-bit programs. For this many digits, it uses integers.
    static constexpr std::size_t wideDigits = 19;
    // No double, and no midpoint between two doubles, has more than 768 significant digits.
    static constexpr std::size_t maxDigits = 770;
    std::array<char, maxDigits> digits_;
    std::size_t count_ = 0;
    std::int64_t scale_ = 0;
    bool any_ = false;
};

void ReadExponent(Units& units, DecimalNumber& number) {
    const Units before = units;
    if (!units.Take(u'e') && !units.Take(u'd')) {
        return;
    }
    const bool negative = units.Take(u'-');
    if (!negative) {
        units.Take(u'+');
    }
    if (!IsDigit(units.Peek())) {
        units = before;
        return;
    }
    constexpr std::int64_t enough = 1'000'000'000;
    std::int64_t exponent = 0;
    for (; IsDigit(units.Peek()); units.Advance()) {
        exponent = std::min(exponent * 10 + (units.Peek() - u'0'), enough);
    }
    number.AddExponent(negative ? -exponent : exponent);
}

std::optional<double> ReadDecimal(Units& units) {
    DecimalNumber number;
    for (; IsDigit(units.Peek()); units.Advance()) {
        number.AddDigit(units.Peek(), false);
    }
    if (units.Take(u'.')) {
        for (; IsDigit(units.Peek()); units.Advance()) {
            number.AddDigit(units.Peek(), true);
        }
    }
    if (!number.HasDigits()) {
        return std::nullopt;
    }
    ReadExponent(units, number);
    return number.Value();
}

int DigitValue(char16_t unit) {
    const char16_t lower = AsciiLower(unit);
    if (IsDigit(lower)) {
        return lower - u'0';
    }
    return lower >= u'a' && lower <= u'f' ? lower - u'a' + 10 : std::numeric_limits<int>::max();
}

std::optional<double> ReadRadix(Units& units) {
    const int radix = units.Take(u'h') ? 16 : units.Take(u'o') ? 8 : 0;
    if (radix == 0 || DigitValue(units.Peek()) >= radix) {
        return std::nullopt;
    }
    std::uint64_t bits = 0;
    for (; DigitValue(units.Peek()) < radix; units.Advance()) {
        bits =
            bits * static_cast<unsigned>(radix) + static_cast<unsigned>(DigitValue(units.Peek()));
        if (bits > std::numeric_limits<std::uint32_t>::max()) {
            Raise(ErrorNumber::Overflow);
        }
    }
    if (!units.Take(u'&') && bits <= std::numeric_limits<std::uint16_t>::max()) {
        return static_cast<std::int16_t>(bits);
    }
    return static_cast<std::int32_t>(bits);
}

std::optional<double> ReadNumber(Units& units) {
    const bool negative = units.Take(u'-');
    if (!negative) {
        units.Take(u'+');
    }
    const std::optional<double> number = units.Take(u'&') ? ReadRadix(units) : ReadDecimal(units);
    return number && negative ? -*number : number;
}

TextView WithoutSpaceAround(TextView text) {
    while (!text.empty() && IsSkipped(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && IsSkipped(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

using Image = std::array<char, 48>;

// Writes `number`, which is not negative, as std::to_chars does, but with an upper-case E.
template <typename Number, typename... Precision>
std::string_view Write(Image& image, Number number, std::chars_format format,
                       Precision... precision) {
    char* const end =
        std::to_chars(image.data(), image.data() + image.size(), number, format, precision...).ptr;
    std::replace(image.data(), end, 'e', 'E');
    return {image.data(), end};
}

void Append(Text& text, std::string_view ascii) {
    for (const char character : ascii) {
        text += static_cast<char16_t>(character);
    }
}

void AppendHundredths(Text& text, std::int32_t hundredths) {
    text += hundredths < 0 ? u'-' : blank;
    const std::int32_t whole = std::abs(hundredths / 100);
    const std::int32_t rest = std::abs(hundredths % 100);
    if (whole != 0 || rest == 0) {
        AppendDecimal(text, whole);
    }
    if (rest != 0) {
        text += u'.';
        text += static_cast<char16_t>(u'0' + rest / 10);
    }
    if (rest % 10 != 0) {
        text += static_cast<char16_t>(u'0' + rest % 10);
    }
}

template <typename Number>
void AppendStrOf(Text& text, Number number) {
    // Fast path for the common case: a number with at most two decimals and up to four digits
    // before the point. Six digits that read back as the number are the fewest.
    constexpr Number most = 9'999;
    const Number half = number < 0 ? Number(-0.5) : Number(0.5);
    const auto hundredths = static_cast<std::int32_t>(std::clamp(number, -most, most) * 100 + half);
    if (static_cast<Number>(hundredths) / 100 == number) {
        AppendHundredths(text, hundredths);
        return;
    }
    constexpr auto leastInFull = Number(1e-4);
    constexpr auto leastTooLong = Number(sizeof(Number) == sizeof(float) ? 1e7 : 1e15);
    const Number magnitude = std::abs(number);
    const bool inFull = magnitude >= leastInFull && magnitude < leastTooLong;
    Image image{};
    std::string_view digits =
        Write(image, magnitude, inFull ? std::chars_format::fixed : std::chars_format::scientific);
    digits.remove_prefix(digits.starts_with("0.") ? 1 : 0);
    text += number < 0 ? u'-' : blank;
    Append(text, digits);
}

// The general format uses an exponent for the same numbers as Str does.
template <typename Number>
Text NumberTextOf(Number number, int digits) {
    if (!std::isfinite(number)) {
        Raise(ErrorNumber::Overflow);
    }
    Image image{};
    Text text(number < 0 ? 1 : 0, u'-');
    Append(text, Write(image, std::abs(number), std::chars_format::general, digits));
    return text;
}

// Fast path for most numbers: a few digits, with or without a decimal point, followed by a comma, a
// bar or the end.
std::optional<double> ShortNumber(TextView text) {
    constexpr std::array powers = {1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9};
    std::int32_t digits = 0;
    std::size_t point = TextView::npos;
    std::size_t at = 0;
    for (; at < text.size() && text[at] != u',' && text[at] != u'|'; ++at) {
        if (at == powers.size() - 1) {
            return std::nullopt;
        }
        if (IsDigit(text[at])) {
            digits = digits * 10 + (text[at] - u'0');
        } else if (text[at] == u'.' && point == TextView::npos) {
            point = at;
        } else {
            return std::nullopt;
        }
    }
    if (point == TextView::npos) {
        return digits;
    }
    if (!operationsRoundOnce) {
        return std::nullopt;
    }
    // Both operands are exact doubles, so a single division rounds correctly.
    return digits / powers[at - point - 1];
}

}  // namespace

double ParseNumber(TextView text) {
    if (const auto number = ShortNumber(text)) {
        return *number;
    }
    Units units(text, true);
    return ReadNumber(units).value_or(0.0);
}

std::optional<double> NumericValue(TextView text) {
    Units units(WithoutSpaceAround(text), false);
    const std::optional<double> number = ReadNumber(units);
    return number && units.AtEnd() ? number : std::nullopt;
}

void AppendStr(Text& text, double number) {
    AppendStrOf(text, number);
}

void AppendStr(Text& text, float number) {
    AppendStrOf(text, number);
}

Text Str(double number) {
    Text text;
    AppendStr(text, number);
    return text;
}

Text Str(float number) {
    Text text;
    AppendStr(text, number);
    return text;
}

Text NumberText(double number) {
    return NumberTextOf(number, 15);
}

Text NumberText(float number) {
    return NumberTextOf(number, 7);
}

void AppendDecimal(Text& text, std::int32_t number) {
    std::array<char16_t, 11> image{};
    auto first = image.end();
    auto rest = static_cast<std::uint32_t>(number);
    rest = number < 0 ? 0 - rest : rest;
    do {
        *--first = static_cast<char16_t>(u'0' + rest % 10);
        rest /= 10;
    } while (rest != 0);
    if (number < 0) {
        *--first = u'-';
    }
    text.append(first, image.end());
}

Text Decimal(std::int32_t number) {
    Text text;
    AppendDecimal(text, number);
    return text;
}

}  // namespace lumenkit
