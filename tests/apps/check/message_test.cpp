// The parts of messages: quotations, suggestions and the progress bar.
#include <array>
#include <sstream>

#include <gtest/gtest.h>

#include "apps/command_line/spelling/nearest.h"
#include "apps/command_line/spelling/printable.h"
#include "apps/command_line/spelling/suggestion.h"
#include "apps/lumenkit/check/progress_bar.h"
#include "apps/lumenkit/check/quote.h"

namespace lumenkit::check {
namespace {

TEST(Quote, ShowsTexts) {
    EXPECT_EQ(Quote(u"Grüße"), "\"Grüße\"");
    EXPECT_EQ(Quote(u""), "\"\"");
}

TEST(Quote, LetsNothingCommandATerminal) {
    EXPECT_EQ(Quote(u"a\x1b[2J\r\n\x7f\u009b"), "\"a\\u001B[2J\\u000D\\u000A\\u007F\\u009B\"");
    EXPECT_EQ(Quote(u"\u202Eabc\uFEFF"), "\"\\u202Eabc\\uFEFF\"");
}

TEST(Quote, CutsLongTextsButNoPair) {
    EXPECT_EQ(Quote(Text(40, u'x')), '"' + std::string(40, 'x') + '"');
    EXPECT_EQ(Quote(Text(41, u'x')), '"' + std::string(40, 'x') + "...\"");
    EXPECT_EQ(Quote(Text(39, u'x') + u"😀x"), '"' + std::string(39, 'x') + "...\"");
}

TEST(Printable, ReplacesWhatIsNoUtf8) {
    EXPECT_EQ(Printable("a\xff"
                        "b\xc3"),
              "a\xEF\xBF\xBD"
              "b\xEF\xBF\xBD");
    EXPECT_EQ(Printable("x\x1b.frm"), "x\\u001B.frm");
}

TEST(Suggestion, ForgivesSlipsByLength) {
    constexpr std::array<TextView, 5> words = {u"b", u"bold", u"italic", u"color", u"Caption"};
    EXPECT_EQ(Nearest(u"blod", words), u"bold");      // swapped
    EXPECT_EQ(Nearest(u"bld", words), u"bold");       // left out
    EXPECT_EQ(Nearest(u"boold", words), u"bold");     // inserted
    EXPECT_EQ(Nearest(u"bulk", words), u"");          // two errors
    EXPECT_EQ(Nearest(u"italci", words), u"italic");  // swapped
    EXPECT_EQ(Nearest(u"itlci", words), u"italic");   // swapped and left out
    EXPECT_EQ(Nearest(u"CAPTIN", words), u"Caption");
    EXPECT_EQ(Nearest(u" B ", words), u"b");
    EXPECT_EQ(Nearest(u"x", words), u"");
    EXPECT_EQ(Nearest(u"", words), u"");
    EXPECT_EQ(Nearest(Text(100000, u'b'), words), u"");
}

TEST(Suggestion, EndsAMessage) {
    EXPECT_EQ(DidYouMean("bold"), "; did you mean \"bold\"?");
    EXPECT_EQ(DidYouMean(""), "");
}

TEST(ProgressBar, DrawsWhatChangesAndClearsUp) {
    std::ostringstream terminal;
    {
        ProgressBar bar(terminal, 300, true);
        bar.Show(0);
        bar.Show(1);  // looks the same
        bar.Show(150);
    }
    EXPECT_EQ(terminal.str(), "\r\x1b[K[" + std::string(30, '.') + "] 0%\r\x1b[K[" +
                                  std::string(15, '#') + std::string(15, '.') + "] 50%\r\x1b[K");
}

TEST(ProgressBar, DrawsNothingWhereItIsNotShown) {
    std::ostringstream terminal;
    ProgressBar bar(terminal, 10, false);
    bar.Show(5);
    bar.Hide();
    EXPECT_EQ(terminal.str(), "");
}

}  // namespace
}  // namespace lumenkit::check
