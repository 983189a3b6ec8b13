#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/memory/property_bag.h"
#include "tests/model/literal_option_list.h"
#include "tests/model/option_list_generator.h"
#include "tests/support/placed_option_list.h"

namespace lumenkit::testing {

/// A control and its literal model, used alike.
class OptionListTwins {
 public:
    /// Counts in `features`, which must outlive this, what it comes across.
    explicit OptionListTwins(ListFeatures& features);

    void Do(const ListStep& step);
    /// What is not the same; empty when all is.
    std::string Difference();
    /// The same for what can be read as properties. Reading may be refused, and so be logged.
    std::string PropertyDifference();

 private:
    Object& Control() { return placed_->Placed().Automation(); }
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
    std::string found_;             // what was not the same on the way
    std::vector<std::string> log_;  // of the control
};

/// Does `steps` one after another; what is not the same then, and what was done. Empty when all is.
std::string DifferenceAfter(const std::vector<ListStep>& steps, ListFeatures& features);

/// A fuzzer's input as uses of an option list, a line each: an action, a number and a text.
std::vector<ListStep> StepsFromBytes(std::string_view bytes);

}  // namespace lumenkit::testing
