#include "forms/system_code_page.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <memory>
#include <stdexcept>

#ifdef _WIN32
#include <windows.h>
#else
#include <iconv.h>
#endif

namespace lumenkit::forms {

namespace {

[[noreturn]] void RefusePage(int number) {
    throw std::invalid_argument("the system cannot convert code page " + std::to_string(number));
}

}  // namespace

#ifdef _WIN32

struct SystemCodePage::Converters {};

SystemCodePage::SystemCodePage(int number) : number_(number) {
    if (IsValidCodePage(static_cast<UINT>(number)) == FALSE) {
        RefusePage(number);
    }
}

SystemCodePage::~SystemCodePage() = default;

std::optional<char16_t> SystemCodePage::Decode(std::string_view bytes) const {
    std::array<wchar_t, 2> units = {};
    const int count = MultiByteToWideChar(static_cast<UINT>(number_), MB_ERR_INVALID_CHARS,
                                          bytes.data(), static_cast<int>(bytes.size()),
                                          units.data(), static_cast<int>(units.size()));
    if (count != 1) {
        return std::nullopt;
    }
    return static_cast<char16_t>(units[0]);
}

std::optional<std::string> SystemCodePage::Encode(char16_t unit) const {
    const auto wide = static_cast<wchar_t>(unit);
    std::array<char, 4> bytes = {};
    BOOL isReplaced = FALSE;
    const int count =
        WideCharToMultiByte(static_cast<UINT>(number_), WC_NO_BEST_FIT_CHARS, &wide, 1,
                            bytes.data(), static_cast<int>(bytes.size()), nullptr, &isReplaced);
    if (count <= 0 || isReplaced != FALSE) {
        return std::nullopt;
    }
    return std::string(bytes.data(), static_cast<std::size_t>(count));
}

#else

namespace {

// The characters of users, which Windows maps to the Private Use Area and iconv, except for page
// 932, does not know. A row is a rectangle of lead and trail bytes; the trail bytes are in one
// or two ranges.
struct UserArea {
    int page;
    unsigned char firstLead;
    unsigned char lastLead;
    std::array<unsigned char, 4> trails;  // first, last, first, last; 0: one range
    char16_t first;
};

constexpr std::array<UserArea, 11> userAreas = {{
    {936, 0xAA, 0xAF, {0xA1, 0xFE, 0, 0}, 0xE000},
    {936, 0xF8, 0xFE, {0xA1, 0xFE, 0, 0}, 0xE234},
    {936, 0xA1, 0xA7, {0x40, 0x7E, 0x80, 0xA0}, 0xE4C6},
    {949, 0xC9, 0xC9, {0xA1, 0xFE, 0, 0}, 0xE000},
    {949, 0xFE, 0xFE, {0xA1, 0xFE, 0, 0}, 0xE05E},
    {950, 0xFA, 0xFE, {0x40, 0x7E, 0xA1, 0xFE}, 0xE000},
    {950, 0x8E, 0xA0, {0x40, 0x7E, 0xA1, 0xFE}, 0xE311},
    {950, 0x81, 0x8D, {0x40, 0x7E, 0xA1, 0xFE}, 0xEEB8},
    {950, 0xC6, 0xC6, {0xA1, 0xFE, 0, 0}, 0xF6B1},
    {950, 0xC7, 0xC8, {0x40, 0x7E, 0xA1, 0xFE}, 0xF70F},
    {1361, 0xD8, 0xD8, {0x31, 0x7E, 0x91, 0xFE}, 0xE000},
}};

std::size_t LengthOf(unsigned char first, unsigned char last) {
    return last == 0 ? 0 : std::size_t{last} - first + 1U;
}

std::optional<char16_t> DecodeUsers(int page, std::string_view bytes) {
    if (bytes.size() != 2) {
        return std::nullopt;
    }
    const auto lead = static_cast<unsigned char>(bytes[0]);
    const auto trail = static_cast<unsigned char>(bytes[1]);
    for (const UserArea& area : userAreas) {
        const auto& [low, lowEnd, high, highEnd] = area.trails;
        const bool isLow = trail >= low && trail <= lowEnd;
        if (area.page != page || lead < area.firstLead || lead > area.lastLead ||
            (!isLow && (highEnd == 0 || trail < high || trail > highEnd))) {
            continue;
        }
        const std::size_t lowCount = LengthOf(low, lowEnd);
        const std::size_t column = isLow ? std::size_t{trail} - low : lowCount + trail - high;
        const std::size_t row = std::size_t{lead} - area.firstLead;
        return static_cast<char16_t>(area.first + row * (lowCount + LengthOf(high, highEnd)) +
                                     column);
    }
    return std::nullopt;
}

// One direction of iconv, for one character at a time.
class Converter {
 public:
    Converter(const std::string& to, const std::string& from)
        : handle_(iconv_open(to.c_str(), from.c_str())) {}
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;
    ~Converter() {
        if (IsOpen()) {
            iconv_close(handle_);
        }
    }

    bool IsOpen() const {
        return handle_ != reinterpret_cast<iconv_t>(-1);  // NOLINT: as iconv_open says it
    }

    // Returns nullopt unless the whole input is converted.
    std::optional<std::string> Convert(std::string_view input) {
        std::string source(input);
        std::array<char, 16> converted = {};
        char* from = source.data();
        char* to = converted.data();
        std::size_t left = source.size();
        std::size_t room = converted.size();
        iconv(handle_, nullptr, nullptr, nullptr, nullptr);
        constexpr auto failed = static_cast<std::size_t>(-1);
        if (iconv(handle_, &from, &left, &to, &room) != 0 ||
            iconv(handle_, nullptr, nullptr, &to, &room) == failed) {
            return std::nullopt;
        }
        return std::string(converted.data(), to);
    }

 private:
    iconv_t handle_;
};

}  // namespace

struct SystemCodePage::Converters {
    explicit Converters(const std::string& page)
        : toUnicode("UTF-16LE", page), fromUnicode(page, "UTF-16LE") {}

    Converter toUnicode;
    Converter fromUnicode;
};

// The tables of glibc with the names CP... agree with those of Windows; GB18030 and BIG5-HKSCS do
// not, and SHIFT_JIS has a yen sign in place of the backslash.
SystemCodePage::SystemCodePage(int number)
    : number_(number), converters_(std::make_unique<Converters>("CP" + std::to_string(number))) {
    if (!converters_->toUnicode.IsOpen() || !converters_->fromUnicode.IsOpen()) {
        RefusePage(number);
    }
}

SystemCodePage::~SystemCodePage() = default;

std::optional<char16_t> SystemCodePage::Decode(std::string_view bytes) const {
    const std::optional<std::string> units = converters_->toUnicode.Convert(bytes);
    if (!units) {
        return DecodeUsers(number_, bytes);
    }
    if (units->size() != 2) {
        return std::nullopt;
    }
    const auto low = static_cast<unsigned char>((*units)[0]);
    const auto high = static_cast<unsigned char>((*units)[1]);
    constexpr unsigned bitsOfAByte = 8;
    return static_cast<char16_t>(low | high << bitsOfAByte);
}

std::optional<std::string> SystemCodePage::Encode(char16_t unit) const {
    constexpr unsigned bitsOfAByte = 8;
    const std::string units = {static_cast<char>(unit & 0xFF),
                               static_cast<char>(unit >> bitsOfAByte)};
    return converters_->fromUnicode.Convert(units);
}

#endif

}  // namespace lumenkit::forms
