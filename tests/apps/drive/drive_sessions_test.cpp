// Replays written sessions and the examples of docs/drive.md with the built program.
#include <filesystem>
#include <set>
#include <string>

#include <gmock/gmock.h>

#include "tests/apps/drive/session_script.h"
#include "tests/apps/program.h"
#include "tests/support/file_bytes.h"

namespace lumenkit::testing {

namespace {

using ::testing::ContainerEq;
using ::testing::SizeIs;

void Replay(const Script& script, const std::string& name) {
    ASSERT_FALSE(script.empty()) << name;
    std::string requests;
    for (const Exchange& exchange : script) {
        requests += exchange.request + '\n';
    }
    const Outcome outcome = RunProgram("drive", requests);
    EXPECT_EQ(outcome.status, 0) << name;
    EXPECT_EQ(outcome.errors, "") << name;
    const std::vector<std::string> answers = LinesOf(outcome.output);
    ASSERT_THAT(answers, SizeIs(script.size())) << name;
    for (std::size_t i = 0; i < script.size(); ++i) {
        EXPECT_EQ(Difference(script[i], answers[i]), "")
            << name << ':' << script[i].line << ": " << script[i].request;
    }
}

// Sessions and examples are replayed in a separate folder that holds the sample forms.
class InScratchFolder : public ::testing::Test {
 protected:
    InScratchFolder() {
        std::filesystem::remove_all(folder_);
        std::filesystem::copy(LUMENKIT_SOURCE_DIR "/samples/forms", folder_);
        std::filesystem::current_path(folder_);
    }
    ~InScratchFolder() override {
        std::filesystem::current_path(before_);
        std::filesystem::remove_all(folder_);
    }

 private:
    const std::filesystem::path before_ = std::filesystem::current_path();
    const std::filesystem::path folder_ =
        std::filesystem::path(LUMENKIT_BINARY_DIR) / "drive_session_files";
};

class DriveSessions : public InScratchFolder {};
class DriveDocument : public InScratchFolder {};

std::vector<std::filesystem::path> SessionFiles() {
    std::vector<std::filesystem::path> files;
    for (const auto& entry :
         std::filesystem::directory_iterator(LUMENKIT_SOURCE_DIR "/tests/apps/drive/sessions")) {
        files.push_back(entry.path());
    }
    return files;
}

// Returns the requests in `text`, which are written as {"do":NAME.
std::set<std::string> RequestsIn(const std::string& text) {
    const std::string opening = "{\"do\":\"";
    std::set<std::string> names;
    for (auto at = text.find(opening); at != std::string::npos; at = text.find(opening, at)) {
        at += opening.size();
        names.insert(text.substr(at, text.find('"', at) - at));
    }
    return names;
}

TEST_F(DriveSessions, Replay) {
    const auto files = SessionFiles();
    EXPECT_THAT(files, SizeIs(9));
    for (const auto& file : files) {
        Replay(ParseScript(FileBytes(file)), file.filename().string());
    }
}

TEST_F(DriveSessions, EveryRequestSucceedsInOne) {
    std::string served;
    for (const auto& file : SessionFiles()) {
        for (const Exchange& exchange : ParseScript(FileBytes(file))) {
            if (exchange.answer.find("\"ok\":false") == std::string::npos) {
                served += exchange.request;
            }
        }
    }
    EXPECT_THAT(RequestsIn(served), ContainerEq(RequestsIn(RunProgram("drive --help").output)));
}

TEST_F(DriveDocument, ExamplesReplay) {
    const auto scripts = ScriptsIn(FileBytes(LUMENKIT_SOURCE_DIR "/docs/drive.md"));
    ASSERT_FALSE(scripts.empty());
    for (const Script& script : scripts) {
        Replay(script, "docs/drive.md");
    }
}

TEST_F(DriveDocument, ShowsEveryRequest) {
    EXPECT_THAT(RequestsIn(FileBytes(LUMENKIT_SOURCE_DIR "/docs/drive.md")),
                ContainerEq(RequestsIn(RunProgram("drive --help").output)));
}

TEST(SessionScript, TellsAnswersApart) {
    const Script script = ParseScript(
        "remark\n> {\"do\":1}\n< {\"ok\":true,\n<   \"value\":[1]}\n> b\n<~ {\"v\":{\"y\":2}}\n");
    ASSERT_THAT(script, SizeIs(2));
    EXPECT_EQ(script[0].line, 2);
    EXPECT_EQ(script[0].request, "{\"do\":1}");
    EXPECT_EQ(Difference(script[0], R"({"ok":true,"value":[1]})"), "");
    EXPECT_NE(Difference(script[0], R"({"ok":true,"value":[1.0]})"), "");
    EXPECT_NE(Difference(script[0], R"({"ok":true, "value":[1]})"), "");
    EXPECT_NE(Difference(script[0], R"({"ok":true,"value":[1],"log":[]})"), "");
    EXPECT_EQ(Difference(script[1], R"({"v":{"x":1,"y":2},"w":3})"), "");
    EXPECT_NE(Difference(script[1], R"({"v":{"x":1,"y":3}})"), "");
    EXPECT_NE(Difference(script[1], R"({"v":[2]})"), "");
}

}  // namespace

}  // namespace lumenkit::testing
