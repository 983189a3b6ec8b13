// One control of a form as the checks see it.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "apps/lumenkit/check/finding.h"
#include "apps/lumenkit/check/trial.h"
#include "forms/block.h"
#include "forms/document.h"
#include "forms/form_bag.h"
#include "frame/automation/value.h"
#include "frame/class_table.h"
#include "frame/runtime_error.h"
#include "frame/text.h"

namespace lumenkit::check {

/// Reads the saved properties of a control and turns remarks about them into findings with places.
/// The constructor's arguments must outlive this object.
class SavedControl {
 public:
    /// `type` is a control of the library.
    SavedControl(const forms::Document& document, forms::Block& block, const ClassDescriptor& type,
                 Findings& findings);

    const forms::Block& Block() const { return block_; }
    const ClassDescriptor& Type() const { return type_; }

    /// Returns the saved value, or the control's default, converted by `convert`. Returns nothing
    /// if the conversion fails, which the control reports itself when it is loaded.
    template <typename Convert>
    auto Read(TextView name, Convert convert)
        -> std::optional<decltype(convert(std::declval<const Value&>()))> {
        try {
            return convert(ValueOf(name));
        } catch (const RuntimeError&) {
            return std::nullopt;
        }
    }
    /// Returns the errors that the control reports when it is loaded and drawn.
    std::vector<TrialError> Try() const { return TryControl(document_, block_, type_); }

    /// Returns whether there is a finding about the property that stands for a reported error.
    bool HasError(TextView property) const;

    /// Adds remarks about the text of a property. Does nothing if the property is not saved.
    void Add(TextView property, TextView text, const Remarks& remarks);
    /// Adds remarks about a property as a whole. Does nothing if the property is not saved.
    void AddWhole(TextView property, const Remarks& remarks);
    /// Adds a remark about the name at `place`.
    void AddAt(TextView property, forms::Position place, const Remark& remark);
    /// Adds a remark about the control as a whole.
    void AddAboutControl(const Remark& remark) { AddAt({}, block_.NamePlace(), remark); }

 private:
    Value ValueOf(TextView name);

    const forms::Document& document_;
    forms::Block& block_;
    const ClassDescriptor& type_;
    Findings& findings_;
    std::size_t first_;  // the number of findings before those about this control
    forms::FormBag bag_;
    std::string id_;
};

}  // namespace lumenkit::check
