#include "vlabelcaption/caption_shortcuts.h"

#include <array>
#include <vector>

#include <gtest/gtest.h>

#include "frame/utf8.h"

namespace lumenkit {

namespace {

TEST(MarkupKeysHelp, HasElevenLines) {
    const std::array<TextView, 11> lines = {
        u"Ctrl + S \t=  Select Next Word/Command",
        u"",
        u"Ctrl + B \t=  Insert  |B:1|",
        u"Ctrl + N \t=  Insert  |B:0|",
        u"Ctrl + I \t=  Insert  |i:1|",
        u"Ctrl + O \t=  Insert  |i:0|",
        u"Ctrl + G \t=  Insert  |Fore:0,128,0|",
        u"Ctrl + L \t=  Insert  |before:0|",
        u"(note: ctrl-b/n/i/o/g/l will replace 'selected' text)",
        u"",
        u"Enter\t=  Insert  |CR|",
    };
    Text expected(lines[0]);
    for (std::size_t i = 1; i < lines.size(); ++i) {
        expected.append(u"\r\n").append(lines[i]);
    }
    EXPECT_EQ(ToUtf8(MarkupKeysHelp()), ToUtf8(expected));
}

struct Walk {
    TextView caption;
    std::int32_t from;
    std::int32_t start;  // -1: nothing is found
    std::int32_t end;
};

TEST(NextSelection, FindsWordsAndCommands) {
    const std::vector<Walk> walks = {
        {u"", 0, -1, 0},
        {u"   ", 0, -1, 0},
        {u"abc", 3, -1, 0},
        {u"abc  ", 3, -1, 0},
        // Words.
        {u"one|b:1|", 0, 0, 3},
        {u"one two|b:1|", 0, 0, 3},
        {u"one two|b:1|", 1, 1, 3},
        {u"one two|b:1|", 3, 4, 7},
        {u"  one|b:1|", 0, 2, 5},
        {u"a b|", 0, 0, 1},
        {u"a|", 0, 0, 1},
        {u"x\ty z|", 0, 0, 3},  // only the blank ends a word
        {u"x\r\ny|", 0, 0, 4},
        // A word without a command after it extends to the end, over any blanks.
        {u"one two", 0, 0, -1},
        {u"one two", 4, 4, -1},
        {u"|b:1|one two", 5, 5, -1},
        // A blank just before the bar ends the word. A bar before the blank ends it too.
        {u"one |b:1|", 0, 0, 3},
        {u"one|b 1|", 0, 0, 3},
        // Commands.
        {u"|b:1|x", 0, 0, 5},
        {u"||x", 0, 0, 2},
        {u"x |b:1| y", 1, 2, 7},
        {u"|b 1|", 0, 0, 5},
        {u"|b:1", 0, 0, 4},  // never closed
        {u"x|", 1, 1, 2},
    };
    for (const Walk& walk : walks) {
        const std::optional<CaptionSelection> found = NextSelection(walk.caption, walk.from);
        ASSERT_EQ(found.has_value(), walk.start >= 0) << ToUtf8(walk.caption);
        if (found) {
            EXPECT_EQ(found->start, walk.start) << ToUtf8(walk.caption);
            EXPECT_EQ(found->end, walk.end) << ToUtf8(walk.caption);
        }
    }
}

}  // namespace

}  // namespace lumenkit
