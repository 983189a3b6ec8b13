#include "forms/code_page.h"

#include <algorithm>
#include <stdexcept>

namespace lumenkit::forms {

namespace {

constexpr unsigned firstUpper = 128;

struct Page {
    int number;
    std::array<char16_t, 128> upper;
};

constexpr std::array<Page, 9> pages = {{
#include "forms/code_page_tables.inc"
}};

const Page& Find(int number) {
    const auto* page = std::find_if(std::begin(pages), std::end(pages),
                                    [&](const Page& known) { return known.number == number; });
    if (page == std::end(pages)) {
        throw std::invalid_argument("code page " + std::to_string(number) +
                                    " is not known; 1250 to 1258 are, and 65001 (UTF-8)");
    }
    return *page;
}

}  // namespace

CodePage::CodePage(int number) : number_(number), upper_(&Find(number).upper) {
    for (unsigned i = 0; i < upper_->size(); ++i) {
        bytes_[i] = {(*upper_)[i], static_cast<char>(firstUpper + i)};
    }
    std::sort(bytes_.begin(), bytes_.end());
}

Text CodePage::Decode(std::string_view bytes) const {
    Text text(bytes.size(), u'\0');
    std::transform(bytes.begin(), bytes.end(), text.begin(), [&](char byte) {
        const auto number = static_cast<unsigned char>(byte);
        return number < firstUpper ? static_cast<char16_t>(number) : (*upper_)[number - firstUpper];
    });
    return text;
}

std::optional<char> CodePage::Encode(char16_t unit) const {
    if (unit < firstUpper) {
        return static_cast<char>(unit);
    }
    const auto found =
        std::lower_bound(bytes_.begin(), bytes_.end(), unit,
                         [](const auto& entry, char16_t sought) { return entry.first < sought; });
    if (found == bytes_.end() || found->first != unit) {
        return std::nullopt;
    }
    return found->second;
}

}  // namespace lumenkit::forms
