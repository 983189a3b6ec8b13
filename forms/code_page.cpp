#include "forms/code_page.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <map>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <vector>

#include "forms/known_code_pages.h"
#include "forms/system_code_page.h"

namespace lumenkit::forms {

namespace {

constexpr unsigned firstUpper = 0x80;
constexpr std::size_t upperBytes = 128;
constexpr std::size_t allBytes = 256;
constexpr std::size_t allUnits = 0x10000;
constexpr unsigned bitsOfAByte = 8;

struct OneBytePage {
    int number;
    std::array<char16_t, upperBytes> upper;
};

constexpr std::array<OneBytePage, 10> oneBytePages = {{
#include "forms/code_page_tables.inc"
}};

unsigned ByteAt(std::string_view bytes, std::size_t index) {
    return static_cast<unsigned char>(bytes[index]);
}

// The units of bytes that a page of pairs does not define. No page has characters there.
constexpr char16_t firstKept = u'\xF880';
constexpr char16_t lastKept = u'\xF8FF';

char16_t Kept(unsigned byte) {
    return static_cast<char16_t>(firstKept + byte - firstUpper);
}
bool IsKept(char16_t unit) {
    return unit >= firstKept && unit <= lastKept;
}
// Windows maps undefined bytes to control characters and to private-use characters.
bool IsUndefined(char16_t unit) {
    constexpr char16_t lastControl = u'\x9F';
    return (unit >= firstUpper && unit <= lastControl) || IsKept(unit);
}

}  // namespace

// All characters of a page.
struct CodePage::Table {
    explicit Table(int pageNumber) : number(pageNumber) {
        for (unsigned byte = 0; byte < firstUpper; ++byte) {
            codes[byte] = static_cast<std::uint16_t>(byte);
        }
    }

    bool IsLead(unsigned byte) const { return byte >= firstUpper && singles[byte] == 0; }
    char16_t& Pair(unsigned lead, unsigned trail) {
        return pairs[(lead - firstUpper) * allBytes + trail];
    }
    // 0 if there is none.
    char16_t Pair(unsigned lead, unsigned trail) const {
        return pairs[(lead - firstUpper) * allBytes + trail];
    }
    void AddSingle(unsigned byte, char16_t unit) {
        singles[byte] = unit;
        codes[unit] = static_cast<std::uint16_t>(byte);
    }
    void AddPairs(const SystemCodePage& system, unsigned lead);
    void AddPair(const SystemCodePage& system, unsigned lead, unsigned trail);

    int number;
    std::array<char16_t, allBytes> singles = {};  // 0 for lead bytes; unused below 128
    std::vector<char16_t> pairs;                  // empty for a page with one byte per character
    // The bytes of each unit, a lead byte in the upper half. 0 if it has none, and for U+0000.
    std::vector<std::uint16_t> codes = std::vector<std::uint16_t>(allUnits);
};

void CodePage::Table::AddPair(const SystemCodePage& system, unsigned lead, unsigned trail) {
    const std::array<char, 2> bytes = {static_cast<char>(lead), static_cast<char>(trail)};
    const std::optional<char16_t> unit = system.Decode({bytes.data(), bytes.size()});
    if (!unit || *unit < firstUpper || IsUndefined(*unit)) {
        return;
    }
    Pair(lead, trail) = *unit;
    std::uint16_t& code = codes[*unit];
    const auto added = static_cast<std::uint16_t>(lead << bitsOfAByte | trail);
    // Of several byte sequences, the system says which one is written.
    const std::optional<std::string> written = code == 0 ? std::nullopt : system.Encode(*unit);
    if (code == 0 || (written && *written == std::string_view(bytes.data(), bytes.size()))) {
        code = added;
    }
}

void CodePage::Table::AddPairs(const SystemCodePage& system, unsigned lead) {
    for (unsigned trail = 0; trail < allBytes; ++trail) {
        AddPair(system, lead, trail);
    }
}

// Converts every character of the page once, so that no text depends on the state of a converter.
std::unique_ptr<const CodePage::Table> CodePage::MakeTable(int number) {
    auto table = std::make_unique<Table>(number);
    const auto* const oneByte = std::ranges::find(oneBytePages, number, &OneBytePage::number);
    if (oneByte != oneBytePages.end()) {
        for (unsigned byte = firstUpper; byte < allBytes; ++byte) {
            table->AddSingle(byte, oneByte->upper[byte - firstUpper]);
        }
        return table;
    }
    const SystemCodePage system(number);
    table->pairs.resize(upperBytes * allBytes);
    for (unsigned byte = firstUpper; byte < allBytes; ++byte) {
        const char single = static_cast<char>(byte);
        const std::optional<char16_t> unit = system.Decode({&single, 1});
        if (unit && *unit >= firstUpper && !IsUndefined(*unit)) {
            table->AddSingle(byte, *unit);
            continue;
        }
        table->AddPairs(system, byte);
        const auto begin =
            table->pairs.begin() + static_cast<std::ptrdiff_t>((byte - firstUpper) * allBytes);
        const bool isLead = std::any_of(begin, begin + allBytes, [](char16_t u) { return u != 0; });
        if (!isLead) {
            table->singles[byte] = Kept(byte);
        }
    }
    return table;
}

const CodePage::Table& CodePage::TableOf(int number) {
    static std::mutex mutex;
    static std::map<int, std::unique_ptr<const Table>> tables;
    const std::lock_guard lock(mutex);
    auto found = tables.find(number);
    if (found == tables.end()) {
        const KnownCodePage* const known = FindCodePage(number);
        if (known == nullptr || number == utf8CodePage) {
            throw std::invalid_argument("code page " + std::to_string(number) +
                                        " is not known; these are: " + codePageNumbers);
        }
        found = tables.emplace(number, MakeTable(number)).first;
    }
    return *found->second;
}

CodePage::CodePage(int number) : table_(&TableOf(number)) {}

int CodePage::Number() const {
    return table_->number;
}

Text CodePage::Decode(std::string_view bytes) const {
    Text text;
    text.reserve(bytes.size());
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const unsigned byte = ByteAt(bytes, i);
        if (byte < firstUpper) {
            text += static_cast<char16_t>(byte);
        } else if (!table_->IsLead(byte)) {
            text += table_->singles[byte];
        } else {
            const unsigned trail = i + 1 < bytes.size() ? ByteAt(bytes, i + 1) : 0;
            if (const char16_t unit = table_->Pair(byte, trail); unit != 0) {
                text += unit;
                ++i;
            } else if (trail >= firstUpper) {
                text += {Kept(byte), Kept(trail)};
                ++i;
            } else {
                text += Kept(byte);  // the next byte is a character by itself
            }
        }
    }
    return text;
}

std::string CodePage::Encode(TextView text) const {
    std::string bytes;
    bytes.reserve(text.size());
    bool hasKept = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i];
        const unsigned code = table_->codes[unit];
        if (code >= allBytes) {
            bytes += static_cast<char>(code >> bitsOfAByte);
        }
        if (code != 0 || unit == 0) {
            bytes += static_cast<char>(code);
        } else if (IsKept(unit) && !HasOneByteEach()) {
            bytes += static_cast<char>(unit - firstKept + firstUpper);
            hasKept = true;
        } else {
            throw Unmappable{i, "Windows-" + std::to_string(Number())};
        }
    }
    if (hasKept) {
        RequireSame(text, bytes);
    }
    return bytes;
}

// A kept byte and the character after it may be a pair of the page.
void CodePage::RequireSame(TextView text, std::string_view bytes) const {
    const Text again = Decode(bytes);
    const auto different = std::ranges::mismatch(text, again).in1;
    if (different != text.end()) {
        throw Unmappable{static_cast<std::size_t>(different - text.begin()),
                         "Windows-" + std::to_string(Number())};
    }
}

bool CodePage::HasOneByteEach() const {
    return table_->pairs.empty();
}

bool CodePage::Defines(std::string_view bytes) const {
    return std::ranges::none_of(Decode(bytes), IsUndefined);
}

}  // namespace lumenkit::forms
