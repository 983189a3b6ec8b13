#include "runtime/win32/gdi_font.h"

#include <memory>

#include <gtest/gtest.h>

#include "frame/runtime_error.h"

namespace lumenkit::win32 {
namespace {

class Listener final : public FontListener {
 public:
    void FontChanged() override {
        ++changes;
        if (leaves != nullptr) {
            leaves->Remove(*this);
        }
    }
    int changes = 0;
    Font* leaves = nullptr;
};

LOGFONTW DesignOf(const Font& font) {
    LOGFONTW design = {};
    GetObjectW(font.Handle(), sizeof design, &design);
    return design;
}

TEST(GdiFont, IsRealisedAtTheScreensResolution) {
    GdiFont font(u"Arial", 12, {.x = 96, .y = 120});
    font.SetBold(true);
    font.SetItalic(true);
    font.SetUnderline(true);
    font.SetStrikethrough(true);
    font.SetCharset(204);
    const LOGFONTW design = DesignOf(font);
    EXPECT_EQ(design.lfHeight, -20);
    EXPECT_EQ(design.lfWeight, 700);
    EXPECT_NE(design.lfItalic, 0);
    EXPECT_NE(design.lfUnderline, 0);
    EXPECT_NE(design.lfStrikeOut, 0);
    EXPECT_EQ(design.lfCharSet, 204);
    EXPECT_STREQ(design.lfFaceName, L"Arial");
}

TEST(GdiFont, NamesOfAnyLengthAreKeptAndSizesAreNeverNothing) {
    GdiFont font(Text(100, u'x'), 0.01F, {});
    EXPECT_EQ(font.Name().size(), 100U);
    EXPECT_EQ(DesignOf(font).lfHeight, -1);
}

TEST(GdiFont, TellsOfChangesOnly) {
    GdiFont font(u"Arial", 12, {});
    Listener listener;
    font.Add(listener);
    font.SetSize(12);
    font.SetBold(false);
    EXPECT_EQ(listener.changes, 0);
    const HFONT before = font.Handle();
    font.SetSize(13);
    font.SetWeight(700);
    EXPECT_EQ(listener.changes, 2);
    EXPECT_NE(font.Handle(), before);
    EXPECT_THROW(font.SetSize(0), RuntimeError);
    EXPECT_EQ(listener.changes, 2);
    font.Remove(listener);
    font.SetSize(14);
    EXPECT_EQ(listener.changes, 2);
}

TEST(GdiFont, ListenersMayLeaveWhileTheyAreTold) {
    GdiFont font(u"Arial", 12, {});
    Listener first;
    Listener second;
    first.leaves = &font;
    font.Add(first);
    font.Add(second);
    font.SetSize(13);
    font.SetSize(14);
    EXPECT_EQ(first.changes, 1);
    EXPECT_EQ(second.changes, 2);
    font.Remove(second);
}

TEST(GdiFont, ACloneIsTheSameButOnItsOwn) {
    GdiFont font(u"Arial", 12, {});
    font.SetItalic(true);
    const auto clone = font.Clone();
    EXPECT_TRUE(clone->IsSame(font));
    clone->SetSize(20);
    EXPECT_EQ(font.Size(), 12);
}

TEST(GdiFont, LeavesNoHandles) {
    const int before = ScreenFont::Count();
    {
        GdiFontMaker maker;
        for (int i = 0; i < 1000; ++i) {
            const auto font = maker.NewFont(u"Arial", static_cast<float>(1 + i % 300));
            EXPECT_NE(font->Handle(), nullptr);
        }
    }
    EXPECT_EQ(ScreenFont::Count(), before);
}

}  // namespace
}  // namespace lumenkit::win32
