#pragma once

#include "runtime/ole/values/ole_header.h"

namespace lumenkit::ole {

/// The container's advise connections to the picture, the data and the life of a control.
class Notices {
 public:
    // IViewObject::SetAdvise and GetAdvise.
    void SetView(DWORD aspects, DWORD flags, IAdviseSink* sink);
    void GetView(DWORD* aspects, DWORD* flags, IAdviseSink** sink) const;

    /// Created at the first call. May raise a ComError.
    IOleAdviseHolder& Life();
    IDataAdviseHolder& Data();

    /// Notifies that the picture of the control has changed. `data` provides the new picture.
    void PictureChanged(IDataObject& data);
    void Saved();
    void Closed();
    /// Releases all sinks.
    void Clear();

 private:
    ComPtr<IAdviseSink> view_;
    DWORD viewAspects_ = 0;
    DWORD viewFlags_ = 0;
    ComPtr<IOleAdviseHolder> life_;
    ComPtr<IDataAdviseHolder> data_;
};

}  // namespace lumenkit::ole
