#include "apps/lumenform/form_view/text_list.h"

#include <cstddef>
#include <optional>

#include "forms/code_page.h"
#include "forms/encoding.h"

namespace lumenkit::lumenform {

namespace {

std::optional<std::size_t> TakeNumber(std::string_view& bytes) {
    if (bytes.size() < 2) {
        return std::nullopt;
    }
    const auto low = static_cast<unsigned char>(bytes[0]);
    const auto high = static_cast<unsigned char>(bytes[1]);
    bytes.remove_prefix(2);
    return low + std::size_t{high} * 256;
}

}  // namespace

std::vector<Text> ItemsOf(std::string_view record, int codePage) {
    const forms::CodePage page(codePage == forms::utf8CodePage ? forms::defaultCodePage : codePage);
    std::vector<Text> items;
    const std::optional<std::size_t> count = TakeNumber(record);
    static_cast<void>(TakeNumber(record));
    while (count && items.size() < *count) {
        const std::optional<std::size_t> length = TakeNumber(record);
        if (!length || *length > record.size()) {
            break;
        }
        items.push_back(page.Decode(record.substr(0, *length)));
        record.remove_prefix(*length);
    }
    return items;
}

}  // namespace lumenkit::lumenform
