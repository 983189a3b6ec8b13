// Controls of a form that end while the session goes on.
#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "apps/lumenkit/drive/loaded_form.h"
#include "forms/document.h"
#include "project/lumenkit_classes.h"

namespace lumenkit::cli {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

// A and E stand alone. B has C and, at another depth, D in it, with a frame in between.
constexpr const char* nested =
    "VERSION 5.00\n"
    "Begin VB.Form F\n"
    "   Begin lumenkit.VLabel A\n"
    "   End\n"
    "   Begin lumenkit.VLabel B\n"
    "      Begin lumenkit.VMemo C\n"
    "      End\n"
    "      Begin VB.Frame Frame1\n"
    "         Begin lumenkit.VOptList D\n"
    "         End\n"
    "      End\n"
    "   End\n"
    "   Begin lumenkit.VMemo E\n"
    "   End\n"
    "End\n";

class FormWithDrops : public ::testing::Test {
 protected:
    memory::HostedControl& Control(const std::string& id) {
        for (const LoadedForm::Living& one : living) {
            if (one.id == id) {
                return *one.control;
            }
        }
        throw std::out_of_range(id);
    }
    std::string Written() {
        loaded.Update();
        return loaded.Document().Write().form;
    }

    memory::Form form{lumenkitClasses};
    LoadedForm loaded{forms::Document::Parse("x.frm", nested, {}), lumenkitClasses};
    std::vector<LoadedForm::Living> living = loaded.Start(form, false);
};

TEST_F(FormWithDrops, AControlGoesWithThoseInsideIt) {
    EXPECT_THAT(loaded.Within("A"), ElementsAre("A"));
    EXPECT_THAT(loaded.Within("B"), ElementsAre("B", "C", "D"));
    EXPECT_THAT(loaded.Within("E"), ElementsAre("E"));
    loaded.Drop("B");
    for (const char* id : {"B", "C", "D"}) {
        EXPECT_FALSE(loaded.Has(id)) << id;
    }
    EXPECT_TRUE(loaded.Has("A"));
    EXPECT_TRUE(loaded.Has("E"));
    std::erase_if(living, [](const auto& one) { return one.id >= "B" && one.id <= "D"; });
    EXPECT_EQ(Written(),
              "VERSION 5.00\n"
              "Begin VB.Form F\n"
              "   Begin lumenkit.VLabel A\n"
              "   End\n"
              "   Begin lumenkit.VMemo E\n"
              "   End\n"
              "End\n");
}

TEST_F(FormWithDrops, AControlInsideAnotherGoesAlone) {
    loaded.Drop("D");
    EXPECT_THAT(loaded.Within("B"), ElementsAre("B", "C"));
    EXPECT_THAT(Written(), Not(HasSubstr("VOptList")));
    EXPECT_THAT(Written(), HasSubstr("      Begin VB.Frame Frame1\n      End\n"));
}

TEST_F(FormWithDrops, OneAfterTheOtherAndBetweenWrites) {
    loaded.Drop("C");
    loaded.Drop("B");
    EXPECT_THAT(Written(), Not(HasSubstr("Begin lumenkit.VLabel B")));
    loaded.Drop("A");
    EXPECT_THAT(Written(), Not(HasSubstr("VLabel")));
    EXPECT_THAT(Written(), HasSubstr("Begin lumenkit.VMemo E"));
}

TEST_F(FormWithDrops, TheOthersAreStillSaved) {
    loaded.Drop("A");
    Control("E").Automation().Let(u"MaxLines", std::int32_t{3});
    EXPECT_THAT(Written(), HasSubstr("Begin lumenkit.VMemo E\n      MaxLines"));
}

}  // namespace
}  // namespace lumenkit::cli
