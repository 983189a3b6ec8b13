#include "forms/file.h"

#include <string>

#include "forms/companion_path.h"
#include "forms/disk.h"
#include "forms/form_error.h"
#include "forms/known_files.h"
#include "forms/path_names.h"
#include "forms/system_call.h"

namespace lumenkit::forms {

namespace {

namespace fs = std::filesystem;

std::string ReadBytes(const fs::path& path) {
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

bool IsChanged(const KnownFiles& files, const fs::path& path) {
    const Fingerprint* const known = files.Find(Resolved(path));
    std::string bytes;
    return known != nullptr && Disk::System().Read(path, bytes) && *known != Fingerprint::Of(bytes);
}

}  // namespace

Document Load(const fs::path& path, int codePage) {
    FolderNames folders;
    return Load(path, codePage, folders);
}

Document Load(const fs::path& path, int codePage, FolderNames& folders) {
    KnownFiles files;
    const auto read = [&](const fs::path& file) {
        std::string bytes = ReadBytes(file);
        files.Remember(Resolved(file), bytes);
        return bytes;
    };
    const std::string form = read(path);
    const auto readCompanion = [&](const std::string& name) {
        const CompanionName companion{name, Encoding::Of(form, codePage).NameBytes(name)};
        return read(CompanionPath(
            path, companion, [](const fs::path&) { return true; }, folders));
    };
    Document document = Document::Parse(NameOf(path), form, readCompanion, codePage);
    document.Files() = std::move(files);
    return document;
}

void Save(const Document& document, const fs::path& path, Replacing replacing) {
    SaveOn(Disk::System(), document, path, replacing);
}

bool IsChangedOnDisk(const Document& document, const fs::path& path) {
    return IsChanged(document.Files(), path) ||
           IsChanged(document.Files(), CompanionToSave(document, path));
}

}  // namespace lumenkit::forms
