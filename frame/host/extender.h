#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "frame/automation/interface_table.h"
#include "frame/host/constituent.h"
#include "frame/text.h"

namespace lumenkit::host {

/// A control as its container shows it to programs: Name (read-only), Tag, Left, Top, Width,
/// Height, Visible, and Move with one to four arguments. A runtime says what these are for a
/// control of its own. Lengths are in twips.
class Extender : public Object {
 public:
    std::optional<std::int32_t> FindMember(TextView name) const override;
    Value Invoke(std::int32_t identifier, InvokeKind kind, std::span<Value> arguments) override;

 protected:
    /// The member with this identifier; null when there is none.
    const Member* Known(std::int32_t identifier) const;

 private:
    friend struct ExtenderMembers;

    virtual Text Name() const = 0;
    /// Whether the container has a Tag. Without one, Tag raises 438 as any unknown member.
    virtual bool HasTag() const { return true; }
    virtual Text Tag() const = 0;
    virtual void SetTag(TextView tag) = 0;
    virtual Placement Place() const = 0;
    /// Raises 380 for a negative width or height.
    virtual void Move(const Placement& place) = 0;
    virtual bool IsVisible() const = 0;
    virtual void SetVisible(bool visible) = 0;
};

}  // namespace lumenkit::host
