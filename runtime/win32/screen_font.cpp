#include "runtime/win32/screen_font.h"

#include <algorithm>
#include <limits>

#include "frame/runtime_error.h"
#include "runtime/win32/drawn_text.h"
#include "runtime/win32/wide_text.h"

namespace lumenkit::win32 {

namespace {

constexpr std::int16_t unknown = -1;

// NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): one for the process
int fontCount = 0;

struct Range {
    char16_t first;
    char16_t last;
};

// Scripts whose units are placed side by side. They contain no combining marks, no surrogates, and
// no units that join their neighbours or run from right to left.
constexpr std::array simpleRanges = {
    Range{0x0020, 0x007E}, Range{0x00A0, 0x00AC}, Range{0x00AE, 0x02FF}, Range{0x0370, 0x0482},
    Range{0x048A, 0x0556}, Range{0x1E00, 0x1FFF}, Range{0x2010, 0x2027}, Range{0x2030, 0x205E},
    Range{0x2070, 0x20CF}, Range{0x2100, 0x2BFF}, Range{0x3000, 0x3029}, Range{0x3030, 0x3096},
    Range{0x309B, 0x312F}, Range{0x3200, 0x9FFF}, Range{0xAC00, 0xD7A3}, Range{0xF900, 0xFAFF},
    Range{0xFF01, 0xFFDC}, Range{0xFFE0, 0xFFE6},
};

bool IsSimple(char16_t unit) {
    return std::ranges::any_of(simpleRanges, [&](const Range& range) {
        return unit >= range.first && unit <= range.last;
    });
}

}  // namespace

ScreenFont::ScreenFont(const LOGFONTW& design)
    : design_(design), font_(CreateFontIndirectW(&design)), device_(CreateCompatibleDC(nullptr)) {
    if (font_ == nullptr || device_ == nullptr) {
        Raise(ErrorNumber::OutOfMemory);
    }
    SelectObject(device_.get(), font_.get());
    TEXTMETRICW metrics = {};
    GetTextMetricsW(device_.get(), &metrics);
    lineHeight_ = static_cast<int>(metrics.tmHeight);
    ascent_ = static_cast<int>(metrics.tmAscent);
    averageWidth_ = static_cast<int>(metrics.tmAveCharWidth);
    ++fontCount;
}

ScreenFont::~ScreenFont() {
    --fontCount;
}

int ScreenFont::Count() {
    return fontCount;
}

int ScreenFont::Width(TextView text) const {
    return Measure(text, [](int) {});
}

void ScreenFont::Ends(TextView text, std::span<int> ends) const {
    int* next = ends.data();
    Measure(text, [&](int end) { *next++ = end; });
}

// Words and blanks are measured separately, so that a text can be broken at blanks without
// measuring it again.
template <typename Put>
int ScreenFont::Measure(TextView text, Put&& put) const {
    int width = 0;
    while (!text.empty()) {
        const std::size_t length =
            text.front() == blank ? 1 : std::min(text.find(blank), text.size());
        width = MeasureWord(text.substr(0, length), width, put);
        text.remove_prefix(length);
    }
    return width;
}

template <typename Put>
int ScreenFont::MeasureWord(TextView word, int before, Put&& put) const {
    const auto widthOf = [&](char16_t unit) {
        const char16_t drawn = IsControl(unit) ? blank : unit;
        return PageOf(drawn)[drawn & 255U];
    };
    if (std::ranges::any_of(word, [&](char16_t unit) { return widthOf(unit) == unknown; })) {
        const int width = AskPlatform(word);
        for (std::size_t i = 0; i + 1 < word.size(); ++i) {
            put(before + std::min(scratch_[i], width));
        }
        put(before + width);
        return before + width;
    }
    int end = before;
    for (const char16_t unit : word) {
        end += widthOf(unit);
        put(end);
    }
    return end;
}

const ScreenFont::Page& ScreenFont::PageOf(char16_t unit) const {
    const unsigned number = unit >> 8U;
    std::unique_ptr<Page>& page = pages_[number];
    if (page == nullptr) {
        page = NewPage(number);
    }
    return *page;
}

// A unit has a fixed width if it is equally wide when the order of its neighbours is reversed.
std::unique_ptr<ScreenFont::Page> ScreenFont::NewPage(unsigned number) const {
    auto page = std::make_unique<Page>();
    page->fill(unknown);
    Text units;
    for (unsigned low = 0; low < page->size(); ++low) {
        const auto unit = static_cast<char16_t>(number * 256U + low);
        if (IsSimple(unit)) {
            units += unit;
        }
    }
    const auto widthAt = [&](std::size_t at) {
        return scratch_[at] - (at == 0 ? 0 : scratch_[at - 1]);
    };
    const auto fits = [](int width) {
        return width >= 0 && width <= std::numeric_limits<std::int16_t>::max();
    };
    AskPlatform(units);
    for (std::size_t i = 0; i < units.size(); ++i) {
        const int width = widthAt(i);
        (*page)[units[i] & 255U] = fits(width) ? static_cast<std::int16_t>(width) : unknown;
    }
    std::ranges::reverse(units);
    AskPlatform(units);
    for (std::size_t i = 0; i < units.size(); ++i) {
        std::int16_t& known = (*page)[units[i] & 255U];
        known = known == widthAt(i) ? known : unknown;
    }
    return page;
}

// Measures the text as it is drawn. The extent of the whole text may be larger, because it includes
// the overhang of the last unit.
int ScreenFont::AskPlatform(TextView text) const {
    scratch_.assign(text.size(), 0);
    int width = 0;
    for (std::size_t at = 0; at < text.size(); at += longestAtOnce) {
        const TextView part = DrawnText(text.substr(at, longestAtOnce), drawn_);
        const std::span<int> ends = std::span(scratch_).subspan(at, part.size());
        SIZE size = {};
        GetTextExtentExPointW(device_.get(), AsWide(part.data()), static_cast<int>(part.size()), 0,
                              nullptr, ends.data(), &size);
        for (int& end : ends) {
            end += width;
        }
        width = ends.back();
    }
    return width;
}

}  // namespace lumenkit::win32
