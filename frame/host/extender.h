#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "frame/automation/interface_table.h"
#include "frame/host/constituent.h"
#include "frame/text.h"

namespace lumenkit::host {

/// The container's extender of a control, as programs see it: Name (read-only), Tag, Left, Top,
/// Width, Height, Visible, and Move with one to four arguments. Each runtime implements the
/// accessors for its own controls. Lengths are in twips.
class Extender : public Object {
 public:
    std::optional<std::int32_t> FindMember(TextView name) const override;
    Value Invoke(std::int32_t identifier, InvokeKind kind, std::span<Value> arguments) override;

 protected:
    /// Returns the member with this identifier; null when there is none.
    const Member* Known(std::int32_t identifier) const;

 private:
    friend struct ExtenderMembers;

    virtual Text Name() const = 0;
    /// Returns whether the container provides Tag. If not, Tag raises 438 like any unknown member.
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
