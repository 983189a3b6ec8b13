// The formats of "lumenkit check" for other programs.
#include <filesystem>
#include <string>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "tests/apps/program.h"

namespace lumenkit::testing {

namespace {

using Json = nlohmann::ordered_json;

const std::string examples = LUMENKIT_SOURCE_DIR "/tests/apps/check/forms/";

Json Sarif(const std::string& arguments) {
    return Json::parse(RunProgram("check --format sarif " + arguments).output);
}

TEST(SarifFormat, HasAResultForEachFinding) {
    const Json log = Sarif(examples + "drawn.frm");
    EXPECT_EQ(log["version"], "2.1.0");
    ASSERT_EQ(log["runs"].size(), 1U);
    const Json& results = log["runs"][0]["results"];
    ASSERT_EQ(results.size(), 2U);
    EXPECT_EQ(results[0]["ruleId"], "drawing-error");
    EXPECT_EQ(results[0]["level"], "error");
    EXPECT_EQ(results[0]["message"]["text"],
              "lblLarge.Caption: drawing reports error 380 (Invalid property value)");
    const Json& place = results[0]["locations"][0]["physicalLocation"];
    EXPECT_EQ(place["artifactLocation"]["uri"], "file://" + examples + "drawn.frm");
    EXPECT_EQ(place["region"], Json::parse(R"({"startLine":4,"startColumn":33})"));
    EXPECT_EQ(log["runs"][0]["columnKind"], "utf16CodeUnits");
    EXPECT_EQ(log["runs"][0]["invocations"][0]["executionSuccessful"], true);
}

TEST(SarifFormat, DescribesTheRules) {
    const Json log = Sarif(examples + "good.frm");
    bool isThere = false;
    for (const Json& rule : log["runs"][0]["tool"]["driver"]["rules"]) {
        isThere = isThere || (rule["id"] == "underline-is-italic" &&
                              rule["defaultConfiguration"]["level"] == "note");
    }
    EXPECT_TRUE(isThere);
    EXPECT_EQ(log["runs"][0]["results"], Json::array());
}

TEST(SarifFormat, HasANotificationForAFileThatCannotBeRead) {
    const Json log = Sarif("'no/such form.frm'");
    const Json& invocation = log["runs"][0]["invocations"][0];
    EXPECT_EQ(invocation["executionSuccessful"], false);
    const Json& place =
        invocation["toolExecutionNotifications"][0]["locations"][0]["physicalLocation"];
    EXPECT_EQ(place, Json::parse(R"({"artifactLocation":{"uri":"no/such%20form.frm"}})"));
}

TEST(GithubFormat, HasACommandForEachFinding) {
    const Outcome outcome = RunProgram("check --format github -",
                                       "VERSION 5.00\nBegin VB.Form F\n Begin "
                                       "lumenkit.VLabel L\n  Alignment = 1\n  Caption = "
                                       "\"|Blod:1|50%\"\n  BorderStyle = 7\n End\nEnd\n");
    EXPECT_EQ(outcome.output,
              "::notice file=-,line=4,col=3,title=unread-property::L.Alignment: VLabel never reads "
              "\"Alignment\"\n"
              "::warning file=-,line=5,col=14,title=unknown-command::L.Caption: unknown command "
              "\"Blod\"; did you mean \"bold\"?\n"
              "::error file=-,line=6,col=17,title=unreadable-value::L.BorderStyle: loading reports "
              "error 380 (Invalid property value) and does not read the following properties\n");
    EXPECT_EQ(outcome.status, 1);
}

TEST(GithubFormat, EscapesWhatWouldEndACommand) {
    const Outcome outcome = RunProgram("check --format github \"$(printf 'a,b:c%%\\033.frm')\"");
    EXPECT_EQ(outcome.output,
              "::error file=a%2Cb%3Ac%25%1B.frm::cannot be read: No such file or directory\n");
    EXPECT_EQ(outcome.status, 2);
}

TEST(Formats, NameFilesAsTheRepositoryDoes) {
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(examples + "..");
    for (const std::string file : {"./forms/drawn.frm", "forms//../forms/drawn.frm"}) {
        EXPECT_THAT(RunProgram("check --format github " + file).output,
                    ::testing::StartsWith("::error file=forms/drawn.frm,line=4,"));
        const Json log = Sarif(file);
        const Json& place = log["runs"][0]["results"][0]["locations"][0]["physicalLocation"];
        EXPECT_EQ(place["artifactLocation"]["uri"], "forms/drawn.frm");
    }
    std::filesystem::current_path(before);
}

TEST(Formats, AnUnknownOneIsRefused) {
    EXPECT_EQ(RunProgram("check --format xml " + examples).status, 2);
}

}  // namespace

}  // namespace lumenkit::testing
