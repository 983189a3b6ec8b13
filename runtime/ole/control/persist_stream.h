#pragma once

#include <cstdint>
#include <vector>

#include "runtime/ole/control/control_core.h"
#include "runtime/ole/objects/facet.h"

namespace lumenkit::ole {

/// Returns the control's settings in the format of streams. Raises the error of a control that
/// could not save all of them.
std::vector<std::uint8_t> SavedSettings(ControlCore& core);

/// Write settings at the position of the stream, and read them from there. They raise a ComError
/// for a stream that fails or contains other data; the control is unchanged then.
void WriteTo(IStream& stream, const std::vector<std::uint8_t>& settings);
void LoadFrom(IStream& stream, ControlCore& core);

/// IPersistStreamInit. It also serves as IPersistStream, whose functions are its first ones.
class PersistStream final : public HeldFacet<IPersistStreamInit> {
 public:
    explicit PersistStream(ControlCore& core)
        : HeldFacet(core.Controlling(), core.GetLife()), core_(core) {}

    HRESULT STDMETHODCALLTYPE GetClassID(CLSID* classId) override;
    HRESULT STDMETHODCALLTYPE IsDirty() override { return core_.IsDirty() ? S_OK : S_FALSE; }
    HRESULT STDMETHODCALLTYPE Load(IStream* stream) override;
    HRESULT STDMETHODCALLTYPE Save(IStream* stream, BOOL clearDirty) override;
    HRESULT STDMETHODCALLTYPE GetSizeMax(ULARGE_INTEGER* size) override;
    HRESULT STDMETHODCALLTYPE InitNew() override;

 private:
    ControlCore& core_;
};

}  // namespace lumenkit::ole
