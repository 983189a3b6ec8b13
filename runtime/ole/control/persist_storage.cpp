#include "runtime/ole/control/persist_storage.h"

#include "runtime/ole/control/persist_stream.h"
#include "runtime/ole/module/identifiers.h"
#include "runtime/ole/values/result.h"

namespace lumenkit::ole {

namespace {

constexpr const wchar_t* streamName = L"Contents";

}  // namespace

HRESULT PersistStorage::GetClassID(CLSID* classId) {
    return Guarded([&] { Checked(classId) = GuidOf(core_.Type().uniqueIdentifier); });
}

HRESULT PersistStorage::InitNew(IStorage* storage) {
    return Guarded([&] {
        Checked(storage);
        core_.StartNew();
    });
}

HRESULT PersistStorage::Load(IStorage* storage) {
    return Guarded([&] {
        ComPtr<IStream> stream;
        Check(Checked(storage).OpenStream(streamName, nullptr, STGM_READ | STGM_SHARE_EXCLUSIVE, 0,
                                          &stream));
        LoadFrom(*stream.Get(), core_);
    });
}

HRESULT PersistStorage::Save(IStorage* storage, BOOL /*sameAsLoad*/) {
    return Guarded([&] {
        isSaved_ = false;
        Checked(storage);
        // A save that fails must leave the former stream in the storage.
        const std::vector<std::uint8_t> settings = SavedSettings(core_);
        ComPtr<IStream> stream;
        Check(storage->CreateStream(streamName, STGM_CREATE | STGM_WRITE | STGM_SHARE_EXCLUSIVE, 0,
                                    0, &stream));
        WriteTo(*stream.Get(), settings);
        isSaved_ = true;
    });
}

// The storage is not kept, so it need not be opened again.
HRESULT PersistStorage::SaveCompleted(IStorage* /*storage*/) {
    return Guarded([&] {
        if (isSaved_) {
            isSaved_ = false;
            core_.SetDirty(false);
            core_.GetNotices().Saved();
        }
    });
}

HRESULT PersistStorage::HandsOffStorage() {
    return S_OK;
}

}  // namespace lumenkit::ole
