// The items of list boxes and combo boxes in the binary companion.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "forms/code_page.h"
#include "frame/text.h"

namespace lumenkit::forms {

/// Returns the items in the record of a property List: their number, a second number, and for each
/// item its length and its bytes. All numbers have two bytes. The record of no items is only their
/// number. Bytes that follow the items are ignored. Throws BadRecord for another record, and for
/// one whose items would be written with other bytes.
std::vector<Text> ReadListRecord(std::string_view record, const CodePage& page);

/// Returns the record of the items. The second number is the length of the longest item and 2
/// more. If `former`, the record that is replaced, has another second number than that, the number
/// is kept. Throws BadRecord for too many items and for a too long one, Unmappable for a text that
/// the page cannot represent.
std::string WriteListRecord(const std::vector<Text>& items, const CodePage& page,
                            std::string_view former);

/// Returns the numbers in the record of a property ItemData: how many they are, in two bytes, and
/// each in four bytes. `count` is the number that is expected. Throws BadRecord for another record.
std::vector<std::int32_t> ReadItemDataRecord(std::string_view record, std::size_t count);

/// Throws BadRecord for too many numbers.
std::string WriteItemDataRecord(const std::vector<std::int32_t>& numbers);

}  // namespace lumenkit::forms
