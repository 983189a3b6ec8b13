#include "runtime/ole/control/persist_stream.h"

#include <algorithm>
#include <array>

#include "runtime/ole/module/identifiers.h"
#include "runtime/ole/stored/stream_format.h"
#include "runtime/ole/values/result.h"
#include "runtime/ole/values/stored_properties.h"

namespace lumenkit::ole {

namespace {

// Appends `count` bytes in pieces, so that a wrong count does not allocate too much memory.
void Read(IStream& stream, std::size_t count, std::vector<std::uint8_t>& bytes) {
    std::array<std::uint8_t, 4096> piece = {};
    while (count > 0) {
        ULONG read = 0;
        Check(stream.Read(piece.data(), static_cast<ULONG>(std::min(count, piece.size())), &read));
        if (read == 0) {
            throw ComError(STG_E_READFAULT);
        }
        bytes.insert(bytes.end(), piece.begin(), piece.begin() + read);
        count -= read;
    }
}

}  // namespace

std::vector<std::uint8_t> SavedSettings(ControlCore& core) {
    StoredProperties properties;
    core.Save(properties);
    return stored::Encode(properties.GetRecords());
}

void WriteTo(IStream& stream, const std::vector<std::uint8_t>& settings) {
    ULONG written = 0;
    Check(stream.Write(settings.data(), static_cast<ULONG>(settings.size()), &written));
    if (written != settings.size()) {
        throw ComError(STG_E_MEDIUMFULL);
    }
}

void LoadFrom(IStream& stream, ControlCore& core) {
    std::vector<std::uint8_t> bytes;
    Read(stream, stored::encodedHeaderSize, bytes);
    Read(stream, stored::EncodedRest(bytes), bytes);
    StoredProperties properties(stored::Decode(bytes));
    core.Load(properties);
}

HRESULT PersistStream::GetClassID(CLSID* classId) {
    return Guarded([&] { Checked(classId) = GuidOf(core_.Type().uniqueIdentifier); });
}

HRESULT PersistStream::Load(IStream* stream) {
    return Guarded([&] { LoadFrom(Checked(stream), core_); });
}

HRESULT PersistStream::Save(IStream* stream, BOOL clearDirty) {
    return Guarded([&] {
        WriteTo(Checked(stream), SavedSettings(core_));
        if (clearDirty != FALSE) {
            core_.SetDirty(false);
        }
    });
}

HRESULT PersistStream::GetSizeMax(ULARGE_INTEGER* size) {
    return Guarded([&] { Checked(size).QuadPart = SavedSettings(core_).size(); });
}

HRESULT PersistStream::InitNew() {
    return Guarded([&] { core_.StartNew(); });
}

}  // namespace lumenkit::ole
