#include "frame/numbers.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <optional>
#include <random>
#include <string>

#include <gmock/gmock.h>

#include "frame/utf8.h"
#include "tests/support/test_rounds.h"
#include "tests/unit/frame/raises.h"

namespace lumenkit {
namespace {

struct Reading {
    TextView text;
    double number;
};

void ExpectReadings(std::initializer_list<Reading> readings) {
    for (const Reading& reading : readings) {
        EXPECT_EQ(ParseNumber(reading.text), reading.number) << ToUtf8(reading.text);
    }
}

TEST(ParseNumber, ReadsDecimals) {
    ExpectReadings({
        {u"0", 0},
        {u"7", 7},
        {u"120", 120},
        {u"007", 7},
        {u"1.5", 1.5},
        {u".5", .5},
        {u"5.", 5},
        {u"0.25", .25},
        {u"00.250", .25},
        {u"2147483648", 2147483648.0},
        {u"9007199254740993", 9007199254740992.0},
        {u"0.1", 0.1},
        {u"123456789.125", 123456789.125},
    });
}

TEST(ParseNumber, ReadsSigns) {
    ExpectReadings({
        {u"+5", 5},
        {u"-5", -5},
        {u"-.5", -.5},
        {u"+.5", .5},
        {u"-0", 0},
        {u"--5", 0},
        {u"+-5", 0},
        {u"-+5", 0},
        {u"5-", 5},
        {u"1-2", 1},
        {u"1+2", 1},
    });
    EXPECT_TRUE(std::signbit(ParseNumber(u"-0")));
}

TEST(ParseNumber, IsZeroWhereThereIsNoNumber) {
    ExpectReadings({
        {u"", 0},    {u"   ", 0}, {u"abc", 0}, {u"-", 0},   {u"+", 0},    {u".", 0},   {u"-.", 0},
        {u". .", 0}, {u"e5", 0},  {u".e5", 0}, {u"$5", 0},  {u",5", 0},   {u"(5)", 0}, {u"|", 0},
        {u"x5", 0},  {u"&", 0},   {u"inf", 0}, {u"nan", 0}, {u"0x10", 0},
    });
}

TEST(ParseNumber, StopsAtTheFirstOtherUnit) {
    ExpectReadings({
        {u"120|", 120},
        {u"0,128,0|", 0},
        {u"12abc", 12},
        {u"1.5.2", 1.5},
        {u"1..2", 1},
        {u"1,5", 1},
        {u"5%", 5},
        {u"5&", 5},
        {u"12\"", 12},
        {u"1_000", 1},
        {u"1'000", 1},
    });
    EXPECT_EQ(ParseNumber(TextView(u"1\0002", 3)), 1);
}

// Numbers that are short enough for the fast path, and the first that are not.
TEST(ParseNumber, ReadsWholeNumbersOfAnyLengthBeforeACommaABarAndTheEnd) {
    const Reading readings[] = {
        {u"", 0},
        {u"7", 7},
        {u"007", 7},
        {u"999999999", 999'999'999.0},
        {u"9999999999", 9'999'999'999.0},
        {u"123456789 0", 1'234'567'890.0},
    };
    for (const TextView behind : {u"", u",", u"|", u",7", u"|7"}) {
        for (const auto& [text, number] : readings) {
            EXPECT_EQ(ParseNumber(Text(text) + Text(behind)), number)
                << ToUtf8(text) << ' ' << ToUtf8(behind);
        }
    }
    EXPECT_EQ(ParseNumber(u"12\t.5e1|"), 125);
}

TEST(ParseNumber, ReadsNumbersWithAPointBeforeACommaABarAndTheEnd) {
    const Reading readings[] = {
        {u"8.5", 8.5},
        {u"8.25", 8.25},
        {u".", 0},
        {u"7.", 7},
        {u".7", 0.7},
        {u"1.2.3", 1.2},
        {u"..3", 0},
        {u"1234567.8", 1'234'567.8},
        {u"1234567.89", 1'234'567.89},
        {u".123456789", .123456789},
    };
    for (const TextView behind : {u"", u",", u"|", u",.7", u"|7.5"}) {
        for (const auto& [text, number] : readings) {
            EXPECT_EQ(ParseNumber(Text(text) + Text(behind)), number)
                << ToUtf8(text) << ' ' << ToUtf8(behind);
        }
    }
}

TEST(ParseNumber, SkipsBlanksTabsAndLineFeedsAnywhere) {
    ExpectReadings({
        {u"  12", 12},
        {u"12  ", 12},
        {u"1 2", 12},
        {u"1\t2", 12},
        {u"1\n2", 12},
        {u" \t\n1 \t\n2 \t\n", 12},
        {u" - 5", -5},
        {u"1 . 5", 1.5},
        {u". 5", .5},
        {u"1 e 2", 100},
        {u"1 e + 2", 100},
        {u"1e- \t2 0", 1e-20},
        {u"1e2 3", 1e23},
        {u"1615 198th Street N.E.", 1615198},
    });
}

TEST(ParseNumber, StopsAtEveryOtherWhiteSpace) {
    ExpectReadings({
        {u"1\r2", 1},
        {u"1\r\n2", 1},
        {u"\r1", 0},
        {u"1\v2", 1},
        {u"1\f2", 1},
        {u"1\u00A02", 1},
        {u"\u00A01", 0},
        {u"1\u30002", 1},
    });
}

TEST(ParseNumber, KnowsNoOtherDigits) {
    ExpectReadings({{u"１", 0}, {u"1２", 1}, {u"٣", 0}, {u"²", 0}});
}

TEST(ParseNumber, ReadsExponentsWithEAndD) {
    ExpectReadings({
        {u"1e2", 100},     {u"1E2", 100},   {u"1d2", 100},   {u"1D2", 100},    {u"1E+2", 100},
        {u"1D+2", 100},    {u"1e-2", .01},  {u"1d-2", .01},  {u"1.5E3", 1500}, {u".5e1", 5},
        {u"5.e1", 50},     {u"-2E2", -200}, {u"1e002", 100}, {u"1e0", 1},      {u"1E2.5", 100},
        {u"1E2E3", 100},   {u"1E2D3", 100}, {u"1E22", 1e22}, {u"1E23", 1e23},  {u"1E-22", 1e-22},
        {u"1E-23", 1e-23},
    });
}

TEST(ParseNumber, LeavesADanglingExponentUnread) {
    ExpectReadings({
        {u"1E", 1},
        {u"1E+", 1},
        {u"1E-", 1},
        {u"1D", 1},
        {u"1Ex", 1},
        {u"1E-x5", 1},
        {u"1EE2", 1},
        {u"1ED2", 1},
        {u"1E--2", 1},
        {u"1E+-2", 1},
        {u"1E.5", 1},
        {u"1E&H2", 1},
        {u"3 em", 3},
    });
}

TEST(ParseNumber, ReadsRadixPrefixesInEitherCase) {
    ExpectReadings({
        {u"&H10", 16},     {u"&h10", 16},   {u"&HfF", 255},  {u"&Habcd", -21555},  // 43981 - 65536
        {u"&O17", 15},     {u"&o17", 15},   {u"&O18", 1},    {u"&H10G", 16},       {u"&H1.5", 1},
        {u"&H10E2", 4322}, {u"&H1D2", 466}, {u"&H1D+2", 29}, {u"&HG", 0},          {u"&H", 0},
        {u"&O", 0},        {u"&O8", 0},     {u"&H&", 0},     {u"&Q5", 0},          {u"&&H5", 0},
        {u"&H-5", 0},      {u"-&H10", -16}, {u"+&H10", 16},  {u" & H 1\t0\n", 16},
    });
}

TEST(ParseNumber, TakesUpTo16RadixBitsAsSignedUnlessAnAmpersandFollows) {
    ExpectReadings({
        {u"&H7FFF", 32767},
        {u"&H8000", -32768},
        {u"&HFFFF", -1},
        {u"&H0000FFFF", -1},
        {u"&HFFFF&", 65535},
        {u"&H8000&", 32768},
        {u"&H7FFF&", 32767},
        {u"&HFFFF &", 65535},
        {u"&HFFFF,&", -1},
        {u"&HFFFF|", -1},
        {u"&O77777", 32767},
        {u"&O100000", -32768},
        {u"&O177777", -1},
        {u"&O177777&", 65535},
        {u"-&HFFFF", 1},
    });
}

TEST(ParseNumber, TakesUpTo32RadixBitsAsSigned) {
    ExpectReadings({
        {u"&H10000", 65536},
        {u"&H10000&", 65536},
        {u"&H7FFFFFFF", 2147483647.0},
        {u"&H80000000", -2147483648.0},
        {u"&HFFFFFFFF", -1},
        {u"&HFFFFFFFF&", -1},
        {u"&O37777777777", -1},
        {u"&O20000000000", -2147483648.0},
        {u"&H000000000000000000000001", 1},
    });
}

TEST(ParseNumber, OverflowsBeyond32RadixBits) {
    for (const TextView text : {u"&H100000000", u"&HFFFFFFFFF", u"&O40000000000", u"-&H100000000",
                                u"&H1000000000000000000000000000000"}) {
        EXPECT_THAT([&] { ParseNumber(text); }, Raises(6)) << ToUtf8(text);
    }
}

TEST(ParseNumber, OverflowsBeyondDoublePrecision) {
    ExpectReadings({
        {u"1.7976931348623157E308", std::numeric_limits<double>::max()},
        {u"1.7976931348623158E308", std::numeric_limits<double>::max()},
    });
    const Text tenToThe400 = u"1" + Text(400, u'0');
    const Text nines = Text(1000, u'9');
    for (const Text& text :
         {Text(u"1.797693134862315808E308"), Text(u"1E309"), Text(u"-1E309"), Text(u"1D309"),
          Text(u"1E99999999999999999999999"), Text(u".00001E314"), tenToThe400, u"-" + tenToThe400,
          nines, nines + u"E-600", nines + u".5"}) {
        EXPECT_THAT([&] { ParseNumber(text); }, Raises(6)) << ToUtf8(text);
    }
    EXPECT_EQ(ParseNumber(tenToThe400 + u"E-400"), 1);
    EXPECT_EQ(ParseNumber(nines + u"E-1000"), 1);
    EXPECT_EQ(ParseNumber(u"." + Text(400, u'0') + u"1E401"), 1);
}

TEST(ParseNumber, UnderflowsToZeroThroughDenormals) {
    constexpr double least = std::numeric_limits<double>::denorm_min();
    ExpectReadings({
        {u"4.9406564584124654E-324", least},
        {u"3E-324", least},
        {u"2E-324", 0},
        {u"7E-324", least},
        {u"8E-324", 2 * least},
        {u"2.2250738585072014E-308", std::numeric_limits<double>::min()},
        {u"1E-400", 0},
        {u"-1E-400", 0},
        {u"1E-99999999999999999999999", 0},
        {u"0E99999999999999999999999", 0},
    });
    EXPECT_EQ(ParseNumber(u"." + Text(1000, u'0') + u"1"), 0);
}

// Compares with the result of the C library for the same decimal number.
void ExpectAsStrtod(const std::string& image) {
    const double expected = std::strtod(image.c_str(), nullptr);
    const Text text = FromUtf8(image);
    if (std::isinf(expected)) {
        ASSERT_THAT([&] { ParseNumber(text); }, Raises(6)) << image;
        return;
    }
    ASSERT_EQ(std::bit_cast<std::uint64_t>(ParseNumber(text)),
              std::bit_cast<std::uint64_t>(expected))
        << image;
}

class Generator {
 public:
    std::uint64_t Bits() { return random_(); }
    int Below(int end) { return std::uniform_int_distribution<int>(0, end - 1)(random_); }
    std::string Digits(int count) {
        std::string digits;
        for (int i = 0; i < count; ++i) {
            digits += static_cast<char>('0' + Below(10));
        }
        return digits;
    }
    std::string Decimal(int mostDigits, int exponentReach) {
        std::string image = Below(2) == 0 ? "" : "-";
        image += Digits(1 + Below(mostDigits));
        if (Below(2) == 0) {
            image += "." + Digits(Below(mostDigits));
        }
        if (Below(4) != 0) {
            image += "e" + std::to_string(Below(2 * exponentReach) - exponentReach);
        }
        return image;
    }

 private:
    std::mt19937_64 random_{20010917};
};

TEST(ParseNumber, AgreesWithStrtodOnShortDecimals) {
    Generator generator;
    for (int i = 0; i < testing::Rounds(200'000); ++i) {
        ExpectAsStrtod(generator.Decimal(10, 30));
    }
}

TEST(ParseNumber, AgreesWithStrtodOverTheWholeRange) {
    Generator generator;
    for (int i = 0; i < testing::Rounds(100'000); ++i) {
        ExpectAsStrtod(generator.Decimal(20, 345));
    }
}

TEST(ParseNumber, AgreesWithStrtodOnNumbersOf800Digits) {
    Generator generator;
    for (int i = 0; i < testing::Rounds(2'000); ++i) {
        ExpectAsStrtod(generator.Digits(800) + "e" + std::to_string(-300 - generator.Below(900)));
        ExpectAsStrtod("0." + generator.Digits(800) + "e" +
                       std::to_string(generator.Below(650) - 330));
    }
}

TEST(ParseNumber, RoundsExactMidpointsToEvenAndTheirNeighboursAway) {
    ExpectReadings({
        {u"1.00000000000000011102230246251565404236316680908203125", 1.0},
        {u"1.00000000000000033306690738754696212708950042724609375", 1.0 + 4 * 0x1p-53},
    });
    const Text above =
        u"1.00000000000000011102230246251565404236316680908203125" + Text(1000, u'0') + u"1";
    EXPECT_EQ(ParseNumber(above), 1.0 + 0x1p-52);
}

TEST(ParseNumber, AgreesWithStrtodBesideMidpointsOfEveryMagnitude) {
    static_assert(std::numeric_limits<long double>::digits >= 54 &&
                  std::numeric_limits<long double>::min_exponent < -2000);
    Generator generator;
    for (int i = 0; i < testing::Rounds(5'000); ++i) {
        // Half-way between a double and the next one. Half of them are denormal; these have the
        // longest midpoints.
        const auto mantissa = static_cast<std::int64_t>(generator.Bits() >> 11U) | 1;
        const int exponent = i % 2 == 0 ? -1075 : -1075 + generator.Below(2000);
        const long double midpoint = std::ldexp(static_cast<long double>(mantissa), exponent);
        char exact[900];
        std::snprintf(exact, sizeof exact, "%.799Le", midpoint);  // 767 digits suffice
        const std::string image = exact;
        const std::size_t mark = image.find('e');
        ExpectAsStrtod(image);
        ExpectAsStrtod(image.substr(0, mark) + "1" + image.substr(mark));
        ExpectAsStrtod(image.substr(0, mark) + std::string(200, '0') + "1" + image.substr(mark));
    }
}

// Each product of the digits and the power of ten is so close to the middle between two doubles
// that rounding it to 64 bits first, as x87 registers do, leads to the wrong one of them. The
// expected values were computed with exact fractions.
TEST(ParseNumber, RoundsOnce) {
    ExpectReadings({
        {u"2.920819527489981E+23", 0x1.eece5ae6e5a2fp+77},
        {u"-3.43810814461863E+23", -0x1.2338161dd532dp+78},
        {u"2.966148453968913E+23", 0x1.f67c2f149d59dp+77},
        {u"2.988438385757084E+23", 0x1.fa42db0910ba7p+77},
        {u"5270523302510905E6", 0x1.1db7343b34553p+72},
        {u"1720333184608236E13", 0x1.bcb219c09ac89p+93},
        {u"2234349659160504D21", 0x1.ae51f183ea08dp+120},
    });
}

TEST(NumericValue, IsTheNumberThatTheWholeTextIs) {
    const Reading readings[] = {
        {u"5", 5},         {u" 5 ", 5},     {u"\t5\n", 5},   {u"-5", -5},
        {u"+5", 5},        {u".5", .5},     {u"5.", 5},      {u"1.5e3", 1500},
        {u"1D-2", .01},    {u"&HFF", 255},  {u"&hffff", -1}, {u"&HFFFF&", 65535},
        {u"  &O17  ", 15}, {u"-&H10", -16}, {u"0", 0},       {u"1E-400", 0},
    };
    for (const Reading& reading : readings) {
        EXPECT_EQ(NumericValue(reading.text), std::optional(reading.number))
            << ToUtf8(reading.text);
    }
}

TEST(NumericValue, IsNothingForAnyOtherText) {
    for (const TextView text :
         {u"",    u" ",    u"abc", u"True", u"5x",    u"x5",  u"5 5",   u"- 5",     u"1 e5", u"1e",
          u"1e+", u"1e 5", u".",   u"-",    u"+",     u"--5", u"1.2.3", u"1,5",     u"5%",   u"5&",
          u"&",   u"&H",   u"&HG", u"&O8",  u"&H 10", u"5\r", u"\r5",   u"5\u00A0", u"１"}) {
        EXPECT_EQ(NumericValue(text), std::nullopt) << ToUtf8(text);
    }
    EXPECT_EQ(NumericValue(TextView(u"5\0", 2)), std::nullopt);
}

TEST(NumericValue, OverflowsAsParseNumberDoes) {
    EXPECT_THAT([] { NumericValue(u"1E309"); }, Raises(6));
    EXPECT_THAT([] { NumericValue(u"&H100000000"); }, Raises(6));
}

TEST(Str, WritesDoubles) {
    const std::pair<double, TextView> forms[] = {
        {0.0, u" 0"},
        {-0.0, u" 0"},
        {1.0, u" 1"},
        {-1.0, u"-1"},
        {100.0, u" 100"},
        {0.5, u" .5"},
        {-0.5, u"-.5"},
        {0.1, u" .1"},
        {-12.75, u"-12.75"},
        {999999.0, u" 999999"},
        {1000000.0, u" 1000000"},
        {-1000000.0, u"-1000000"},
        {1234567.25, u" 1234567.25"},
        {1e14, u" 100000000000000"},
        {999999999999999.0, u" 999999999999999"},
        {1e15, u" 1E+15"},
        {-1.5e20, u"-1.5E+20"},
        {1e100, u" 1E+100"},
        {9007199254740992.0, u" 9.007199254740992E+15"},
        {0.0001, u" .0001"},
        {0.00012, u" .00012"},
        {0.00001, u" 1E-05"},
        {0.000099, u" 9.9E-05"},
        {1.5e-10, u" 1.5E-10"},
        {-1e-100, u"-1E-100"},
        {1.0 / 3.0, u" .3333333333333333"},
        {std::numeric_limits<double>::max(), u" 1.7976931348623157E+308"},
        {std::numeric_limits<double>::denorm_min(), u" 5E-324"},
    };
    for (const auto& [number, form] : forms) {
        EXPECT_EQ(Str(number), form);
    }
}

TEST(Str, WritesSingles) {
    const std::pair<float, TextView> forms[] = {
        {0.0F, u" 0"},
        {8.25F, u" 8.25"},
        {-0.1F, u"-.1"},
        {150.0F, u" 150"},
        {1000000.0F, u" 1000000"},
        {9999999.0F, u" 9999999"},
        {1e7F, u" 1E+07"},
        {16777216.0F, u" 1.6777216E+07"},
        {1.5e10F, u" 1.5E+10"},
        {0.0001F, u" .0001"},
        {1e-5F, u" 1E-05"},
        {1.0F / 3.0F, u" .33333334"},
        {std::numeric_limits<float>::max(), u" 3.4028235E+38"},
    };
    for (const auto& [number, form] : forms) {
        EXPECT_EQ(Str(number), form);
    }
}

// Writes the digits of the whole number, with a point before the last two and no trailing
// zeros.
Text Hundredths(int count) {
    const int size = std::abs(count);
    std::string image = std::to_string(size / 100);
    image = image == "0" && size != 0 ? "" : image;
    if (size % 100 != 0) {
        image += '.' + std::to_string(size % 100 / 10);
        image += size % 10 != 0 ? std::to_string(size % 10) : "";
    }
    return FromUtf8((count < 0 ? "-" : " ") + image);
}

TEST(Str, WritesHundredthsOfEverySize) {
    for (int count = -1'200'000; count <= 1'200'000;
         count += (std::abs(count) < 12'000 ? 1 : 13) * testing::RoundShare()) {
        ASSERT_EQ(Str(count / 100.0), Hundredths(count));
        if (std::abs(count) < 1'000'000) {  // single precision distinguishes six digits
            ASSERT_EQ(Str(static_cast<float>(count) / 100.0F), Hundredths(count));
        }
    }
}

TEST(Str, TellsTheNeighboursOfHundredthsApart) {
    for (int count = 1; count < 1'000'000; count += 29 * testing::RoundShare()) {
        const double number = count / 100.0;
        for (const double towards : {0.0, 1e6}) {
            const double neighbour = std::nextafter(number, towards);
            ASSERT_NE(Str(neighbour), Str(number));
            ASSERT_EQ(ParseNumber(Str(neighbour)), neighbour);
        }
    }
}

TEST(Str, IsReadBackAsTheSameDouble) {
    Generator generator;
    for (int i = 0; i < testing::Rounds(200'000); ++i) {
        const auto number = std::bit_cast<double>(generator.Bits());
        if (std::isfinite(number)) {
            ASSERT_EQ(ParseNumber(Str(number)), number);
        }
        const double twips = (generator.Below(2'000'000) - 1'000'000) / 64.0;
        ASSERT_EQ(ParseNumber(Str(twips)), twips);
    }
}

TEST(Str, IsReadBackAsTheSameSingle) {
    Generator generator;
    for (int i = 0; i < testing::Rounds(200'000); ++i) {
        const auto number = std::bit_cast<float>(static_cast<std::uint32_t>(generator.Bits()));
        if (std::isfinite(number)) {
            ASSERT_EQ(std::strtof(ToUtf8(Str(number)).c_str(), nullptr), number);
        }
        const auto twips = static_cast<float>(generator.Below(2'000'000)) / 7.0F;
        ASSERT_EQ(static_cast<float>(ParseNumber(Str(twips))), twips);
    }
}

TEST(AppendStr, AddsToWhatIsThere) {
    Text text = u"x";
    AppendStr(text, 1.5);
    AppendStr(text, -2.5F);
    EXPECT_EQ(text, u"x 1.5-2.5");
}

TEST(NumberText, ShowsDoublesRoundedTo15Digits) {
    const std::pair<double, TextView> forms[] = {
        {0.0, u"0"},
        {-0.0, u"0"},
        {1.0, u"1"},
        {-120.0, u"-120"},
        {0.5, u"0.5"},
        {-0.5, u"-0.5"},
        {1234.5, u"1234.5"},
        {0.1 + 0.2, u"0.3"},
        {1.0 / 3.0, u"0.333333333333333"},
        {2.0 / 3.0, u"0.666666666666667"},
        {123456789012345.6, u"123456789012346"},
        {999999999999999.0, u"999999999999999"},
        {999999999999999.9, u"1E+15"},
        {1e15, u"1E+15"},
        {-1.25e20, u"-1.25E+20"},
        {0.0001, u"0.0001"},
        {0.00001, u"1E-05"},
        {2147483653.0, u"2147483653"},
    };
    for (const auto& [number, form] : forms) {
        EXPECT_EQ(NumberText(number), form);
    }
}

TEST(NumberText, ShowsSinglesRoundedTo7Digits) {
    const std::pair<float, TextView> forms[] = {
        {0.1F, u"0.1"},
        {8.25F, u"8.25"},
        {-0.5F, u"-0.5"},
        {1.0F / 3.0F, u"0.3333333"},
        {2.0F / 3.0F, u"0.6666667"},
        {9999999.0F, u"9999999"},
        {16777216.0F, u"1.677722E+07"},
        {1e-5F, u"1E-05"},
    };
    for (const auto& [number, form] : forms) {
        EXPECT_EQ(NumberText(number), form);
    }
}

TEST(NumberText, RoundsAsTheCLibraryDoes) {
    Generator generator;
    for (int i = 0; i < testing::Rounds(50'000); ++i) {
        char rounded[64];
        const auto single = std::bit_cast<float>(static_cast<std::uint32_t>(generator.Bits()));
        if (std::isfinite(single)) {
            std::snprintf(rounded, sizeof rounded, "%.6e", static_cast<double>(single));
            ASSERT_EQ(std::strtod(ToUtf8(NumberText(single)).c_str(), nullptr),
                      std::strtod(rounded, nullptr));
        }
        const auto number = std::bit_cast<double>(generator.Bits());
        if (std::isfinite(number)) {
            std::snprintf(rounded, sizeof rounded, "%.14e", number);
            ASSERT_EQ(std::strtod(ToUtf8(NumberText(number)).c_str(), nullptr),
                      std::strtod(rounded, nullptr));
        }
    }
}

TEST(NumberText, OverflowsWhereTheNumberIsNotFinite) {
    EXPECT_THAT([] { NumberText(std::numeric_limits<double>::infinity()); }, Raises(6));
    EXPECT_THAT([] { NumberText(std::numeric_limits<double>::quiet_NaN()); }, Raises(6));
    EXPECT_THAT([] { NumberText(-std::numeric_limits<float>::infinity()); }, Raises(6));
}

TEST(Decimal, WritesDigitsAlone) {
    const std::pair<std::int32_t, TextView> forms[] = {
        {0, u"0"},
        {7, u"7"},
        {-7, u"-7"},
        {2147483647, u"2147483647"},
        {std::numeric_limits<std::int32_t>::min(), u"-2147483648"},
    };
    for (const auto& [number, form] : forms) {
        EXPECT_EQ(Decimal(number), form);
    }
    Text text = u"n=";
    AppendDecimal(text, 32768);
    EXPECT_EQ(text, u"n=32768");
}

}  // namespace
}  // namespace lumenkit
