// One control of a form as the checks see it.
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

/// Reads the saved properties of a control and turns remarks about them into findings with places.
/// The constructor's arguments must outlive this object.
class SavedControl {
 public:
    /// `type` is a control of the library.
    SavedControl(const forms::Document& document, forms::Block& block, const ClassDescriptor& type,
                 Findings& findings);

    const forms::Block& Block() const { return block_; }
    const ClassDescriptor& Type() const { return type_; }

    /// Returns the saved value, or the control's default, converted by `convert`. If the conversion
    /// fails, adds a finding and returns nothing.
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

    /// Does the same without adding a finding.
    template <typename Convert>
    auto ReadQuietly(TextView name, Convert convert)
        -> std::optional<decltype(convert(std::declval<const Value&>()))> {
        try {
            return convert(ValueOf(name));
        } catch (const RuntimeError&) {
            return std::nullopt;
        }
    }

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
    void Refuse(TextView name, const RuntimeError& error);

    const forms::Document& document_;
    forms::Block& block_;
    const ClassDescriptor& type_;
    Findings& findings_;
    forms::FormBag bag_;
    std::string id_;
};

}  // namespace lumenkit::check
