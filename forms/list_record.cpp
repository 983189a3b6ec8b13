#include "forms/list_record.h"

#include <algorithm>
#include <limits>
#include <optional>

#include "forms/companion.h"
#include "forms/little_endian.h"

namespace lumenkit::forms {

namespace {

constexpr std::size_t shortSize = 2;
constexpr std::size_t longSize = 4;
constexpr std::size_t mostCount = std::numeric_limits<std::uint16_t>::max();

// The parts of the record of a list, or nullopt for another record.
struct ListParts {
    std::size_t second = 0;
    std::vector<std::string_view> items;
};

std::optional<std::size_t> TakeShort(std::string_view& bytes) {
    if (bytes.size() < shortSize) {
        return std::nullopt;
    }
    const std::size_t number = LittleEndian(bytes.substr(0, shortSize));
    bytes.remove_prefix(shortSize);
    return number;
}

std::optional<std::string_view> TakeItem(std::string_view& bytes) {
    const std::optional<std::size_t> length = TakeShort(bytes);
    if (!length || *length > bytes.size()) {
        return std::nullopt;
    }
    const std::string_view item = bytes.substr(0, *length);
    bytes.remove_prefix(*length);
    return item;
}

std::optional<ListParts> PartsOf(std::string_view record) {
    const std::optional<std::size_t> count = TakeShort(record);
    if (!count || *count == 0) {
        return count ? std::optional(ListParts()) : std::nullopt;
    }
    const std::optional<std::size_t> second = TakeShort(record);
    if (!second) {
        return std::nullopt;
    }
    ListParts parts{.second = *second, .items = {}};
    while (parts.items.size() < *count) {
        const std::optional<std::string_view> item = TakeItem(record);
        if (!item) {
            return std::nullopt;
        }
        parts.items.push_back(*item);
    }
    return parts;
}

template <typename Items>
std::size_t SecondOf(const Items& items) {
    std::size_t longest = 0;
    for (const auto& item : items) {
        longest = std::max(longest, item.size());
    }
    return std::min(longest + shortSize, mostCount);
}

void RequireFew(std::size_t count) {
    if (count > mostCount) {
        throw BadRecord("a list has at most " + std::to_string(mostCount) + " items");
    }
}

bool IsDecimal(std::string_view text) {
    return !text.empty() && std::ranges::all_of(text, [](char letter) {
        return (letter >= '0' && letter <= '9') || letter == '-';
    });
}

// Whether the record is a list of numbers in digits.
bool HasDigits(std::string_view record) {
    const std::optional<ListParts> parts = PartsOf(record);
    return parts && !parts->items.empty() && std::ranges::all_of(parts->items, IsDecimal);
}

}  // namespace

std::vector<Text> ReadListRecord(std::string_view record, const CodePage& page) {
    const std::optional<ListParts> parts = PartsOf(record);
    if (!parts) {
        throw BadRecord("expected a list in the companion, found " + std::to_string(record.size()) +
                        " other bytes");
    }
    std::vector<Text> items;
    for (const std::string_view item : parts->items) {
        items.push_back(page.Decode(item));
        if (page.Encode(items.back()) != item) {
            throw BadRecord("an item would be written with other bytes");
        }
    }
    return items;
}

std::string WriteListRecord(const std::vector<Text>& items, const CodePage& page,
                            std::string_view former) {
    RequireFew(items.size());
    std::vector<std::string> encoded;
    for (const Text& item : items) {
        encoded.push_back(page.Encode(item));
        if (encoded.back().size() > mostCount) {
            throw BadRecord("an item has at most " + std::to_string(mostCount) + " bytes");
        }
    }
    std::string record;
    AppendLittleEndian(record, encoded.size(), shortSize);
    if (encoded.empty()) {
        return record;
    }
    const std::optional<ListParts> known = PartsOf(former);
    const bool isOther = known && !known->items.empty() && known->second != SecondOf(known->items);
    AppendLittleEndian(record, isOther ? known->second : SecondOf(encoded), shortSize);
    for (const std::string& item : encoded) {
        AppendLittleEndian(record, item.size(), shortSize);
        record += item;
    }
    return record;
}

std::vector<std::int32_t> ReadItemDataRecord(std::string_view record, std::size_t count) {
    const bool hasDigits = HasDigits(record);
    const std::optional<std::size_t> stated = TakeShort(record);
    if (hasDigits || stated != count || record.size() < count * longSize) {
        throw BadRecord("expected " + std::to_string(count) +
                        " numbers of four bytes in the companion");
    }
    std::vector<std::int32_t> numbers;
    for (std::size_t index = 0; index < count; ++index) {
        const std::string_view bytes = record.substr(index * longSize, longSize);
        numbers.push_back(static_cast<std::int32_t>(LittleEndian(bytes)));
    }
    return numbers;
}

std::string WriteItemDataRecord(const std::vector<std::int32_t>& numbers) {
    RequireFew(numbers.size());
    std::string record;
    AppendLittleEndian(record, numbers.size(), shortSize);
    for (const std::int32_t number : numbers) {
        AppendLittleEndian(record, static_cast<std::uint32_t>(number), longSize);
    }
    return record;
}

}  // namespace lumenkit::forms
