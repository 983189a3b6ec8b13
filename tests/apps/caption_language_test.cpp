// Compiles the examples of docs/caption-language.md with the built program.
#include <fstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "tests/apps/program.h"

namespace lumenkit::testing {

namespace {

constexpr const char* document = LUMENKIT_SOURCE_DIR "/docs/caption-language.md";

struct Example {
    int line = 0;
    std::string caption;
    std::string compiled;
};

/// Reads the blocks called "compiled". "> " begins a caption, "< " a line of its compiled form.
std::vector<Example> ReadExamples() {
    std::ifstream file(document);
    std::vector<Example> examples;
    bool inside = false;
    int number = 0;
    for (std::string line; std::getline(file, line);) {
        ++number;
        if (line.starts_with("```")) {
            inside = line == "```compiled";
        } else if (inside && line.starts_with("> ")) {
            examples.push_back({number, line.substr(2), ""});
        } else if (inside && line.starts_with("< ")) {
            examples.at(examples.size() - 1).compiled += line.substr(2) + '\n';
        } else if (inside) {
            ADD_FAILURE() << document << ':' << number << ": neither caption nor output";
        }
    }
    return examples;
}

TEST(CaptionLanguage, CompilesAsTheDocumentSays) {
    const std::vector<Example> examples = ReadExamples();
    ASSERT_FALSE(examples.empty());
    for (const Example& example : examples) {
        const Outcome outcome = RunProgram("compile", example.caption);
        EXPECT_EQ(outcome.output, example.compiled) << document << ':' << example.line;
        EXPECT_EQ(outcome.status, 0) << document << ':' << example.line;
    }
}

}  // namespace

}  // namespace lumenkit::testing
