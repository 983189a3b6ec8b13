#include "runtime/ole/objects/dual_interface.h"

#include <bit>
#include <utility>

#include "runtime/ole/module/identifiers.h"
#include "runtime/ole/objects/dispatch.h"
#include "runtime/ole/values/result.h"

namespace lumenkit::ole {

// Plain functions with the object as first parameter are called in the same way as COM methods.
struct DualInterface::Functions {
    static DualInterface& Owner(Face* self) { return *self->owner; }

    static HRESULT STDMETHODCALLTYPE QueryInterface(Face* self, const IID* iid, void** object) {
        return Owner(self).controlling_.QueryInterface(*iid, object);
    }
    static ULONG STDMETHODCALLTYPE AddRef(Face* self) { return Owner(self).controlling_.AddRef(); }
    static ULONG STDMETHODCALLTYPE Release(Face* self) {
        return Owner(self).controlling_.Release();
    }

    static HRESULT STDMETHODCALLTYPE GetTypeInfoCount(Face* /*self*/, UINT* count) {
        return Guarded([&] { Checked(count) = 1; });
    }
    static HRESULT STDMETHODCALLTYPE GetTypeInfo(Face* self, UINT index, LCID /*locale*/,
                                                 ITypeInfo** information) {
        return Guarded([&] {
            Checked(information) = nullptr;
            if (index != 0) {
                return DISP_E_BADINDEX;
            }
            *information = Owner(self).target_.Description().Detach();
            return S_OK;
        });
    }
    static HRESULT STDMETHODCALLTYPE GetIDsOfNames(Face* self, const IID* iid, LPOLESTR* names,
                                                   UINT count, LCID /*locale*/, DISPID* found) {
        return FindIdentifiers(Owner(self).target_.Table(), *iid, names, count, found);
    }
    static HRESULT STDMETHODCALLTYPE Invoke(Face* self, DISPID identifier, const IID* iid,
                                            LCID /*locale*/, WORD flags, DISPPARAMS* parameters,
                                            VARIANT* result, EXCEPINFO* exception,
                                            UINT* wrongArgument) {
        if (*iid != IID_NULL) {
            return DISP_E_UNKNOWNINTERFACE;
        }
        const win32::Life::Hold hold(&Owner(self).life_);
        return Guarded([&] {
            DualTarget& target = Owner(self).target_;
            return InvokeMember(target.Table(), target.Members(),
                                {identifier, flags, parameters, result, exception, wrongArgument});
        });
    }

    template <std::size_t number, typename... Words>
    static HRESULT STDMETHODCALLTYPE Entry(Face* self, Words... words) {
        const std::array<std::uintptr_t, sizeof...(Words) + 1> all = {words...};
        return Owner(self).Call(number, all.data());
    }
    template <std::size_t number>
    static HRESULT STDMETHODCALLTYPE SingleEntry(Face* self, float single) {
        const std::uintptr_t word = std::bit_cast<std::uint32_t>(single);
        return Owner(self).Call(number, &word);
    }

    using Word = std::uintptr_t;
    template <std::size_t number>
    static const void* EntryFor(const Slot& slot) {
        if (slot.TakesSingle()) {
            return Address(&SingleEntry<number>);
        }
        switch (slot.WordCount()) {
            case 0:
                return Address(&Entry<number>);
            case 1:
                return Address(&Entry<number, Word>);
            case 2:
                return Address(&Entry<number, Word, Word>);
            default:
                return Address(&Entry<number, Word, Word, Word>);
        }
    }

    template <std::size_t... number>
    static constexpr auto Makers(std::index_sequence<number...> /*numbers*/) {
        return std::array{&EntryFor<number>...};
    }

    template <typename Function>
    static const void* Address(Function* function) {
        return reinterpret_cast<const void*>(function);
    }
};

DualInterface::DualInterface(DualTarget& target, IUnknown& controlling, win32::Life& life)
    : target_(target),
      controlling_(controlling),
      life_(life),
      slots_(SlotsOf(target.Table())),
      interfaceId_(GuidOf(target.Table().uniqueIdentifier)) {
    functions_ = {Functions::Address(&Functions::QueryInterface),
                  Functions::Address(&Functions::AddRef),
                  Functions::Address(&Functions::Release),
                  Functions::Address(&Functions::GetTypeInfoCount),
                  Functions::Address(&Functions::GetTypeInfo),
                  Functions::Address(&Functions::GetIDsOfNames),
                  Functions::Address(&Functions::Invoke)};
    static constexpr auto makers = Functions::Makers(std::make_index_sequence<largestTable>());
    for (std::size_t number = 0; number < slots_.size() && number < largestTable; ++number) {
        functions_.push_back(makers[number](slots_[number]));
    }
    face_ = {functions_.data(), this};
}

HRESULT DualInterface::Call(std::size_t slot, const std::uintptr_t* words) noexcept {
    const win32::Life::Hold hold(&life_);
    return Guarded([&] { return CallSlot(slots_[slot], target_.Members(), words, interfaceId_); },
                   interfaceId_);
}

}  // namespace lumenkit::ole
