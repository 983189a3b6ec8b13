#pragma once

#include <array>

#include "runtime/ole/slot_call.h"
#include "runtime/win32/life.h"

namespace lumenkit::ole {

/// What stands behind a dual interface.
class DualTarget {
 public:
    virtual ~DualTarget() = default;

    virtual const InterfaceTable& Table() const = 0;
    /// The object whose members are used; it may have to be started first. May throw.
    virtual Object& Members() = 0;
    /// The interface's description in the type library; may throw.
    virtual ComPtr<ITypeInfo> Description() = 0;
};

/// A dual interface whose vtable is made from an interface table: that of IDispatch, followed by
/// one entry for each Slot.
class DualInterface {
 public:
    /// `life` is the target's, kept while one of the functions runs.
    DualInterface(DualTarget& target, IUnknown& controlling, win32::Life& life);
    ~DualInterface() = default;
    DualInterface(const DualInterface&) = delete;
    DualInterface& operator=(const DualInterface&) = delete;

    /// As clients hold it.
    IDispatch* AsDispatch() { return reinterpret_cast<IDispatch*>(&face_); }

    /// Most entries that a table may have, and most words that one of them may take.
    static constexpr std::size_t largestTable = 64;
    static constexpr std::size_t mostWords = 3;

 private:
    struct Functions;

    // What a COM client sees of an object: a pointer to functions, here followed by the way back.
    struct Face {
        const void* const* functions;
        DualInterface* owner;
    };

    HRESULT Call(std::size_t slot, const std::uintptr_t* words) noexcept;

    DualTarget& target_;
    IUnknown& controlling_;
    win32::Life& life_;
    std::vector<Slot> slots_;
    GUID interfaceId_;
    std::vector<const void*> functions_;
    Face face_ = {};
};

}  // namespace lumenkit::ole
