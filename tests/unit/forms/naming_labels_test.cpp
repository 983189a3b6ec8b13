#include "forms/naming_labels.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "frame/utf8.h"
#include "tests/unit/forms/sample_forms.h"

namespace lumenkit::forms::testing {
namespace {

using ::testing::ElementsAre;

// Returns "control < label" for each control of a form with these blocks, in tab order.
std::vector<std::string> LabelsIn(const std::string& blocks) {
    const Document form = ParseBytes("VERSION 5.00\nBegin VB.Form F\n" + blocks + "End\n");
    std::vector<std::string> found;
    for (const auto& [control, label] : NamingLabels(form.Root())) {
        found.push_back(ToUtf8(control->Name()) +
                        (label == nullptr ? "" : " < " + ToUtf8(label->Name())));
    }
    return found;
}

std::string Control(const std::string& type, const std::string& name, int turn,
                    const std::string& inside = "") {
    const std::string index = turn < 0 ? "" : "TabIndex = " + std::to_string(turn) + "\n";
    return "Begin " + type + ' ' + name + '\n' + index + inside + "End\n";
}

TEST(NamingLabels, AreDirectlyBeforeTheControlInTabOrder) {
    EXPECT_THAT(LabelsIn(Control("lumenkit.VMemo", "memo", 3) + Control("VB.Label", "second", 2) +
                         Control("VB.TextBox", "box", 1) + Control("LUMENKIT.vlabel", "first", 0)),
                ElementsAre("first", "box < first", "second", "memo < second"));
    EXPECT_THAT(LabelsIn(Control("VB.Label", "label", 0) + Control("VB.TextBox", "box", 1) +
                         Control("lumenkit.VMemo", "memo", 2)),
                ElementsAre("label", "box < label", "memo"));
}

TEST(NamingLabels, FollowTheFileWithoutTabIndex) {
    EXPECT_THAT(
        LabelsIn(Control("VB.Label", "label", -1) + Control("VB.Line", "line", -1) +
                 Control("lumenkit.VMemo", "memo", -1) + Control("lumenkit.VOptList", "list", 7)),
        ElementsAre("list", "label", "memo < label"));
}

TEST(NamingLabels, StayInTheirContainer) {
    EXPECT_THAT(
        LabelsIn(Control("VB.Label", "outside", 0) +
                 Control("VB.Frame", "frame", 1,
                         Control("lumenkit.VMemo", "inner", 2) + Control("VB.Label", "last", 3)) +
                 Control("lumenkit.VMemo", "outer", 4)),
        ElementsAre("outside", "frame < outside", "inner", "last", "outer"));
}

}  // namespace
}  // namespace lumenkit::forms::testing
