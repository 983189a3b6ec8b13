#pragma once

#include <array>

#include "runtime/ole/objects/slot_call.h"
#include "runtime/win32/life.h"

namespace lumenkit::ole {

/// The object that a dual interface calls.
class DualTarget {
 public:
    virtual ~DualTarget() = default;

    virtual const InterfaceTable& Table() const = 0;
    /// Returns the object whose members are used, and starts it first if needed. May throw.
    virtual Object& Members() = 0;
    /// Returns the description of the interface in the type library. May throw.
    virtual ComPtr<ITypeInfo> Description() = 0;
};

/// A dual interface whose vtable is built from an interface table: the entries of IDispatch,
/// followed by one entry for each Slot.
class DualInterface {
 public:
    /// `life` is the life of the target. It is held while one of the functions runs.
    DualInterface(DualTarget& target, IUnknown& controlling, win32::Life& life);
    ~DualInterface() = default;
    DualInterface(const DualInterface&) = delete;
    DualInterface& operator=(const DualInterface&) = delete;

    /// Returns the pointer that clients hold.
    IDispatch* AsDispatch() { return reinterpret_cast<IDispatch*>(&face_); }

    /// The most entries that a table may have, and the most words that one entry may take.
    static constexpr std::size_t largestTable = 64;
    static constexpr std::size_t mostWords = 3;

 private:
    struct Functions;

    // The part that a COM client sees: a pointer to the functions. The pointer to the owner follows
    // it.
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
