#include "apps/lumenkit/check/fix/judgement.h"

#include <gtest/gtest.h>

#include "apps/lumenkit/check/rules.h"

namespace lumenkit::check {
namespace {

Finding About(const char* property, const Rule& rule, const char* message = "m") {
    Finding finding;
    finding.rule = rule.name;
    finding.property = property;
    finding.message = message;
    return finding;
}

bool IsAccepted(const Findings& before, const Findings& after) {
    return IsNoWorse(before, after, {"Caption"});
}

TEST(Judgement, CountsTheFindingsAboutTheMendedProperty) {
    const Finding note = About("Caption", rules::ineffectiveSize);
    const Finding warning = About("Caption", rules::unknownCommand);
    EXPECT_TRUE(IsAccepted({note}, {}));
    EXPECT_TRUE(IsAccepted({note}, {warning}));
    EXPECT_FALSE(IsAccepted({}, {note}));
    EXPECT_FALSE(IsAccepted({warning}, {note, note}));
}

TEST(Judgement, AcceptsNoFurtherErrors) {
    const Finding warning = About("Caption", rules::unknownCommand);
    for (const Rule& reported : {rules::numberOverflow, rules::drawingError, rules::unreadableValue,
                                 rules::drawingOverflow}) {
        const Finding error = About("Caption", reported);
        EXPECT_FALSE(IsAccepted({warning, warning}, {error})) << reported.name;
        EXPECT_TRUE(IsAccepted({error}, {error})) << reported.name;
    }
}

TEST(Judgement, AcceptsNoErrorInPlaceOfAnOverflow) {
    const Finding overflow = About("Caption", rules::drawingOverflow);
    const Finding error = About("Caption", rules::drawingError);
    EXPECT_FALSE(IsAccepted({overflow, overflow}, {error}));
    EXPECT_TRUE(IsAccepted({error}, {overflow}));
}

TEST(Judgement, AcceptsNoDifferenceAboutOtherProperties) {
    const Finding caption = About("Caption", rules::unknownCommand);
    const Finding font = About("Font", rules::unreadableValue);
    EXPECT_TRUE(IsAccepted({caption, font}, {font}));
    EXPECT_FALSE(IsAccepted({caption}, {font}));
    EXPECT_FALSE(IsAccepted({caption, font}, {}));
    EXPECT_FALSE(IsAccepted({font}, {About("Font", rules::unreadableValue, "other")}));
    EXPECT_FALSE(IsAccepted({font}, {About("Font", rules::drawingError)}));
    EXPECT_FALSE(IsAccepted({font}, {About("ForeColor", rules::unreadableValue)}));
}

}  // namespace
}  // namespace lumenkit::check
