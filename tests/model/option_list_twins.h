#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/memory/property_bag.h"
#include "tests/model/literal_option_list.h"
#include "tests/model/option_list_generator.h"
#include "tests/support/placed_option_list.h"

namespace lumenkit::testing {

/// A control and its literal model. Each step is done to both.
class OptionListTwins {
 public:
    /// Counts the situations that occur in `features`, which must outlive this object.
    explicit OptionListTwins(ListFeatures& features);

    void Do(const ListStep& step);
    /// Returns what differs; empty if nothing does.
    std::string Difference();
    /// The same for everything that can be read as a property. A refused read is logged.
    std::string PropertyDifference();

 private:
    Object& Control() { return placed_->Placed().Automation(); }
    template <typename Argument, typename Parameter>
    void Let(TextView name, const Argument& value, void (LiteralOptionList::*let)(Parameter));
    void LetItemForeColor(std::uint32_t color);
    void LetItemCaption(int index, const Text& caption);
    void UseNewFont(const Text& name);
    void UseNoFont();
    void MakeFontItalic(bool italic);
    void ClickButton(std::size_t index);
    void SetMode(bool isUserMode);
    void SetWidth(float width);
    void Reload();
    void Connect();
    std::string BagDifference(const memory::PropertyBag& bag, const LiteralBag& literal);
    std::string ButtonDifference(std::size_t index, const LiteralButton& literal,
                                 const memory::OptionButton& button);

    ListFeatures& features_;
    LiteralHost host_;
    std::unique_ptr<LiteralOptionList> literal_;
    std::unique_ptr<PlacedOptionList> placed_;
    ListReaction reaction_ = ListReaction::Nothing;
    std::string found_;             // differences found during a step
    std::vector<std::string> log_;  // of the control
};

/// Does `steps` one after another. Returns the first difference and the steps up to it; empty if
/// there is none.
std::string DifferenceAfter(const std::vector<ListStep>& steps, ListFeatures& features);

/// Converts a fuzzer's input to steps, one a line: an action, a number and a text.
std::vector<ListStep> StepsFromBytes(std::string_view bytes);

}  // namespace lumenkit::testing
