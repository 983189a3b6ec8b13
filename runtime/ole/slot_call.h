// Calls through the vtable of a dual interface that is made from an interface table.
#pragma once

#include <cstdint>
#include <vector>

#include "frame/automation/interface_table.h"
#include "runtime/ole/ole_header.h"

namespace lumenkit::ole {

/// One entry of the vtable behind those of IDispatch. A property has one for reading, then one for
/// assigning; a method has one.
struct Slot {
    const Member* member;
    InvokeKind kind;

    /// Machine words that a caller passes, the object itself not counted.
    std::size_t WordCount() const;
    /// Whether the only word is a single-precision number by value, which has a register of its own
    /// on some machines.
    bool TakesSingle() const;
    /// Whether all arguments fit into words.
    bool IsCallable() const;
};

/// In the order of the table, which is that of the type library.
std::vector<Slot> SlotsOf(const InterfaceTable& table);

/// One call: reads the arguments from the caller's words, uses the member, writes the result to
/// where the last word points. Errors are results with error information.
HRESULT CallSlot(const Slot& slot, Object& object, const std::uintptr_t* words,
                 REFIID interfaceId) noexcept;

}  // namespace lumenkit::ole
