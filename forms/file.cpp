#include "forms/file.h"

#include <string>

#include "forms/companion_path.h"
#include "forms/disk.h"
#include "forms/form_error.h"
#include "forms/known_files.h"
#include "forms/path_names.h"
#include "forms/plain_file.h"

namespace lumenkit::forms {

namespace {

namespace fs = std::filesystem;

bool IsChanged(const KnownFiles& files, const fs::path& path) {
    const Fingerprint* const known = files.Find(Resolved(path));
    std::string bytes;
    return known != nullptr && Disk::System().Read(path, bytes) && *known != Fingerprint::Of(bytes);
}

void Accept(KnownFiles& files, const fs::path& path) {
    const fs::path resolved = Resolved(path);
    std::string bytes;
    if (files.Find(resolved) != nullptr && Disk::System().Read(path, bytes)) {
        files.Remember(resolved, bytes);
    }
}

}  // namespace

Document Load(const fs::path& path, int codePage) {
    FolderNames folders;
    return Load(path, codePage, folders);
}

Document Load(const fs::path& path, int codePage, FolderNames& folders) {
    KnownFiles files;
    const auto read = [&](const fs::path& file) {
        std::string bytes = ReadPlainFile(file);
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

void AcceptChangesOnDisk(const Document& document, const fs::path& path) {
    Accept(document.Files(), path);
    Accept(document.Files(), CompanionToSave(document, path));
}

}  // namespace lumenkit::forms
