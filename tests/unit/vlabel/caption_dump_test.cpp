#include "vlabel/caption_dump.h"

#include <gtest/gtest.h>

namespace lumenkit {

namespace {

void AddCommand(CompiledCaption& compiled, TextView name, TextView parameter) {
    compiled.CommandNames.Add(name);
    compiled.CommandParams.Add(parameter);
}

TEST(CaptionDump, ShowsNothingOfNothing) {
    EXPECT_EQ(DumpCaption({}), "");
}

TEST(CaptionDump, PutsCommandsUnderTheLineOfTheirBars) {
    CompiledCaption compiled;
    compiled.CaptionLines.Add(u"|Hello |world|");
    compiled.CaptionLines.Add(u"");
    compiled.CaptionLines.Add(u"|x");
    AddCommand(compiled, u"color", u"255");
    AddCommand(compiled, u"b", u"1");
    AddCommand(compiled, u"b", u"0");
    AddCommand(compiled, u"word|", u"");
    EXPECT_EQ(DumpCaption(compiled),
              "line \"|Hello |world|\"\n"
              "  color = \"255\"\n"
              "  b = \"1\"\n"
              "  b = \"0\"\n"
              "line \"\"\n"
              "line \"|x\"\n"
              "  word| = \"\"\n");
}

TEST(CaptionDump, EscapesWhatCannotBeRead) {
    CompiledCaption compiled;
    compiled.CaptionLines.Add(u"\"\\\t\r\n\x01\x7Fä\U0001F600\xD83Dx\xDE00");
    compiled.CaptionLines.Add(u"|");
    AddCommand(compiled, u"a\n\"\\", u"\"");
    EXPECT_EQ(DumpCaption(compiled),
              "line \"\\\"\\\\\\t\\r\\n\\u0001\\u007F\xC3\xA4\xF0\x9F\x98\x80\\uD83Dx\\uDE00\"\n"
              "line \"|\"\n"
              "  a\\n\"\\\\ = \"\\\"\"\n");
}

TEST(CaptionDump, ShowsBarsWithoutACommand) {
    CompiledCaption compiled;
    compiled.CaptionLines.Add(u"|a|");
    AddCommand(compiled, u"b", u"1");
    EXPECT_EQ(DumpCaption(compiled), "line \"|a|\"\n  b = \"1\"\n  (missing)\n");
}

TEST(CaptionDump, ShowsCommandsWithoutALine) {
    CompiledCaption compiled;
    compiled.CaptionLines.Add(u"a");
    AddCommand(compiled, u"b", u"1");
    AddCommand(compiled, u"i", u"0");
    EXPECT_EQ(DumpCaption(compiled), "line \"a\"\nno line\n  b = \"1\"\n  i = \"0\"\n");
}

}  // namespace

}  // namespace lumenkit
