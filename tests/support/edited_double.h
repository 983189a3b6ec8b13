// A test double for the control that a caption page edits. It is an object without a class; the
// page finds its members by name.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "frame/automation/value.h"
#include "frame/runtime_error.h"

namespace lumenkit::testing {

/// Has a Caption, BulletPrefix, BulletIndent, WordWrap, BackColor, ForeColor, Font and
/// GetProperty("Width" / "Height"), and records how they are used.
class EditedDouble final : public Object {
 public:
    /// `font` is the value of Font. Width and height are in twips.
    explicit EditedDouble(ObjectRef font, float width = 3000, float height = 1500);

    std::optional<std::int32_t> FindMember(TextView name) const override;
    Value Invoke(std::int32_t identifier, InvokeKind kind, std::span<Value> arguments) override;

    /// Accesses the value of the member without recording it.
    Value& Held(TextView name) { return values_.at(Text(name)); }
    /// Removes the member.
    void Remove(TextView name) { values_.erase(Text(name)); }
    /// Makes the member raise `error` from now on: FailRead when it is read or called, FailAssign
    /// when it is assigned.
    void FailRead(TextView name, const RuntimeError& error) { readErrors_.emplace(name, error); }
    void FailAssign(TextView name, const RuntimeError& error) {
        assignErrors_.emplace(name, error);
    }
    void StopFailing();

    /// Returns the uses since the last call: "get Caption", "call GetProperty Width",
    /// "let BulletIndent Integer 12".
    std::vector<std::string> TakeLog();

 private:
    Value Read(const Text& name, std::span<Value> arguments) const;

    float width_;
    float height_;
    std::map<Text, Value> values_;
    std::map<Text, RuntimeError> readErrors_;
    std::map<Text, RuntimeError> assignErrors_;
    mutable std::vector<Text> names_;  // by identifier
    std::vector<std::string> log_;
};

/// Returns the value with its type: "Boolean True", "Integer 12", "String x", "Object".
std::string TypedText(const Value& value);

}  // namespace lumenkit::testing
