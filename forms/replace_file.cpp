#include "forms/replace_file.h"

#include "forms/beside_file.h"
#include "forms/disk.h"
#include "forms/form_error.h"
#include "forms/save_lock.h"

namespace lumenkit::forms {

namespace {

void TakePlace(BesideFile& file, const Place& place) {
    if (!file.TakePlace()) {
        RefuseToWrite(place, file.Reason());
    }
}

}  // namespace

void ReplaceFile(const std::filesystem::path& path, const std::string& bytes) {
    Disk& disk = Disk::System();
    const Place place(path, bytes);
    const FileState old = LookAt(disk, place);
    BesideFile file(disk, place);
    file.Write(bytes, old);
    TakePlace(file, place);
}

void ReplaceKnownFile(const std::filesystem::path& path, const Replacement& contents) {
    Disk& disk = Disk::System();
    const Place place(path, contents.next);
    LookAt(disk, place);  // tells a read-only file as such even if its folder is read-only too
    const SaveLock lock(disk, place);
    BesideFile file(disk, place);
    file.Write(contents.next, LookAt(disk, place));
    std::string present;
    if (!disk.Read(place.path, present) || present != contents.known) {
        throw FormError(place.name, "was changed by another program since it was read");
    }
    TakePlace(file, place);
}

}  // namespace lumenkit::forms
