#pragma once

#include "runtime/ole/control/control_core.h"
#include "runtime/ole/objects/facet.h"

namespace lumenkit::ole {

/// Write the control's settings at the position of the stream, and read them from there. They raise
/// a ComError for a stream that fails or contains other data; the control is unchanged then.
void SaveTo(IStream& stream, ControlCore& core);
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
