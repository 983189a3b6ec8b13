// "lumenkit drive" as a process: how it reads, when it answers and how it ends.
#include <cstdlib>
#include <string>

#include <gmock/gmock.h>
#include <sys/wait.h>

#include "tests/apps/drive/conversation.h"
#include "tests/apps/drive/session_script.h"
#include "tests/apps/program.h"
#include "tests/support/repeated.h"

namespace lumenkit::testing {

namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::SizeIs;

const std::string newLabel = R"({"do":"new","class":"VLabel","id":"a"})";
const std::string getCaption = R"({"do":"get","id":"a","name":"Caption"})";
const std::string done = R"({"ok":true,"log":[]})";
const std::string caption = R"({"ok":true,"value":"VLabel","log":[]})";

std::string Refusal(const std::string& text) {
    return R"({"ok":false,"error":{"text":")" + text + R"("},"log":[]})";
}

int StatusOf(const std::string& command) {
    const int result = std::system(command.c_str());
    return WIFEXITED(result) ? WEXITSTATUS(result) : -1;
}

TEST(DriveCommand, AnswersEachRequestAtOnce) {
    Conversation program;
    program.Say(newLabel + '\n');
    EXPECT_EQ(program.Hear(), done);
    program.Say(getCaption.substr(0, 10));
    program.Say(getCaption.substr(10) + '\n');
    EXPECT_EQ(program.Hear(), caption);
    program.Say("{\n");
    EXPECT_EQ(program.Hear(), Refusal("not valid JSON: the line ends too early"));
    program.Say(getCaption + '\n');
    EXPECT_EQ(program.Hear(), caption);
    EXPECT_EQ(program.End(), 0);
    EXPECT_EQ(program.Hear(), std::nullopt);
}

TEST(DriveCommand, EndsWhenAskedToWithTheInputStillOpen) {
    Conversation program;
    program.Say("{\"do\":\"quit\"}\n");
    EXPECT_EQ(program.Hear(), done);
    EXPECT_EQ(program.Hear(), std::nullopt);
    EXPECT_EQ(program.End(), 0);
}

TEST(DriveCommand, ServesNothingAfterQuit) {
    const Outcome outcome =
        RunProgram("drive", newLabel + "\n{\"do\":\"quit\"}\n" + getCaption + '\n');
    EXPECT_THAT(LinesOf(outcome.output), ElementsAre(done, done));
    EXPECT_EQ(outcome.status, 0);
}

TEST(DriveCommand, EndsWithTheInput) {
    for (const std::string& end : {std::string("\n"), std::string(), std::string("\r\n\r\n")}) {
        const Outcome outcome = RunProgram("drive", newLabel + '\n' + getCaption + end);
        EXPECT_THAT(LinesOf(outcome.output), ElementsAre(done, caption));
        EXPECT_EQ(outcome.errors, "");
        EXPECT_EQ(outcome.status, 0);
    }
    EXPECT_EQ(RunProgram("drive").output, "");
    EXPECT_EQ(RunProgram("drive").status, 0);
}

TEST(DriveCommand, SkipsBlankLinesAndTakesCrLf) {
    const Outcome outcome =
        RunProgram("drive", "\n\r\n  \t\r\n" + newLabel + "\r\n\n\n  " + getCaption + "  \r\n\r\n");
    EXPECT_EQ(outcome.output, done + '\n' + caption + '\n');
}

TEST(DriveCommand, GoesOnAfterBytesThatAreNoText) {
    const Outcome outcome = RunProgram(
        "drive", newLabel + "\n\xFF\n{\"do\":\"\xC3\xA9\xC3\"}\n{\"do\":\"\xED\xA0\x80\"}\n" +
                     std::string(1, '\0') + "\n{\"do\":\"" + std::string(1, '\0') + "\"}\n" +
                     getCaption + std::string(1, '\0') + "x\n" + getCaption + '\n');
    EXPECT_THAT(
        LinesOf(outcome.output),
        ElementsAre(done, Refusal("not valid UTF-8 at column 1"),
                    Refusal("not valid UTF-8 at column 9"), Refusal("not valid UTF-8 at column 8"),
                    Refusal("not valid JSON at column 1"), Refusal("not valid JSON at column 8"),
                    Refusal("not valid JSON at column 39"), caption));
    EXPECT_EQ(outcome.status, 0);
}

TEST(DriveCommand, TakesAByteOrderMark) {
    EXPECT_EQ(RunProgram("drive", "\xEF\xBB\xBF" + newLabel).output, done + '\n');
}

TEST(DriveCommand, GoesOnAfterDeepNesting) {
    const std::string tooDeep = Refusal("nested deeper than 16 levels");
    const Outcome outcome =
        RunProgram("drive", Repeated("[", 200000) + '\n' + "{\"id\":" + Repeated("[", 200000) +
                                Repeated("]", 200000) + "}\n" + Repeated("{\"a\":", 200000) + '\n' +
                                newLabel + '\n');
    EXPECT_THAT(LinesOf(outcome.output), ElementsAre(tooDeep, tooDeep, tooDeep, done));
}

TEST(DriveCommand, TakesHugeLines) {
    const std::string text(3000000, 'x');
    const Outcome outcome = RunProgram(
        "drive",
        newLabel + "\n{\"do\":\"let\",\"id\":\"a\",\"name\":\"BulletPrefix\",\"value\":\"" + text +
            "\"}\n{\"do\":\"get\",\"id\":\"a\",\"name\":\"BulletPrefix\"}\n{\"do\":\"" + text +
            "\n" + getCaption + '\n');
    const auto answers = LinesOf(outcome.output);
    ASSERT_THAT(answers, SizeIs(5));
    EXPECT_EQ(answers[1], R"({"ok":true,"log":[{"changed":"BulletPrefix"}]})");
    EXPECT_EQ(answers[2], R"({"ok":true,"value":")" + text + R"(","log":[]})");
    EXPECT_EQ(answers[3], Refusal("not valid JSON: the line ends too early"));
    EXPECT_EQ(answers[4], caption);
}

TEST(DriveCommand, TakesRequestsWithVeryManyMembers) {
    std::string members;
    for (int i = 0; i < 100000; ++i) {
        members += ",\"member" + std::to_string(i) + "\":" + std::to_string(i);
    }
    const Outcome outcome =
        RunProgram("drive", newLabel + "\n{\"do\":\"draw\"" + members + "}\n" + getCaption);
    EXPECT_THAT(LinesOf(outcome.output),
                ElementsAre(done, Refusal(R"(the request needs \"id\")"), caption));
}

TEST(DriveCommand, ShowsHalfAPairAsAReplacementCharacter) {
    const Outcome outcome = RunProgram(
        "drive",
        "{\"do\":\"new\",\"class\":\"VMemo\",\"id\":\"m\"}\n"
        "{\"do\":\"let\",\"id\":\"m\",\"name\":\"MaxCharsPerLine\",\"value\":2}\n"
        "{\"do\":\"let\",\"id\":\"m\",\"name\":\"Text\",\"value\":\"a\xF0\x9F\x98\x80\"}\n"
        "{\"do\":\"get\",\"id\":\"m\",\"name\":\"Text\"}\n");
    EXPECT_EQ(LinesOf(outcome.output).back(),
              "{\"ok\":true,\"value\":\"a\xEF\xBF\xBD\",\"log\":[]}");
}

TEST(DriveCommand, ServesAHundredThousandRequests) {
    constexpr int rounds = 25000;
    const Outcome outcome = RunProgram(
        "drive",
        newLabel +
            "\n{\"do\":\"new\",\"class\":\"VOptList\",\"id\":\"o\","
            "\"bag\":{\"Contents\":\"a|b\"}}\n" +
            Repeated(getCaption +
                         "\n{\"do\":\"let\",\"id\":\"o\",\"name\":\"ListIndex\",\"value\":0}\n"
                         "{\"do\":\"click\",\"id\":\"o\",\"on\":\"Option1(1)\"}\n"
                         "{\"do\":\"draw\",\"id\":\"a\"}\n",
                     rounds));
    EXPECT_EQ(outcome.status, 0);
    const auto answers = LinesOf(outcome.output);
    ASSERT_THAT(answers, SizeIs(2 + 4 * rounds));
    EXPECT_THAT(answers, Each(HasSubstr(R"("ok":true)")));
    const std::string told = R"("log":[{"changed":"ListIndex"},{"changed":"Text"},)"
                             R"({"event":"Click","args":[]}]})";
    for (std::size_t round = 0; round < rounds; ++round) {
        ASSERT_EQ(answers[2 + 4 * round], caption);
        ASSERT_EQ(answers[3 + 4 * round], R"({"ok":true,)" + told);
        ASSERT_EQ(answers[4 + 4 * round], R"({"ok":true,"value":true,)" + told);
    }
}

TEST(DriveCommand, SaysWhenItCannotReadOrWrite) {
    EXPECT_EQ(StatusOf(LUMENKIT_PROGRAM " drive </ 2>/dev/null"), 2);
    EXPECT_EQ(
        StatusOf(LUMENKIT_PROGRAM " drive </ 2>&1 | grep -qx 'lumenkit: cannot read the requests'"),
        0);
    const std::string requests = FileWith(newLabel + '\n' + getCaption + '\n');
    EXPECT_EQ(StatusOf(LUMENKIT_PROGRAM " drive <" + requests + " >/dev/full 2>/dev/null"), 2);
    EXPECT_EQ(StatusOf(LUMENKIT_PROGRAM " drive <" + requests +
                       " 2>&1 >/dev/full | grep -qx 'lumenkit: cannot write the answers'"),
              0);
}

TEST(DriveCommand, HelpIsEnoughToStartFrom) {
    const Outcome outcome = RunProgram("drive --help");
    EXPECT_THAT(outcome.output, HasSubstr(R"({"do":"new","class","id")"));
    EXPECT_THAT(outcome.output, HasSubstr(R"(echo '{"do":"new","class":"VMemo","id":"m"}' | )"));
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(RunProgram("drive file").status, 2);
}

}  // namespace

}  // namespace lumenkit::testing
