#pragma once

#include <cstdint>
#include <list>
#include <utility>
#include <vector>

#include "frame/automation/value.h"
#include "frame/host/constituent.h"
#include "frame/host/mouse.h"
#include "frame/text.h"
#include "runtime/memory/elements.h"
#include "runtime/memory/fault_plan.h"
#include "runtime/memory/focus.h"

namespace lumenkit::memory {

/// Names and values in a fixed order. The names are literals.
using PropertyList = std::vector<std::pair<TextView, Value>>;

enum class MouseAction { Down, Move, Up };

/// The data that the runtime keeps for every kind of constituent, and the functions that deliver
/// user input to it. None of the functions counts as a call of the host contract.
class Element : public FocusTarget {
 public:
    ~Element() override;
    Element(const Element&) = delete;
    Element& operator=(const Element&) = delete;

    TextView Kind() const { return kind_; }  ///< "TextBox"
    const Text& Name() const { return name_; }
    std::int16_t Index() const { return index_; }  ///< in a control array, else -1
    /// For example "labChar" or "Text1(0)".
    const Text& FullName() const { return fullName_; }
    const host::Placement& Where() const { return placement_; }
    bool IsVisible() const { return visible_; }
    bool IsEnabled() const { return enabled_; }
    /// Number of calls of Refresh so far.
    std::int32_t RefreshCount() const { return refreshes_; }

    /// Returns whether the user can operate it: it, its parents and its control are visible and
    /// enabled.
    bool AcceptsInput() const;
    /// Returns its readable properties. Fonts are the shared objects.
    virtual PropertyList Properties() const;

    // Deliver user input; a kind that does not respond to it does nothing.
    virtual bool TakesFocus() const { return false; }
    virtual void ReceiveClick() {}
    virtual void ReceiveDblClick() {}
    virtual void ReceiveMouse(MouseAction /*action*/, host::MouseArguments /*mouse*/) {}

 protected:
    /// `kind` is a literal. Throws std::logic_error for a parent of another runtime.
    Element(Elements& elements, TextView kind, const host::Design& design);

    void Call(TextView member) const { faults_.Call(kind_, member); }
    /// Raises 380 for a negative width or height.
    void MoveTo(const host::Placement& placement);
    void BecomeVisible(bool visible) { visible_ = visible; }
    void BecomeEnabled(bool enabled) { enabled_ = enabled; }
    void RepaintNow() { ++refreshes_; }
    const Elements& Siblings() const { return elements_; }
    const Element* Parent() const { return parent_; }

 private:
    Elements& elements_;
    FaultPlan& faults_;
    TextView kind_;
    Text name_;
    std::int16_t index_;
    Text fullName_;
    const Element* parent_;
    host::Placement placement_;
    bool visible_;
    bool enabled_ = true;
    std::int32_t refreshes_ = 0;
    std::list<Element*>::iterator position_;  // in the list of elements_
};

}  // namespace lumenkit::memory
