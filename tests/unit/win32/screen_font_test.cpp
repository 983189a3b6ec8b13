#include "runtime/win32/screen_font.h"

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "frame/utf8.h"
#include "runtime/win32/font_cache.h"
#include "runtime/win32/wide_text.h"
#include "tests/support/test_seed.h"

namespace lumenkit::win32 {
namespace {

LOGFONTW Design(const wchar_t* name, int height, int weight = FW_NORMAL, bool italic = false) {
    LOGFONTW design = {};
    design.lfHeight = height;
    design.lfWeight = weight;
    design.lfItalic = italic ? 1 : 0;
    std::copy_n(name, std::wcslen(name), design.lfFaceName);
    return design;
}

// Returns the extent that the platform measures for the whole text, on a new device context.
SIZE Extent(const ScreenFont& font, TextView text) {
    const HDC device = CreateCompatibleDC(nullptr);
    const HGDIOBJ former = SelectObject(device, font.Handle());
    SIZE size = {};
    GetTextExtentPoint32W(device, AsWide(text.data()), static_cast<int>(text.size()), &size);
    SelectObject(device, former);
    DeleteDC(device);
    return size;
}

std::vector<LOGFONTW> Designs() {
    std::vector<LOGFONTW> designs;
    for (const wchar_t* name : {L"Arial", L"Times New Roman", L"Courier New", L"Tahoma",
                                L"MS Sans Serif", L"Courier", L"System"}) {
        for (const int height : {-9, -11, -13, -32, -77}) {
            designs.push_back(Design(name, height));
        }
        designs.push_back(Design(name, -13, FW_BOLD));
        designs.push_back(Design(name, -13, FW_NORMAL, true));
    }
    return designs;
}

std::string NameOf(const LOGFONTW& design) {
    std::string name;
    for (const wchar_t* at = design.lfFaceName; *at != L'\0'; ++at) {
        name += static_cast<char>(*at);
    }
    return name + std::to_string(design.lfHeight) + (design.lfWeight > 550 ? " bold" : "") +
           (design.lfItalic != 0 ? " italic" : "");
}

// Returns units of the whole plane, but mostly common letters and blanks.
Text RandomText(std::mt19937& random) {
    std::uniform_int_distribution<int> kind(0, 9);
    std::uniform_int_distribution<int> ascii(0x20, 0x7E);
    std::uniform_int_distribution<int> european(0xA0, 0x52F);
    std::uniform_int_distribution<int> any(0x01, 0xFFFF);
    Text text;
    for (int length = std::uniform_int_distribution<int>(0, 40)(random); length > 0; --length) {
        const int chosen = kind(random);
        const int unit = chosen < 6   ? ascii(random)
                         : chosen < 8 ? european(random)
                         : chosen < 9 ? int{blank}
                                      : any(random);
        text += static_cast<char16_t>(unit);
    }
    return text;
}

// Control characters are drawn as blanks.
Text Drawn(Text text) {
    std::ranges::replace_if(text, IsControl, blank);
    return text;
}

TEST(ScreenFont, MeasuresAsThePlatformDoes) {
    for (const LOGFONTW& design : Designs()) {
        const ScreenFont font(design);
        for (const TextView text :
             {TextView(u"Typography: AVAWA To Ta fi ffl 1.0 -- \"quoted\""),
              TextView(u"Gr\u00FC\u00DFe \u20AC 5 \u2013 \u0416\u0438\u0432\u0438 \u03A9"),
              TextView(u" two  blanks "), TextView(u"x"), TextView(u"")}) {
            EXPECT_EQ(font.Width(text), Extent(font, text).cx) << NameOf(design);
        }
        EXPECT_EQ(font.LineHeight(), Extent(font, u"Ag").cy) << NameOf(design);
    }
}

// The platform measures the words that the tables do not cover. The width is the sum over words and
// blanks.
TEST(ScreenFont, MeasuresWordsAndBlanksEachByItself) {
    std::mt19937 random(testing::TestSeed());
    for (const LOGFONTW& design : Designs()) {
        const ScreenFont font(design);
        for (int round = 0; round < 40; ++round) {
            const Text text = RandomText(random);
            const Text drawn = Drawn(text);
            LONG expected = 0;
            for (std::size_t at = 0; at < drawn.size();) {
                const std::size_t end =
                    drawn[at] == blank ? at + 1 : std::min(drawn.find(blank, at), drawn.size());
                expected += Extent(font, TextView(drawn).substr(at, end - at)).cx;
                at = end;
            }
            ASSERT_EQ(font.Width(text), expected) << NameOf(design) << ": " << ToUtf8(text);
        }
    }
}

TEST(ScreenFont, TheEndsServeEveryBreakAtABlank) {
    std::mt19937 random(testing::TestSeed());
    for (const LOGFONTW& design : {Design(L"Arial", -13), Design(L"MS Sans Serif", -11)}) {
        const ScreenFont font(design);
        for (int round = 0; round < 200; ++round) {
            const Text text = RandomText(random);
            std::vector<int> ends(text.size());
            font.Ends(text, ends);
            EXPECT_TRUE(std::ranges::is_sorted(ends));
            const auto isEdge = [&](std::size_t at) {
                return at == 0 || at == text.size() || text[at] == blank || text[at - 1] == blank;
            };
            for (std::size_t begin = 0; begin < text.size(); ++begin) {
                for (std::size_t end = begin + 1; end <= text.size(); ++end) {
                    if (isEdge(begin) && isEdge(end)) {
                        const int before = begin == 0 ? 0 : ends[begin - 1];
                        ASSERT_EQ(ends[end - 1] - before,
                                  font.Width(TextView(text).substr(begin, end - begin)));
                    }
                }
            }
        }
    }
}

TEST(ScreenFont, MeasuresLongTexts) {
    const ScreenFont font(Design(L"Arial", -13));
    EXPECT_EQ(font.Width(Text(30000, u'm')), 30000 * font.Width(u"m"));
    // Combining marks: one long word that the tables do not cover.
    Text marked;
    for (int i = 0; i < 10000; ++i) {
        marked += u"e\u0301";
    }
    std::vector<int> ends(marked.size());
    font.Ends(marked, ends);
    EXPECT_EQ(ends.back(), font.Width(marked));
    EXPECT_GE(font.Width(marked), 10000 * font.Width(u"e"));
    EXPECT_TRUE(std::ranges::is_sorted(ends));
}

TEST(FontCache, MakesAFontOnceAndReleasesAllAtTheEnd) {
    const int before = ScreenFont::Count();
    {
        const ThreadShared<FontCache> cache;
        const ThreadShared<FontCache> same;
        const ScreenFontRef font = cache->Find(Design(L"Arial", -13));
        EXPECT_EQ(same->Find(Design(L"Arial", -13)), font);
        EXPECT_EQ(same->Find(font->Handle()), font) << "by a handle, as others own it";
        EXPECT_NE(same->Find(Design(L"Arial", -13, FW_BOLD)), font);
        EXPECT_EQ(ScreenFont::Count(), before + 2);
        LOGFONTW unclean = Design(L"Arial", -13);
        unclean.lfFaceName[20] = L'?';  // after the end of the name
        EXPECT_EQ(same->Find(unclean), font);
    }
    EXPECT_EQ(ScreenFont::Count(), before);
}

TEST(FontCache, DropsWhatNobodyUses) {
    const ThreadShared<FontCache> cache;
    const ScreenFontRef used = cache->Find(Design(L"Arial", -13));
    for (int height = 1; height < 500; ++height) {
        cache->Find(Design(L"Arial", -height));
    }
    EXPECT_LT(ScreenFont::Count(), 100);
    EXPECT_EQ(cache->Find(Design(L"Arial", -13)), used);
}

}  // namespace
}  // namespace lumenkit::win32
