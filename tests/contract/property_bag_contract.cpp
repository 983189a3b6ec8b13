#include "tests/contract/contract_test.h"

namespace lumenkit::contract {
namespace {

class PropertyBagContract : public ContractTest {
 protected:
    std::unique_ptr<host::PropertyBag> bag_ = runtime_->NewBag();
};
INSTANTIATE_TEST_SUITE_P(Runtime, PropertyBagContract, ::testing::Values(RuntimeUnderTest()),
                         ::testing::PrintToStringParamName());

TEST_P(PropertyBagContract, ABagReadsWhatWasWritten) {
    bag_->WriteProperty(u"Text", Text(u"a \r\n\x20AC"), Text());
    bag_->WriteProperty(u"Flag", true, false);
    bag_->WriteProperty(u"Number", std::int16_t{-7}, std::int16_t{0});
    bag_->WriteProperty(u"Size", 8.25F, 0.0F);
    EXPECT_EQ(ToText(bag_->ReadProperty(u"Text", Text())), u"a \r\n\x20AC");
    EXPECT_TRUE(ToBoolean(bag_->ReadProperty(u"flag", false)));
    EXPECT_EQ(ToInteger(bag_->ReadProperty(u"NUMBER", std::int16_t{0})), -7);
    EXPECT_EQ(ToSingle(bag_->ReadProperty(u"Size", 0.0F)), 8.25F);
}

TEST_P(PropertyBagContract, ABagGivesTheDefaultForAMissingValue) {
    EXPECT_EQ(ToLong(bag_->ReadProperty(u"Nothing", std::int32_t{42})), 42);
}

TEST_P(PropertyBagContract, ABagStoresNoDefault) {
    bag_->WriteProperty(u"Number", std::int32_t{5}, std::int32_t{5});
    EXPECT_EQ(ToLong(bag_->ReadProperty(u"Number", std::int32_t{6})), 6);
}

TEST_P(PropertyBagContract, ABagStoresTheAttributesOfAFont) {
    // The size is a whole number of pixels: font objects of some platforms have no other sizes.
    const host::FontRef font = runtime_->NewFont(u"Arial", 14.25F);
    font->SetBold(true);
    font->SetUnderline(true);
    bag_->WriteProperty(u"Font", ObjectRef(font), ObjectRef());
    const host::FontRef read =
        Automation<host::FontRef>::From(bag_->ReadProperty(u"Font", ObjectRef()));
    ASSERT_TRUE(read);
    EXPECT_TRUE(read->IsSame(*font));
}

}  // namespace
}  // namespace lumenkit::contract
