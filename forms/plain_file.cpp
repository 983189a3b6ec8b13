#include "forms/plain_file.h"

#include "forms/disk.h"
#include "forms/form_error.h"
#include "forms/path_names.h"
#include "forms/system_call.h"

namespace lumenkit::forms {

std::string ReadPlainFile(const std::filesystem::path& path) {
    FileState state;
    std::string bytes;
    if (Disk::System().Look(path, state) && state.exists && !state.isRegular) {
        throw FormError(NameOf(path), "is not a plain file");
    }
    if (state.size > largestFile) {
        throw FormError(NameOf(path),
                        "is larger than " + std::to_string(largestFile >> 20U) + " MB");
    }
    SystemCall call;
    if (!call.Run([&] { return Disk::System().Read(path, bytes); })) {
        throw FormError(NameOf(path), "cannot be read" + call.Reason());
    }
    return bytes;
}

}  // namespace lumenkit::forms
