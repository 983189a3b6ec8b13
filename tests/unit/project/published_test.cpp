#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>

#include <gmock/gmock.h>

#include "project/lumenkit_classes.h"
#include "project/published/idl.h"
#include "project/published/idl_text.h"
#include "project/published/manifest.h"

namespace lumenkit {

namespace {

std::string Kept(const std::string& file) {
    std::ifstream stream(
        std::filesystem::path(LUMENKIT_SOURCE_DIR) / "project" / "published" / file,
        std::ios::binary);
    if (!stream) {
        throw std::runtime_error("cannot read " + file);
    }
    std::ostringstream text;
    text << stream.rdbuf();
    return text.str();
}

constexpr const char* advice = "make published writes it anew";

TEST(Published, InterfaceDefinitionsAreThoseOfTheTables) {
    EXPECT_EQ(Kept(classesIdlFile), WriteIdl(lumenkitClasses)) << advice;
    EXPECT_EQ(Kept(enumerationsIdlFile), WriteIdl(runtimeEnumerations)) << advice;
}

TEST(Published, ManifestIsThatOfTheTables) {
    EXPECT_EQ(Kept(manifestFile), WriteManifest(lumenkitClasses, "lumenkit.ocx")) << advice;
}

TEST(IdlText, QuotesWhatALiteralNeedsQuoted) {
    EXPECT_EQ(idl::Quoted(u""), "\"\"");
    EXPECT_EQ(idl::Quoted(u"a \"b\" c\\d"), "\"a \\\"b\\\" c\\\\d\"");
}

TEST(IdlText, LeavesOutWhatIsNotThere) {
    EXPECT_EQ(idl::Attributes().AddHelp(u"").AddIf(false, "hidden").Written(), "");
    EXPECT_EQ(idl::Attributes().Add("id(1)").AddIf(true, "hidden").AddHelp(u"x").Written(),
              "[id(1), hidden, helpstring(\"x\")]");
}

}  // namespace

}  // namespace lumenkit
