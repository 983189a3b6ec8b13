// The procedures of a form's code and what they mention.
#include "apps/lumenform/design/code/code_outline.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <ostream>
#include <random>
#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "apps/lumenform/design/code/code_line.h"
#include "apps/lumenform/design/code/form_code.h"
#include "apps/lumenform/design/code/mention_message.h"
#include "frame/utf8.h"
#include "tests/apps/lumenform/literal_code.h"
#include "tests/support/rows.h"
#include "tests/support/test_rounds.h"
#include "tests/support/test_seed.h"

namespace lumenkit::testing {
namespace {

using lumenform::CodeOutline;
using lumenform::CodePart;
using lumenform::Continued;
using lumenform::Mention;
using lumenform::Procedure;
using ::testing::ElementsAre;
using Kind = Procedure::Kind;

std::string KindName(Kind kind) {
    constexpr std::array names{"Declarations", "Sub", "Function", "Get", "Let", "Set"};
    return names.at(static_cast<std::size_t>(kind));
}

// "2 Sub Form_Load"
std::vector<std::string> ProceduresOf(const CodeOutline& outline) {
    std::vector<std::string> found;
    for (const Procedure& procedure : outline.Procedures()) {
        found.push_back(std::to_string(procedure.line) + " " + KindName(procedure.kind) +
                        (procedure.name.empty() ? "" : " " + ToUtf8(procedure.name)));
    }
    return found;
}

// Lists the procedures of code behind the declarations: "0 Sub A, 4 Get B".
std::string Listed(TextView code) {
    std::string list;
    for (const std::string& procedure : ProceduresOf(CodeOutline(code))) {
        if (procedure != "0 Declarations") {
            list += (list.empty() ? "" : ", ") + procedure;
        }
    }
    return list;
}

struct CodeProcedures : ::testing::TestWithParam<Row<TextView, std::string_view>> {};

TEST_P(CodeProcedures, AreListed) {
    EXPECT_EQ(Listed(GetParam().input), GetParam().expected);
}

constexpr Row<TextView, std::string_view> procedureRows[] = {
    {"NoCode", u"", ""},
    {"ASub", u"Sub A()\nEnd Sub\n", "0 Sub A"},
    {"WithoutALineBreakAtItsEnd", u"Sub A()", "0 Sub A"},
    {"AFunction", u"Option Explicit\r\nFunction Add(a, b) As Long\r\nEnd Function",
     "1 Function Add"},
    {"AFunctionWithATypeSign", u"Function Text$()\nEnd Function", "0 Function Text"},
    {"Properties",
     u"Property Get P()\nEnd Property\nProperty Let P(v)\nEnd Property\n"
     u"Public Property Set P(v)\nEnd Property",
     "0 Get P, 2 Let P, 4 Set P"},
    {"Modifiers",
     u"Private Static Sub A()\nEnd Sub\nFriend Function B()\nEnd Function\n"
     u"Static Sub C()\nEnd Sub\nPublic Sub D()\nEnd Sub",
     "0 Sub A, 2 Function B, 4 Sub C, 6 Sub D"},
    {"AnyCase", u"PRIVATE sub a()\nend SUB\nsub b()", "0 Sub a, 2 Sub b"},
    {"Indented", u"\t  Sub A()\n\tEnd Sub", "0 Sub A"},
    {"ContinuedBeforeTheName", u"Private _\n Sub _\n  A()\nEnd Sub\nSub B()", "0 Sub A, 4 Sub B"},
    {"ContinuedWithBlanksAtTheEnd", u"Private _ \t\nSub A()", "0 Sub A"},
    {"ContinuedParameters", u"Sub A(x, _\n  y)\nEnd Sub", "0 Sub A"},
    {"NoContinuationWithoutABlank", u"Private_\nSub A()", "1 Sub A"},
    {"NotContinuedByAText", u"x = \"a _\nSub A()", "1 Sub A"},
    {"Commented", u"' Sub A()\nx = 1 ' Sub B()\nRem Sub C()\nx: Rem Sub D()", ""},
    {"AContinuedComment", u"' A comment _\nSub A()\nSub B()", "2 Sub B"},
    {"AContinuedRemark", u"Rem A comment _\nSub A() _\nSub B()\nSub C()", "3 Sub C"},
    {"RemIsAWord", u"Remark x: Sub A()", "0 Sub A"},
    {"AMemberNamedRem", u"x.Rem: Sub A()\ny!Rem: Sub B()", "0 Sub A, 1 Sub B"},
    {"InATextWithQuotationMarks", u"s = \"a \"\": Sub A()\"\nSub B()", "1 Sub B"},
    {"AQuotationMarkInAComment", u"' \"\nSub A()", "1 Sub A"},
    {"AnApostropheInAText", u"x = \"'\": Sub A()", "0 Sub A"},
    {"SeveralInALine", u"Sub A(): End Sub: Sub B(): End Sub", "0 Sub A, 0 Sub B"},
    {"ANumberedLine", u"10 Sub A()", "0 Sub A"},
    {"AHexadecimalNumberIsNoLineNumber", u"&H10 Sub A()", ""},
    {"ANamedArgumentIsNoStatement", u"Show x:=Sub A()", ""},
    {"Declare", u"Private Declare Sub Beep Lib \"k\" ()\nDeclare Function F Lib \"k\" ()", ""},
    {"AnEvent", u"Public Event Changed()\nPrivate Sub A()", "1 Sub A"},
    {"ExitAndEnd", u"Sub A()\nExit Sub\nEnd\nEnd If\nEnd Sub", "0 Sub A"},
    {"NamedInBrackets", u"Sub [My Sub]()", "0 Sub My Sub"},
    {"WithoutAName", u"Sub\nFunction ()\nProperty Get\nProperty = 3", ""},
    {"InBothBranchesOfACondition",
     u"#If Win32 Then\nSub A(x)\n#Else\nSub A(y)\n#End If\nEnd Sub\nSub B()",
     "1 Sub A, 3 Sub A, 6 Sub B"},
    {"AConditionIsNoProcedure", u"#If Sub A\n#Const Sub = 1", ""},
    {"WithoutAnEnd", u"Sub A()\nSub B()\nEnd Sub", "0 Sub A, 1 Sub B"},
    {"NamesBeyondAscii", u"Sub Knöpfe_Click()\nEnd Sub\nSub 按钮_Click()",
     "0 Sub Knöpfe_Click, 2 Sub 按钮_Click"},
};
INSTANTIATE_TEST_SUITE_P(Code, CodeProcedures, ::testing::ValuesIn(procedureRows), RowName());

// "*0:0 3:5": the declarations mention it in line 0, procedure 3 in line 5. An asterisk marks an
// own event procedure.
std::string Mentions(const CodeOutline& outline, const std::vector<Text>& names) {
    std::string list;
    for (const Mention& mention : outline.Mentioning(names)) {
        list += (list.empty() ? "" : " ") + std::string(mention.isOwn ? "*" : "") +
                std::to_string(mention.procedure) + ":" + std::to_string(mention.line);
    }
    return list;
}

struct CodeMentions : ::testing::TestWithParam<Row<TextView, std::string_view>> {};

TEST_P(CodeMentions, AreFound) {
    EXPECT_EQ(Mentions(CodeOutline(GetParam().input), {u"Command1"}), GetParam().expected);
}

constexpr Row<TextView, std::string_view> mentionRows[] = {
    {"Nowhere", u"Sub A()\nEnd Sub", ""},
    {"InTheDeclarations", u"\nDim x As Command1", "0:1"},
    {"BetweenProcedures", u"Sub A()\nEnd Sub\nDim Command1\nSub B()\nEnd Sub\nDim Command1", "0:2"},
    {"InAProcedure", u"Sub A()\nx = Command1.Caption\nEnd Sub", "1:1"},
    {"InAnyCase", u"Sub A()\ncOMMAND1.Move\nEnd Sub", "1:1"},
    {"OfTheForm", u"Sub A()\nMe.Command1.Move: Me!Command1.Move\nEnd Sub", "1:1"},
    {"InBrackets", u"Sub A()\n[Command1].Move\nEnd Sub", "1:1"},
    {"InTheParameters", u"Sub A(x As Command1)\nEnd Sub", "1:0"},
    {"OfAnElement", u"Sub A()\nCommand1(3).Move\nEnd Sub", "1:1"},
    {"OnceForAProcedure", u"Sub A()\nCommand1.Move\nCommand1.Move\nEnd Sub", "1:1"},
    {"OnAContinuedLine", u"Sub A()\nx _\n = Command1\nEnd Sub", "1:2"},
    {"AnEventProcedure", u"Private Sub Command1_Click()\nEnd Sub", "*1:0"},
    {"AnEventProcedureThatMentionsItself", u"Private Sub Command1_Click()\nCommand1.Move\nEnd Sub",
     "*1:0"},
    {"EventProceduresFirst",
     u"Sub A()\nCommand1.Move\nEnd Sub\nSub COMMAND1_Click()\nEnd Sub\nSub Command1_KeyDown()",
     "*2:3 *3:5 1:1"},
    {"AnotherControlWithALongerName", u"Sub Command1_OK_Click()\nCommand1_OK.Move\nEnd Sub", ""},
    {"ALongerWord", u"Sub A()\nCommand10.Move: xCommand1 = 1: Command1_ = 2\nEnd Sub", ""},
    {"ACallOfItsEventProcedure", u"Sub A()\nCommand1_Click\nEnd Sub", ""},
    {"InAText", u"Sub A()\nx = \"Command1\"\nEnd Sub", ""},
    {"BehindADoubledQuotationMark", u"Sub A()\nx = \"\"\"Command1\" & Command1\nEnd Sub", "1:1"},
    {"InAComment", u"Sub A()\n' Command1\nRem Command1\nEnd Sub", ""},
    {"InAnAttribute", u"Attribute Command1.VB_VarHelpID = -1", ""},
    {"InACondition", u"#If Command1 Then\n#End If", ""},
    {"AfterAnEnd", u"Sub A()\nEnd Sub: Command1 = 1", "0:1"},
    {"AFunctionIsNoEventProcedure", u"Function Command1_Click()\nEnd Function", ""},
};
INSTANTIATE_TEST_SUITE_P(Code, CodeMentions, ::testing::ValuesIn(mentionRows), RowName());

TEST(CodeMention, OfSeveralNamesIsOneList) {
    const CodeOutline outline(
        u"Sub A()\nOne = Two\nEnd Sub\nSub Two_Click()\nOne = 1\nEnd Sub\nSub One_Click()\nEnd "
        u"Sub");
    EXPECT_EQ(Mentions(outline, {u"One", u"Two"}), "*2:3 *3:6 1:1");
    EXPECT_EQ(Mentions(outline, {u"One"}), "*3:6 1:1 2:4");
    EXPECT_EQ(Mentions(outline, {}), "");
}

TEST(CodeMention, ProceduresBeginAtTheirLines) {
    const CodeOutline outline(u"Option Explicit\n\nSub A()\nEnd Sub\n\nSub B()\nEnd Sub\n");
    const std::array<std::size_t, 8> expected{0, 0, 1, 1, 1, 2, 2, 2};
    for (std::size_t line = 0; line < expected.size(); ++line) {
        EXPECT_EQ(outline.ProcedureAt(line), expected.at(line)) << line;
    }
}

struct CodeLines : ::testing::TestWithParam<Row<TextView, std::string_view>> {};

// "Word:Sub Sign:( Comment:' x"
TEST_P(CodeLines, AreDivided) {
    constexpr std::array kinds{"Word", "Name", "Text", "Comment", "Number", "Sign"};
    std::vector<CodePart> parts;
    const Continued continued = lumenform::DivideLine(GetParam().input, Continued::Nothing, parts);
    std::string list;
    for (const CodePart& part : parts) {
        list += std::string(list.empty() ? "" : " ") +
                kinds.at(static_cast<std::size_t>(part.kind)) + ":" +
                ToUtf8(GetParam().input.substr(part.start, part.length));
    }
    list += continued == Continued::Statement ? " _" : continued == Continued::Comment ? " '_" : "";
    EXPECT_EQ(list, GetParam().expected);
}

constexpr Row<TextView, std::string_view> lineRows[] = {
    {"Empty", u"", ""},
    {"Blank", u" \t", ""},
    {"HexadecimalAndOctal", u"&H1F &hff& &O17 &17",
     "Number:&H1F Number:&hff Sign:& Number:&O17 Sign:& Number:17"},
    {"AJoinedWord", u"a&Hello&b", "Word:a Sign:& Word:Hello Sign:& Word:b"},
    {"AnOpenText", u"x = \"a", "Word:x Sign:= Text:\"a"},
    {"AnEmptyText", u"\"\"", "Text:\"\""},
    {"TextsWithQuotationMarks", u"\"\"\"\" \"a\"\"b\"", "Text:\"\"\"\" Text:\"a\"\"b\""},
    {"ANumberWithAnExponent", u"1E5 x1", "Number:1E5 Word:x1"},
    {"ANamedArgument", u"a:=1: b", "Word:a Sign::= Number:1 Sign:: Word:b"},
    {"ABracketedName", u"[a b].c [d", "Name:a b Sign:. Word:c Sign:[ Word:d"},
    {"AContinuedStatement", u"a, _", "Word:a Sign:, _"},
    {"AContinuedComment", u"a ' b _", "Word:a Comment:' b _ '_"},
    {"AnUnderscoreAlone", u"_", "Word:_"},
    {"ARemark", u"rem a", "Comment:rem a"},
};
INSTANTIATE_TEST_SUITE_P(Code, CodeLines, ::testing::ValuesIn(lineRows), RowName());

TEST(CodeLine, KnowsKeywordsInAnyCase) {
    for (const TextView word : {u"Sub", u"sub", u"PRIVATE", u"xor", u"AddressOf", u"WithEvents"}) {
        EXPECT_TRUE(lumenform::IsCodeKeyword(word)) << ToUtf8(word);
    }
    for (const TextView word : {u"Subs", u"Su", u"", u"Command1", u"zzz"}) {
        EXPECT_FALSE(lumenform::IsCodeKeyword(word)) << ToUtf8(word);
    }
}

TEST(CodeOfForm, BeginsAfterTheAttributes) {
    EXPECT_EQ(
        lumenform::CodeIn(u"Attribute VB_Name = \"A\"\r\nATTRIBUTE VB_Exposed = False\r\n\r\nx"),
        u"\r\nx");
    EXPECT_EQ(lumenform::CodeIn(u"Attribute VB_Name = \"A\""), u"");
    EXPECT_EQ(lumenform::CodeIn(u"Attributes = 1\nAttribute x"), u"Attributes = 1\nAttribute x");
    EXPECT_EQ(lumenform::CodeIn(u""), u"");
    EXPECT_EQ(lumenform::FirstLineOf(u"a\nb\n", "1\n2\n3\na\nb\n"), 4U);
    EXPECT_EQ(lumenform::FirstLineOf(u"a\nb", "a\nb"), 1U);
}

std::string Message(TextView code, const std::vector<Text>& names) {
    return lumenform::MentionMessage(CodeOutline(code), names).toStdString();
}

TEST(MentionMessages, NameTheProcedures) {
    constexpr TextView dim = u"Dim x As A\n";
    constexpr TextView own = u"Sub A_Click()\nEnd Sub\n";
    constexpr TextView load = u"Sub Load()\nA = 1\nEnd Sub\n";
    constexpr TextView get = u"Property Get P()\nP = A\nEnd Property\n";
    const auto joined = [](std::initializer_list<TextView> parts) {
        Text code;
        for (const TextView part : parts) {
            code += part;
        }
        return code;
    };
    EXPECT_EQ(Message(own, {u"B"}), "");
    EXPECT_EQ(Message(own, {u"A"}), "A_Click still mentions A");
    EXPECT_EQ(Message(dim, {u"A"}), "The declarations still mention A");
    EXPECT_EQ(Message(joined({dim, own}), {u"A"}), "A_Click and the declarations still mention A");
    EXPECT_EQ(Message(joined({load, own}), {u"A"}), "A_Click and Load still mention A");
    EXPECT_EQ(Message(joined({get, load, own}), {u"A"}),
              "A_Click and 2 other procedures still mention A");
    EXPECT_EQ(Message(joined({dim, load, get}), {u"A"}),
              "Load, P (Get) and the declarations still mention A");
    EXPECT_EQ(Message(joined({dim, load, get, own}), {u"A"}),
              "A_Click, 2 other procedures and the declarations still mention A");
    EXPECT_EQ(Message(u"Sub F()\nA = B\nEnd Sub", {u"A", u"B"}), "F still mentions A and B");
    EXPECT_EQ(Message(u"Sub F()\nA = B + C\nEnd Sub", {u"A", u"B", u"C"}),
              "F still mentions A and 2 other names");
}

// Writes code of fragments that are hard to read.
std::string OddCode(std::mt19937& random) {
    constexpr std::array fragments{"Sub",
                                   "Function",
                                   "Property Get",
                                   "Property",
                                   "Let",
                                   "Private",
                                   "Static",
                                   "End",
                                   "End Sub",
                                   "Declare",
                                   "A",
                                   "B_Click",
                                   "A_b_C",
                                   "[A]",
                                   "Rem",
                                   "'",
                                   "\"",
                                   "\"\"",
                                   ":",
                                   ":=",
                                   " _\n",
                                   "\n",
                                   "\n",
                                   "\n",
                                   "#If",
                                   "#",
                                   ".",
                                   "!",
                                   "(",
                                   "Attribute A",
                                   "10 ",
                                   "_",
                                   "Sub A()\n",
                                   "Sub B_Click()\n",
                                   "End Sub\n",
                                   "&H1F",
                                   "Exit Sub",
                                   "\t"};
    std::uniform_int_distribution<std::size_t> pick(0, fragments.size() - 1);
    std::bernoulli_distribution isApart(0.7);
    std::string code;
    for (int count = std::uniform_int_distribution(1, 40)(random); count > 0; --count) {
        code += std::string(fragments.at(pick(random))) + (isApart(random) ? " " : "");
    }
    return code;
}

TEST(CodeOutlineModel, AgreesWithALiteralReading) {
    std::mt19937 random(TestSeed());
    for (int round = Rounds(800); round > 0; --round) {
        const std::string code = OddCode(random);
        const CodeOutline outline(FromUtf8(code));
        const LiteralCode literal(code);
        ASSERT_EQ(ProceduresOf(outline), literal.Procedures()) << code;
        for (const char* const name : {"A", "B", "B_Click", "A_b", "C"}) {
            std::set<std::size_t> found;
            for (const Mention& mention : outline.Mentioning({FromUtf8(name)})) {
                found.insert(mention.procedure);
            }
            ASSERT_EQ(found, literal.Mentioning(name)) << name << " in\n" << code;
        }
    }
}

}  // namespace
}  // namespace lumenkit::testing
