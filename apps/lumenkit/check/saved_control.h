// One control of a form as the checks look at it.
#pragma once

#include <optional>
#include <string>
#include <utility>

#include "apps/lumenkit/check/finding.h"
#include "forms/block.h"
#include "forms/document.h"
#include "forms/form_bag.h"
#include "frame/automation/value.h"
#include "frame/class_table.h"
#include "frame/runtime_error.h"
#include "frame/text.h"

namespace lumenkit::check {

/// Reads what the form saves for the control and turns remarks about it into findings with their
/// places. Whatever it is made from must outlive it.
class SavedControl {
 public:
    /// `type` is a control of the library.
    SavedControl(const forms::Document& document, forms::Block& block, const ClassDescriptor& type,
                 Findings& findings);

    const forms::Block& Block() const { return block_; }
    const ClassDescriptor& Type() const { return type_; }

    /// The saved value or the control's own default, as `convert` makes it. Where it does not
    /// convert there is a finding, and nothing is given.
    template <typename Convert>
    auto Read(TextView name, Convert convert)
        -> std::optional<decltype(convert(std::declval<const Value&>()))> {
        try {
            return convert(ValueOf(name));
        } catch (const RuntimeError& error) {
            Refuse(name, error);
            return std::nullopt;
        }
    }

    /// Remarks about the text of a property. There are none about one that is not saved.
    void Add(TextView property, TextView text, const Remarks& remarks);
    /// Remarks about the property as a whole.
    void AddWhole(TextView property, const Remarks& remarks);
    /// A remark about a name that stands at `place`.
    void AddAt(TextView property, forms::Position place, const Remark& remark);

 private:
    Value ValueOf(TextView name);
    void Refuse(TextView name, const RuntimeError& error);

    const forms::Document& document_;
    forms::Block& block_;
    const ClassDescriptor& type_;
    Findings& findings_;
    forms::FormBag bag_;
    std::string id_;
};

}  // namespace lumenkit::check
