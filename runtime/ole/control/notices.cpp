#include "runtime/ole/control/notices.h"

#include <utility>

#include "runtime/ole/values/result.h"

namespace lumenkit::ole {

namespace {

constexpr LONG wholeObject = -1;

}  // namespace

void Notices::SetView(DWORD aspects, DWORD flags, IAdviseSink* sink) {
    view_ = sink;
    viewAspects_ = aspects;
    viewFlags_ = flags;
    if (sink != nullptr && (flags & ADVF_PRIMEFIRST) != 0) {
        sink->OnViewChange(DVASPECT_CONTENT, wholeObject);
    }
}

void Notices::GetView(DWORD* aspects, DWORD* flags, IAdviseSink** sink) const {
    if (aspects != nullptr) {
        *aspects = viewAspects_;
    }
    if (flags != nullptr) {
        *flags = viewFlags_;
    }
    if (sink != nullptr) {
        *sink = ComPtr<IAdviseSink>(view_).Detach();
    }
}

IOleAdviseHolder& Notices::Life() {
    if (life_ == nullptr) {
        Check(CreateOleAdviseHolder(&life_));
    }
    return *life_.Get();
}

IDataAdviseHolder& Notices::Data() {
    if (data_ == nullptr) {
        Check(CreateDataAdviseHolder(&data_));
    }
    return *data_.Get();
}

void Notices::PictureChanged(IDataObject& data) {
    if ((viewAspects_ & DVASPECT_CONTENT) != 0 && view_ != nullptr) {
        const ComPtr<IAdviseSink> told = view_;
        if ((viewFlags_ & ADVF_ONLYONCE) != 0) {
            view_.Reset();
        }
        told->OnViewChange(DVASPECT_CONTENT, wholeObject);
    }
    if (data_ != nullptr) {
        ComPtr<IDataAdviseHolder>(data_)->SendOnDataChange(&data, 0, 0);
    }
}

void Notices::Saved() {
    if (life_ != nullptr) {
        ComPtr<IOleAdviseHolder>(life_)->SendOnSave();
    }
}

void Notices::Closed() {
    if (life_ != nullptr) {
        ComPtr<IOleAdviseHolder>(life_)->SendOnClose();
    }
}

void Notices::Clear() {
    // Releasing the sinks may run any code.
    const auto view = std::exchange(view_, nullptr);
    const auto life = std::exchange(life_, nullptr);
    const auto data = std::exchange(data_, nullptr);
}

}  // namespace lumenkit::ole
