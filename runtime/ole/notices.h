#pragma once

#include "runtime/ole/ole_header.h"

namespace lumenkit::ole {

/// Whom a control's container has asked to be told of its picture, its data and its life.
class Notices {
 public:
    // IViewObject::SetAdvise and GetAdvise.
    void SetView(DWORD aspects, DWORD flags, IAdviseSink* sink);
    void GetView(DWORD* aspects, DWORD* flags, IAdviseSink** sink) const;

    /// Made when it is first asked for; may raise a ComError.
    IOleAdviseHolder& Life();
    IDataAdviseHolder& Data();

    /// What the control shows has changed. `data` is where it can be had from.
    void PictureChanged(IDataObject& data);
    void Saved();
    void Closed();
    /// Lets go of all of them.
    void Clear();

 private:
    ComPtr<IAdviseSink> view_;
    DWORD viewAspects_ = 0;
    DWORD viewFlags_ = 0;
    ComPtr<IOleAdviseHolder> life_;
    ComPtr<IDataAdviseHolder> data_;
};

}  // namespace lumenkit::ole
