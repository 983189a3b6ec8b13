#include "forms/known_code_pages.h"

#include <algorithm>
#include <charconv>

#include "forms/ascii.h"

namespace lumenkit::forms {

namespace {

constexpr std::array<KnownCodePage, 16> pages = {{
    {874, "Thai", 222, {"tis-620", "thai"}, false},
    {932, "Japanese (Shift JIS)", 128, {"shift_jis", "sjis"}, true},
    {936, "Chinese, simplified (GBK)", 134, {"gbk", "gb2312"}, true},
    {949, "Korean (UHC)", 129, {"uhc", "euc-kr"}, true},
    {950, "Chinese, traditional (Big5)", 136, {"big5", "big-5"}, true},
    {1250, "Central European", 238, {}, false},
    {1251, "Cyrillic", 204, {"cyrillic"}, false},
    {1252, "Western European", 0, {"ansi"}, false},
    {1253, "Greek", 161, {"greek"}, false},
    {1254, "Turkish", 162, {"turkish"}, false},
    {1255, "Hebrew", 177, {"hebrew"}, false},
    {1256, "Arabic", 178, {"arabic"}, false},
    {1257, "Baltic", 186, {"baltic"}, false},
    {1258, "Vietnamese", 163, {"vietnamese"}, false},
    {1361, "Korean (Johab)", 130, {"johab"}, true},
    {utf8CodePage, "Unicode (UTF-8)", 0, {"utf-8", "utf8"}, false},
}};

template <typename Is>
const KnownCodePage* Find(const Is& is) {
    const auto* const found = std::ranges::find_if(pages, is);
    return found == pages.end() ? nullptr : found;
}

int NumberIn(std::string_view name) {
    for (const std::string_view prefix : {"windows-", "cp", "ms"}) {
        if (name.starts_with(prefix)) {
            name.remove_prefix(prefix.size());
            break;
        }
    }
    int number = -1;
    const char* const end = name.data() + name.size();
    const std::from_chars_result read = std::from_chars(name.data(), end, number);
    return read.ec == std::errc() && read.ptr == end ? number : -1;
}

}  // namespace

std::span<const KnownCodePage> KnownCodePages() {
    return pages;
}

const KnownCodePage* FindCodePage(int number) {
    return Find([&](const KnownCodePage& page) { return page.number == number; });
}

const KnownCodePage* FindCodePageOfCharset(int charset) {
    return charset == 0 ? nullptr
                        : Find([&](const KnownCodePage& page) { return page.charset == charset; });
}

std::optional<int> CodePageNamed(std::string_view name) {
    const std::string lower = LowerAscii(name);
    const int number = NumberIn(lower);
    const KnownCodePage* const page = Find([&](const KnownCodePage& known) {
        return known.number == number ||
               (!lower.empty() && std::ranges::find(known.names, lower) != known.names.end());
    });
    return page == nullptr ? std::nullopt : std::optional(page->number);
}

std::string NameOfCodePage(int number) {
    const KnownCodePage* const page = FindCodePage(number);
    const std::string digits = std::to_string(number);
    return page == nullptr ? digits : std::string(page->title) + ", code page " + digits;
}

}  // namespace lumenkit::forms
