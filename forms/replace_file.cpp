#include "forms/replace_file.h"

#include "forms/beside_file.h"
#include "forms/disk.h"

namespace lumenkit::forms {

void ReplaceFile(const std::filesystem::path& path, const std::string& bytes) {
    Disk& disk = Disk::System();
    const Place place(path, bytes);
    const FileState old = LookAt(disk, place);
    BesideFile file(disk, place);
    file.Write(bytes, old);
    if (!file.TakePlace()) {
        RefuseToWrite(place, file.Reason());
    }
}

}  // namespace lumenkit::forms
