// Calls through the vtable of a dual interface that is built from an interface table.
#pragma once

#include <cstdint>
#include <vector>

#include "frame/automation/interface_table.h"
#include "runtime/ole/values/ole_header.h"

namespace lumenkit::ole {

/// One entry of the vtable after those of IDispatch. A property has one entry for reading, then one
/// for assigning; a method has one entry.
struct Slot {
    const Member* member;
    InvokeKind kind;

    /// Returns the number of machine words that a caller passes, not counting the object itself.
    std::size_t WordCount() const;
    /// Whether the only word is a single-precision number by value, which is passed in a special
    /// register on some machines.
    bool TakesSingle() const;
    /// Whether all arguments fit into words.
    bool IsCallable() const;
};

/// Returns the slots in the order of the table, which is the order of the type library.
std::vector<Slot> SlotsOf(const InterfaceTable& table);

/// Runs one call: reads the arguments from the caller's words, uses the member, and writes the
/// result to the address in the last word. Errors are returned as results with error information.
HRESULT CallSlot(const Slot& slot, Object& object, const std::uintptr_t* words,
                 REFIID interfaceId) noexcept;

}  // namespace lumenkit::ole
