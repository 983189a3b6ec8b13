// Malformed forms: each one is either refused or checked.
#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "apps/lumenkit/check/file_checks.h"
#include "project/lumenkit_classes.h"
#include "tests/support/file_bytes.h"
#include "tests/support/test_seed.h"

namespace lumenkit::check {
namespace {

using lumenkit::testing::FileBytes;
namespace fs = std::filesystem;
using ::testing::SizeIs;

std::vector<fs::path> FilesIn(const std::string& folder) {
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(LUMENKIT_SOURCE_DIR + folder)) {
        if (entry.is_regular_file()) {
            files.push_back(entry.path());
        }
    }
    return files;
}

// Returns whether the form could be read.
bool Check(const std::string& form, const std::string& companion = {}) {
    try {
        const auto document = forms::Document::Parse(
            "x.frm", form, [&](const std::string& /*name*/) { return companion; });
        for (const Finding& finding : CheckForm(document, lumenkitClasses)) {
            EXPECT_GT(finding.place.line, 0U);
        }
        return true;
    } catch (const forms::FormError&) {
        return false;
    }
}

TEST(HostileForms, WhatTheFuzzerFoundInteresting) {
    const std::string mark("\0COMPANION\0", 11);
    int count = 0;
    int read = 0;
    for (const fs::path& file : FilesIn("/fuzz/corpus/form")) {
        const std::string bytes = FileBytes(file);
        const std::size_t end = bytes.find(mark);
        const bool whole = end == std::string::npos;
        read += Check(bytes.substr(0, end), whole ? "" : bytes.substr(end + mark.size())) ? 1 : 0;
        ++count;
    }
    EXPECT_GT(count, 10);
    EXPECT_GT(read, 5);
}

// Changes, doubles and removes bytes in the forms of the samples and of these tests.
TEST(HostileForms, DamagedForms) {
    std::mt19937 random(lumenkit::testing::TestSeed());
    const auto below = [&](std::size_t bound) { return random() % bound; };
    int read = 0;
    for (const char* folder : {"/samples/forms", "/tests/apps/check/forms"}) {
        for (const fs::path& file : FilesIn(folder)) {
            if (file.extension() != ".frm") {
                continue;
            }
            const std::string whole = FileBytes(file);
            const std::string companion = FileBytes(fs::path(file).replace_extension(".frx"));
            for (int i = 0; i < 60; ++i) {
                std::string form = whole;
                for (std::size_t changes = 1 + below(3); changes > 0; --changes) {
                    const std::size_t at = below(form.size());
                    switch (below(3)) {
                        case 0:
                            form[at] = static_cast<char>(below(256));
                            break;
                        case 1:
                            form.insert(at, form.substr(at, 1 + below(9)));
                            break;
                        default:
                            form.erase(at, 1 + below(9));
                    }
                }
                read += Check(form, companion) ? 1 : 0;
            }
        }
    }
    EXPECT_GT(read, 100);
}

std::string Label(const std::string& lines) {
    return "Begin lumenkit.VLabel L\n" + lines + "End\n";
}

TEST(HostileForms, ValuesOfEveryKind) {
    for (const char* value :
         {"-1  'True", "12", "&H80000005&", "1.5E+300", "^N", "{F1}",
          "{0BE35203-8F91-11CE-9DE3-00AA004BB851}", "\"\"", "\"x.frx\":0000", "99999999999"}) {
        for (const char* type : {"VLabel", "VMemo", "VOptList", "VLabelCaption"}) {
            std::string form = "VERSION 5.00\nBegin lumenkit." + std::string(type) + " L\n";
            for (const char* name : {"Caption", "Text", "Contents", "ListIndex", "MaxLines",
                                     "MaxCharsPerLine", "Index", "Font"}) {
                form += std::string(name) + " = " + value + '\n';
            }
            EXPECT_TRUE(Check("VERSION 5.00\nBegin VB.Form F\n" + form.substr(13) + "End\nEnd\n",
                              "\x03"
                              "abc"))
                << value << ' ' << type;
        }
    }
}

TEST(HostileForms, ManyOfEverything) {
    std::string properties;
    std::string labels;
    for (int i = 0; i < 20000; ++i) {
        properties += "P" + std::to_string(i) + " = " + std::to_string(i) + '\n';
        labels += Label("Caption = \"|x|\"\n");
    }
    const auto companion = [](const std::string& /*name*/) { return std::string(); };
    const auto document = forms::Document::Parse(
        "x.frm", "VERSION 5.00\nBegin VB.Form F\n" + labels + Label(properties) + "End\n",
        companion);
    // The captions, the properties, and the labels with the name of the first one.
    EXPECT_THAT(CheckForm(document, lumenkitClasses), SizeIs(60000));
}

}  // namespace
}  // namespace lumenkit::check
