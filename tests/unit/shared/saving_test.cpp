#include "runtime/shared/saving.h"

#include <functional>
#include <stdexcept>
#include <vector>

#include <gtest/gtest.h>

#include "frame/runtime_error.h"
#include "tests/unit/frame/raises.h"

namespace lumenkit::shared {
namespace {

class ShownMessages final : public host::Interaction {
 public:
    void Beep() override { ++beeps; }
    void MsgBox(TextView message, host::MessageStyle /*style*/,
                std::optional<TextView> /*title*/) override {
        messages.emplace_back(message);
    }

    int beeps = 0;
    std::vector<Text> messages;
};

// A control whose WriteProperties is the function of a test.
class WritingControl final : public Control {
 public:
    explicit WritingControl(std::function<void(host::PropertyBag&)> write)
        : write_(std::move(write)) {}

    Object& Automation() override { throw std::logic_error("not used"); }
    void UserControl_WriteProperties(host::PropertyBag& bag) override { write_(bag); }

 private:
    std::function<void(host::PropertyBag&)> write_;
};

class OneValueBag final : public host::PropertyBag {
 public:
    Value ReadProperty(TextView /*name*/, const Value& /*defaultValue*/) override { return value; }
    void WriteProperty(TextView /*name*/, const Value& written,
                       const Value& /*defaultValue*/) override {
        if (std::holds_alternative<Null>(written)) {
            Raise(ErrorNumber::InvalidUseOfNull);
        }
        value = written;
    }

    Value value;
};

class Saving : public ::testing::Test {
 protected:
    void Save(std::function<void(host::PropertyBag&)> write) {
        WritingControl control(std::move(write));
        SaveControl(control, bag_, reports_);
    }
    // Handles an error as the procedures of controls do.
    void Report() {
        reports_.Beep();
        reports_.MsgBox(u"report", host::MessageStyle::Critical, u"LUMENKIT ERROR");
    }

    ShownMessages shown_;
    ReportCounter reports_{shown_};
    OneValueBag bag_;
};

TEST_F(Saving, PassesValuesAndMessagesOn) {
    Save([&](host::PropertyBag& bag) {
        bag.WriteProperty(u"Name", Text(u"value"), Text());
        EXPECT_EQ(bag.ReadProperty(u"Name", Empty{}), Value(Text(u"value")));
        reports_.MsgBox(u"a remark", host::MessageStyle::OkOnly, std::nullopt);
    });
    EXPECT_EQ(bag_.value, Value(Text(u"value")));
    EXPECT_EQ(shown_.messages, std::vector<Text>{u"a remark"});
    EXPECT_EQ(reports_.Reports(), 0);
}

TEST_F(Saving, RaisesTheFirstErrorOfTheBag) {
    EXPECT_THAT(
        [&] {
            Save([&](host::PropertyBag& bag) {
                try {
                    bag.WriteProperty(u"Name", Null{}, Empty{});
                } catch (const RuntimeError&) {
                    Report();
                }
            });
        },
        Raises(94));
    EXPECT_EQ(shown_.beeps, 1);
    EXPECT_EQ(shown_.messages, std::vector<Text>{u"report"});
}

TEST_F(Saving, FailsIfAValueCouldNotBeRead) {
    EXPECT_THAT([&] { Save([&](host::PropertyBag& /*bag*/) { Report(); }); }, Raises(31036));
    EXPECT_NO_THROW(Save([](host::PropertyBag& /*bag*/) {}));  // the former report does not count
}

TEST_F(Saving, LetsOtherErrorsThrough) {
    EXPECT_THAT(
        [&] { Save([](host::PropertyBag& /*bag*/) { Raise(ErrorNumber::InternalError); }); },
        Raises(51));
}

}  // namespace
}  // namespace lumenkit::shared
