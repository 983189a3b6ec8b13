// Compares the compiler with its literal model on generated captions.
#include <algorithm>
#include <functional>
#include <regex>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "frame/text_positions.h"
#include "tests/model/caption_comparison.h"
#include "tests/model/caption_generator.h"
#include "tests/support/test_rounds.h"
#include "tests/support/test_seed.h"

namespace lumenkit::testing {

namespace {

std::string Narrow(TextView text) {
    std::string narrow;
    for (const char16_t unit : text) {
        narrow += unit < 0x80 ? static_cast<char>(unit) : '?';
    }
    return narrow;
}

int SeparatorCount(TextView caption) {
    constexpr TextView separator = u"|CR|";
    int count = 0;
    std::int32_t position = InStr(1, caption, separator, Compare::IgnoreCase);
    while (position != 0) {
        ++count;
        position = InStr(position + 4, caption, separator, Compare::IgnoreCase);
    }
    return count;
}

bool Reported(const LiteralCaption& literal, TextView procedure) {
    return std::ranges::find(literal.reports,
                             ReportMessage(u"VLABEL", procedure, ErrorNumber::Overflow)) !=
           literal.reports.end();
}

// Features that must occur among the captions. If the generator stops producing one, the test
// fails.
class Features {
 public:
    void See(TextView caption, const LiteralCaption& literal) {
        constexpr std::size_t longForRegex = 2000;
        const std::string narrow = Narrow(caption.substr(0, longForRegex));
        std::erase_if(unseen_, [&](const Feature& feature) {
            return feature.isIn(caption, narrow, literal);
        });
    }

    std::vector<std::string> Unseen() const {
        std::vector<std::string> names;
        for (const Feature& feature : unseen_) {
            names.push_back(feature.name);
        }
        return names;
    }

 private:
    using IsIn = std::function<bool(TextView, const std::string&, const LiteralCaption&)>;

    struct Feature {
        std::string name;
        IsIn isIn;
    };

    static IsIn Matches(const char* pattern) {
        return Matches(std::regex(pattern, std::regex::icase));
    }
    static IsIn MatchesCase(const char* pattern) { return Matches(std::regex(pattern)); }
    static IsIn Matches(const std::regex& expression) {
        return [expression](TextView, const std::string& narrow, const LiteralCaption&) {
            return std::regex_search(narrow, expression);
        };
    }
    static IsIn Length(std::size_t length) {
        return [length](TextView caption, const std::string&, const LiteralCaption&) {
            return caption.size() == length;
        };
    }
    static IsIn LineCount(std::size_t count) {
        return [count](TextView, const std::string&, const LiteralCaption& literal) {
            return literal.CaptionLines.size() == count;
        };
    }
    static IsIn Stored(TextView name, TextView parameter) {
        return [name, parameter](TextView, const std::string&, const LiteralCaption& literal) {
            for (std::size_t i = 0; i < literal.CommandNames.size(); ++i) {
                if (literal.CommandNames[i] == name && literal.CommandParams[i] == parameter) {
                    return true;
                }
            }
            return false;
        };
    }
    static IsIn ReportedBy(TextView procedure) {
        return [procedure](TextView, const std::string&, const LiteralCaption& literal) {
            return Reported(literal, procedure);
        };
    }

    std::vector<Feature> unseen_ = {
        {"empty caption", Length(0)},
        {"separator in upper case", MatchesCase(R"(\|CR\|)")},
        {"separator in lower case", MatchesCase(R"(\|cr\|)")},
        {"separator in mixed case", MatchesCase(R"(\|(cR|Cr)\|)")},
        {"separators that overlap", Matches(R"(\|CR\|CR\|)")},
        {"separator at the end", Matches(R"(\|CR\|$)")},
        {"separator that ends a command", Matches(R"(\|B:1\|CR\|)")},
        {"quote in upper case", MatchesCase(R"(\|Q\|)")},
        {"quote in lower case", MatchesCase(R"(\|q\|)")},
        {"quotes that overlap", Matches(R"(\|Q\|Q\|)")},
        {"quote that overlaps a separator", Matches(R"(\|Q\|CR\|)")},
        {"separator that overlaps a quote", Matches(R"(\|CR\|Q\|)")},
        {"quote inside a command", Matches(R"(\|[A-Z]+:[^|]*\|Q\|)")},
        {"quote behind a bar", Matches(R"(\|\|Q\|)")},
        {"lone bar", Matches(R"(^[^|]*\|[^|]*$)")},
        {"two bars and nothing between", Stored(u"|", u"")},
        {"three bars", Matches(R"(\|\|\|)")},
        {"half command at the end", Matches(R"(\|B:[^|]+$)")},
        {"half command before a separator", Matches(R"(\|[A-Z]+:[^|:]+\|CR\|)")},
        {"half switch that keeps its word", Stored(u"b", u"true")},
        {"command without a colon", Matches(R"(\|FORE\|)")},
        {"command without a name", Matches(R"(\|:)")},
        {"name with a blank", Stored(u" b", u"1|")},
        {"second colon", Stored(u"b", u"1:0|")},
        {"bold", Matches(R"(\|BOLD:)")},
        {"italic", Matches(R"(\|ITALIC:)")},
        {"ital", Matches(R"(\|ITAL:)")},
        {"itals", Matches(R"(\|ITALS:)")},
        {"underline", Matches(R"(\|u:1\|)")},
        {"color", Matches(R"(\|COLOR:[^|]*,)")},
        {"fore", Matches(R"(\|fore:)")},
        {"size", Matches(R"(\|Size:)")},
        {"unknown word", Matches(R"(\|FONT:)")},
        {"switched on", Stored(u"b", u"1")},
        {"switched off", Stored(u"i", u"0")},
        {"switch in words", Matches(R"(\|B:true\|)")},
        {"switch that is neither", Stored(u"b", u"on|")},
        {"colour with no comma", Matches(R"(\|FORE:[0-9]+\|)")},
        {"colour with one comma", Matches(R"(\|FORE:[0-9]+,[0-9]+\|)")},
        {"colour with two commas", Matches(R"(\|FORE:[0-9]+,[0-9]+,[0-9]+\|)")},
        {"colour with more commas", Matches(R"(\|COLOR:[^,|]+,[^,|]+,[^,|]+,)")},
        {"colour that begins with a comma", Matches(R"(\|COLOR:,)")},
        {"colour with commas only before blue", Matches(R"(\|FORE:,,[0-9]+\|)")},
        {"negative colour", Matches(R"(\|COLOR:-[0-9]+,)")},
        {"colour half way between integers", Matches(R"(\|FORE:(0\.5|1\.5|2\.5)[,|])")},
        {"colour beyond 32 bits", Matches(R"(\|COLOR:99999999999[,|])")},
        {"before that adds", Matches(R"(\|before:\+[0-9])")},
        {"before that takes off", Matches(R"(\|BEFORE:-[0-9])")},
        {"before that adds up", Matches(R"(\|BEFORE:[0-9]+\|.*\|BEFORE:\+[0-9]+\.)")},
        {"before behind a blank", Matches(R"(\|BEFORE: \+)")},
        {"before beyond single precision", Matches(R"(\|BEFORE:1E39\|)")},
        {"before sum beyond single precision", Matches(R"(:\+3E38\|.*:\+3E38\|)")},
        {"number beyond double precision", Matches(R"(\|SIZE:1E400\|)")},
        {"number that vanishes", Matches(R"(:1D-400)")},
        {"blank in a number", Matches(R"(:[0-9]+ [0-9])")},
        {"tab in a number", Matches(R"(:[0-9]+\t[0-9])")},
        {"line feed in a number", Matches(R"(:[0-9]+\n[0-9])")},
        {"carriage return in a number", Matches(R"(:[0-9]+\r[0-9])")},
        {"letter in a number", Matches(R"(:[0-9]+x[0-9])")},
        {"two signs", Matches(R"(:--[0-9])")},
        {"hexadecimal", Matches(R"(:&H[0-9A-F]+\|)")},
        {"hexadecimal, long", Matches(R"(:&H[0-9A-F]+&\|)")},
        {"hexadecimal, 16 bits with the sign", Matches(R"(:&H[89A-F][0-9A-F]{3}\|)")},
        {"octal", Matches(R"(:&O[0-7]+\|)")},
        {"octal, long", Matches(R"(:&O[0-7]+&\|)")},
        {"radix number beyond 32 bits", Matches(R"(:&HFFFFFFFFF)")},
        {"radix without digits", Matches(R"(:&H\|)")},
        {"exponent E", Matches(R"(:[0-9]+E[0-9])")},
        {"exponent D with a sign", Matches(R"(:[0-9]+D-[0-9])")},
        {"decimal point", Matches(R"(:[0-9]+\.[0-9])")},
        {"letter beyond ASCII in a name", Matches(R"(\|\?NDER:)")},
        {"letter beyond ASCII in a parameter", Stored(u"font", u"äω|")},
        {"lone surrogate",
         [](TextView caption, const std::string&, const LiteralCaption&) {
             return caption.find(TextView(u"\xD83D\0", 2)) != TextView::npos;
         }},
        {"300 lines", LineCount(300)},
        {"301 lines", LineCount(301)},
        {"more than 301 lines",
         [](TextView caption, const std::string&, const LiteralCaption& literal) {
             return literal.CaptionLines.size() == 301 && SeparatorCount(caption) > 300;
         }},
        {"length 32766", Length(32766)},
        {"length 32767", Length(32767)},
        {"length 32768", Length(32768)},
        {"command out of range", ReportedBy(u"CompileCommand")},
        {"caption out of range", ReportedBy(u"CompileCaption")},
        {"long caption within range",
         [](TextView caption, const std::string&, const LiteralCaption& literal) {
             return caption.size() > 32767 && literal.reports.empty();
         }},
        {"caption out of range behind its commands",
         [](TextView caption, const std::string&, const LiteralCaption& literal) {
             return caption.size() > 32767 && !literal.CommandNames.empty() &&
                    Reported(literal, u"CompileCaption");
         }},
        {"command without an end position",
         [](TextView caption, const std::string&, const LiteralCaption& literal) {
             return caption.size() == 32767 && caption.find(u'|') >= 32760 &&
                    Reported(literal, u"CompileCaption");
         }},
    };
};

class CaptionCompilerModel : public ::testing::Test {
 protected:
    void Compare(TextView caption) {
        ASSERT_EQ(comparison_.Difference(caption), "");
        features_.See(caption, comparison_.Literal());
    }

    void CompareShort(int count) {
        for (int i = 0; i < count && !HasFatalFailure(); ++i) {
            Compare(generator_.Caption());
        }
    }

    void CompareNearLineLimit() {
        for (int count = 298; count <= 304; ++count) {
            for (int i = 0; i < Rounds(30) && !HasFatalFailure(); ++i) {
                Compare(generator_.Lines(count));
            }
        }
    }

    // Puts each tail at each position around the last one: after padding, after a caption, after a
    // line and a caption. Also puts it far behind many lines.
    void CompareNearLastPosition() {
        for (const TextView tail : {u"", u"|CR|", u"|CR|x", u"|", u"||", u"|b:1", u"|b:1|", u"|Q|",
                                    u"|Q|CR|", u"|CR|CR|", u"|before:+5"}) {
            for (std::size_t length = 32760; length <= 32774; ++length) {
                CompareLong(Text(), tail, length);
                CompareLong(generator_.Caption(), tail, length);
                CompareLong(u"|b:1|x|CR|" + generator_.Caption(), tail, length);
            }
            CompareLong(generator_.Lines(302), tail, 40000);
        }
    }

    void CompareLong(Text head, TextView tail, std::size_t length) {
        if (!HasFatalFailure()) {
            head.resize(length - tail.size(), u'x');
            Compare(head.append(tail));
        }
    }

    CaptionGenerator generator_{TestSeed()};
    CaptionComparison comparison_;
    Features features_;
};

TEST_F(CaptionCompilerModel, AgreesOnGeneratedCaptions) {
    CompareShort(Rounds(250'000));
    CompareNearLineLimit();
    CompareNearLastPosition();
    if (RunsAllRounds()) {
        EXPECT_THAT(features_.Unseen(), ::testing::IsEmpty());
    }
}

}  // namespace

}  // namespace lumenkit::testing
