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

std::vector<std::uint8_t> Saved(ControlCore& core) {
    StoredProperties properties;
    core.Save(properties);
    return stored::Encode(properties.GetRecords());
}

}  // namespace

void SaveTo(IStream& stream, ControlCore& core) {
    const std::vector<std::uint8_t> bytes = Saved(core);
    ULONG written = 0;
    Check(stream.Write(bytes.data(), static_cast<ULONG>(bytes.size()), &written));
    if (written != bytes.size()) {
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
        SaveTo(Checked(stream), core_);
        if (clearDirty != FALSE) {
            core_.SetDirty(false);
        }
    });
}

HRESULT PersistStream::GetSizeMax(ULARGE_INTEGER* size) {
    return Guarded([&] { Checked(size).QuadPart = Saved(core_).size(); });
}

HRESULT PersistStream::InitNew() {
    return Guarded([&] { core_.StartNew(); });
}

}  // namespace lumenkit::ole
