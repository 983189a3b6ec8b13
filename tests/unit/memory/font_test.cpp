#include "runtime/memory/font.h"

#include <limits>

#include <gtest/gtest.h>

#include "tests/unit/frame/plain_font.h"
#include "tests/unit/memory/expect_error.h"

namespace lumenkit::memory {
namespace {

using testing::Raises;

std::shared_ptr<Font> NewFont(float points) {
    return std::make_shared<Font>(std::make_shared<FaultPlan>(), u"Courier", points);
}

TEST(MemoryFont, KeepsFourDecimals) {
    const auto font = NewFont(9.12344F);
    EXPECT_EQ(font->Size(), 9.1234F);
    font->SetSize(9.12346F);
    EXPECT_EQ(font->Size(), 9.1235F);
}

TEST(MemoryFont, RefusesSizesOutOfRange) {
    const auto font = NewFont(10);
    for (const float size :
         {0.0F, -1.0F, 0.00004F, 2160.01F, std::numeric_limits<float>::quiet_NaN(),
          std::numeric_limits<float>::infinity()}) {
        EXPECT_TRUE(Raises(ErrorNumber::InvalidPropertyValue, [&] { font->SetSize(size); }))
            << size;
    }
    EXPECT_EQ(font->Size(), 10.0F);
    font->SetSize(2160.0F);
    EXPECT_EQ(font->Size(), 2160.0F);
    font->SetSize(0.0001F);
    EXPECT_EQ(font->Size(), 0.0001F);
}

TEST(MemoryFont, BoldIsAWeightAbove550) {
    const auto font = NewFont(10);
    EXPECT_EQ(font->Weight(), 400);
    font->SetBold(true);
    EXPECT_EQ(font->Weight(), 700);
    font->SetWeight(550);
    EXPECT_FALSE(font->Bold());
    font->SetWeight(551);
    EXPECT_TRUE(font->Bold());
    font->SetBold(false);
    EXPECT_EQ(font->Weight(), 400);
}

TEST(MemoryFont, KeepsItsCharset) {
    const auto font = NewFont(10);
    font->SetCharset(204);
    EXPECT_EQ(font->Charset(), 204);
}

TEST(MemoryFont, IsNotTakenFromAnotherRuntime) {
    EXPECT_TRUE(
        Raises(ErrorNumber::TypeMismatch, [] { Font::From(std::make_shared<PlainFont>()); }));
    EXPECT_TRUE(Raises(ErrorNumber::ObjectNotSet, [] { Font::From(nullptr); }));
}

TEST(MemoryFont, MeasuresByTheFixedMetrics) {
    const auto font = NewFont(8.25F);
    EXPECT_EQ(font->Now().WidthOf(u"abcd"), 330.0F);
    EXPECT_EQ(font->Now().WidthOf(u"a\r\n\xD83D\xDE00"), 412.5F);
    EXPECT_EQ(font->Now().LineHeight(), 198.0);
    font->SetBold(true);
    EXPECT_EQ(font->Now().WidthOf(u"abcd"), 363.0F);
    EXPECT_EQ(font->Now().LineHeight(), 198.0);
}

TEST(MemoryFont, ACloneIsAFontOfItsOwn) {
    const auto font = NewFont(12);
    font->SetItalic(true);
    const auto clone = font->Clone();
    EXPECT_TRUE(font->IsSame(*clone));
    clone->SetName(u"Arial");
    EXPECT_EQ(font->Name(), u"Courier");
    EXPECT_FALSE(font->IsSame(*clone));
}

TEST(MemoryFont, NothingIsNoFont) {
    EXPECT_TRUE(Raises(ErrorNumber::ObjectNotSet, [] { Font::From(nullptr); }));
}

TEST(MemoryFont, FailsAsPlanned) {
    const auto faults = std::make_shared<FaultPlan>();
    Font font(faults, u"Courier", 10);
    faults->FailCall(u"Font.SetSize", 1, ErrorNumber::OutOfMemory);
    font.SetBold(true);
    EXPECT_TRUE(Raises(ErrorNumber::OutOfMemory, [&] { font.SetSize(20); }));
    EXPECT_EQ(font.Size(), 10.0F);
}

}  // namespace
}  // namespace lumenkit::memory
