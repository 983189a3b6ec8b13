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
#include "project/published/markdown.h"
#include "project/published/reference.h"

namespace lumenkit {

namespace {

std::string KeptIn(const std::filesystem::path& folder, const std::string& file) {
    std::ifstream stream(std::filesystem::path(LUMENKIT_SOURCE_DIR) / folder / file,
                         std::ios::binary);
    if (!stream) {
        throw std::runtime_error("cannot read " + file);
    }
    std::ostringstream text;
    text << stream.rdbuf();
    return text.str();
}

std::string Kept(const std::string& file) {
    return KeptIn("project/published", file);
}

constexpr const char* advice = "make published writes it anew";

TEST(Published, InterfaceDefinitionsAreThoseOfTheTables) {
    EXPECT_EQ(Kept(classesIdlFile), WriteIdl(lumenkitClasses)) << advice;
    EXPECT_EQ(Kept(enumerationsIdlFile), WriteIdl(runtimeEnumerations)) << advice;
}

TEST(Published, ManifestIsThatOfTheTables) {
    EXPECT_EQ(Kept(manifestFile), WriteManifest(lumenkitClasses, "lumenkit.ocx")) << advice;
}

TEST(Published, ReferencePagesAreThoseOfTheTables) {
    EXPECT_EQ(referencePages.size(), lumenkitClasses.classes.size());
    for (const ReferencePage& page : referencePages) {
        EXPECT_EQ(KeptIn("docs/reference", page.file), WriteReference(lumenkitClasses, page))
            << advice;
    }
}

/// Returns the line of `text` that begins with `start`; empty if there is none.
std::string LineOf(const std::string& text, const std::string& start) {
    const std::size_t position = text.find("\n" + start);
    return position == std::string::npos
               ? ""
               : text.substr(position + 1, text.find('\n', position + 1) - position - 1);
}

TEST(Reference, TellsMembersEventsAndEnumerations) {
    const std::string label = WriteReference(lumenkitClasses, referencePages[0]);
    EXPECT_EQ(LineOf(label, "| `Caption"),
              "| `Caption` | property | String | 0 | get, let | default member | "
              "Text to interpret and display (Quillon compatible) |");
    EXPECT_EQ(LineOf(label, "| `Font` "),
              "| `Font` | property | Font | -512 | get, set | | Returns a Font object. |");
    EXPECT_EQ(LineOf(label, "| `GetProperty"),
              "| `GetProperty(ByRef PropertyName As String)` | method | Variant | 1610809376 | | | "
              "|");
    EXPECT_EQ(LineOf(label, "| `MouseMove"),
              "| `MouseMove(ByRef Button As Integer, ByRef Shift As Integer, ByRef X As Single, "
              "ByRef Y As Single)` | 4 | Occurs when the user moves the mouse. |");

    const std::string memo = WriteReference(lumenkitClasses, referencePages[1]);
    EXPECT_EQ(LineOf(memo, "| `PageWidth"),
              "| `PageWidth` | property | Single | 1745027072 | let | | |");
    EXPECT_EQ(LineOf(memo, "| `ScrollBars"),
              "| `ScrollBars` | property | ScrollBarChoices | 1745027075 | get, let | | |");
    EXPECT_EQ(LineOf(memo, "| `scrollBarsBoth"), "| `scrollBarsBoth` | 3 |");
    EXPECT_EQ(label.find("scrollBarsBoth"), std::string::npos);

    const std::string list = WriteReference(lumenkitClasses, referencePages[2]);
    EXPECT_EQ(LineOf(list, "| `Text"),
              "| `Text` | property | String | 0 | get, let | default member, bindable, requests "
              "edit, default bind, hidden from property browsers | |");
    EXPECT_EQ(LineOf(list, "| `Value`"), "| `Value` | property | String | 1745027072 | get | | |");
}

TEST(Reference, KnowsOnlyTheClassesThatThereAre) {
    EXPECT_THROW(WriteReference(lumenkitClasses, {u"VButton", "vbutton.md", "button.md"}),
                 std::invalid_argument);
}

TEST(Markdown, WritesPlainTextAndTables) {
    EXPECT_EQ(markdown::Plain(u"1;a|2;b *c* <d> d_e"), "1;a\\|2;b \\*c\\* \\<d\\> d\\_e");
    EXPECT_EQ(markdown::Head({"a", ""}), "| a | |\n|---|---|\n");
    EXPECT_EQ(markdown::Row({"", "b"}), "| | b |\n");
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
