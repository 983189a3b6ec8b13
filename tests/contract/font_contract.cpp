#include <array>

#include "tests/contract/contract_test.h"
#include "tests/unit/frame/plain_font.h"

namespace lumenkit::contract {
namespace {

class FontContract : public ContractTest {};
INSTANTIATE_TEST_SUITE_P(Runtime, FontContract, ::testing::Values(RuntimeUnderTest()),
                         ::testing::PrintToStringParamName());

TEST_P(FontContract, AFontKeepsItsAttributes) {
    const host::FontRef font = runtime_->NewFont(u"Arial", 12);
    EXPECT_EQ(font->Name(), u"Arial");
    EXPECT_EQ(font->Size(), 12);
    EXPECT_FALSE(font->Bold());
    EXPECT_EQ(font->Weight(), 400);
    font->SetName(u"Courier New");
    font->SetSize(9.75F);
    font->SetItalic(true);
    font->SetUnderline(true);
    font->SetStrikethrough(true);
    EXPECT_EQ(font->Name(), u"Courier New");
    EXPECT_EQ(font->Size(), 9.75F);
    EXPECT_TRUE(font->Italic());
    EXPECT_TRUE(font->Underline());
    EXPECT_TRUE(font->Strikethrough());
}

TEST_P(FontContract, BoldIsWeight700) {
    const host::FontRef font = runtime_->NewFont(u"Arial", 12);
    font->SetBold(true);
    EXPECT_EQ(font->Weight(), 700);
    font->SetWeight(400);
    EXPECT_FALSE(font->Bold());
    font->SetWeight(700);
    EXPECT_TRUE(font->Bold());
    font->SetBold(false);
    EXPECT_EQ(font->Weight(), 400);
}

TEST_P(FontContract, AFontRefusesSizesOfZeroBelowZeroAndTooLarge) {
    const host::FontRef font = runtime_->NewFont(u"Arial", 12);
    for (const float size : {0.0F, -8.0F, 1e9F}) {
        EXPECT_TRUE(Raises(ErrorNumber::InvalidPropertyValue, [&] { font->SetSize(size); }))
            << size;
    }
    EXPECT_EQ(font->Size(), 12);
}

TEST_P(FontContract, AFontAnswersLateBoundCalls) {
    const host::FontRef font = runtime_->NewFont(u"Arial", 12);
    EXPECT_EQ(font->Get(u"name"), Value(Text(u"Arial")));
    font->Let(2, std::int16_t{14});
    EXPECT_EQ(font->Size(), 14);
    font->Let(u"Bold", true);
    EXPECT_EQ(font->Get(3), Value(true));
    EXPECT_TRUE(Raises(ErrorNumber::NoSuchMember, [&] { font->Get(u"Colour"); }));
}

TEST_P(FontContract, TwoFontsAreTheSameWhenAllAttributesAre) {
    const host::FontRef one = runtime_->NewFont(u"Arial", 12);
    const host::FontRef other = runtime_->NewFont(u"Arial", 12);
    EXPECT_TRUE(one->IsSame(*other));
    other->SetItalic(true);
    EXPECT_FALSE(one->IsSame(*other));
}

TEST_P(FontContract, AFontIsSharedByAllWhoHoldIt) {
    const host::FontRef font = runtime_->NewFont(u"Arial", 12);
    host::TextBoxEvents events;
    const auto box = Parts().AddTextBox({{.name = u"T"}}, events);
    box->SetCurrentFont(font);
    Surface().SetCurrentFont(font);
    const float before = Surface().TextWidth(u"measured");
    box->CurrentFont()->SetSize(36);
    EXPECT_EQ(Surface().CurrentFont()->Size(), 36);
    EXPECT_GT(Surface().TextWidth(u"measured"), before);
}

TEST_P(FontContract, AFontOfAnotherRuntimeIsATypeMismatch) {
    const auto foreign = std::make_shared<PlainFont>();
    host::TextBoxEvents events;
    const auto box = Parts().AddTextBox({{.name = u"T"}}, events);
    const auto frame = Parts().AddFrame({{.name = u"F"}});
    EXPECT_TRUE(Raises(ErrorNumber::TypeMismatch, [&] { Surface().SetCurrentFont(foreign); }));
    EXPECT_TRUE(Raises(ErrorNumber::TypeMismatch, [&] { box->SetCurrentFont(foreign); }));
    EXPECT_TRUE(Raises(ErrorNumber::TypeMismatch, [&] { frame->SetCurrentFont(foreign); }));
}

TEST_P(FontContract, NothingIsRefusedWhereAFontIsAssignedAsANumberIs) {
    Object& probe = Probe().Automation();
    const ObjectRef before = ToObject(probe.Get(u"Font"));
    for (const Value& value : {Value(ObjectRef()), Value(std::int32_t{5}), Value(Empty{})}) {
        std::array assigned = {value};
        EXPECT_TRUE(Raises(ErrorNumber::TypeMismatch, [&] {
            probe.Invoke(*probe.FindMember(u"Font"), InvokeKind::Set, assigned);
        }));
    }
    EXPECT_EQ(ToObject(probe.Get(u"Font")), before);
}

TEST_P(FontContract, EachCallerGetsAnAmbientFontOfItsOwn) {
    const host::FontRef font = Host().ambient.AmbientFont();
    const float size = font->Size();
    font->SetSize(size + 10);
    EXPECT_EQ(Host().ambient.AmbientFont()->Size(), size);
}

}  // namespace
}  // namespace lumenkit::contract
