#include "forms/file.h"

#include <optional>
#include <string>
#include <utility>

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

// Returns the present contents of a file that the document knows; nothing for another one.
std::optional<std::string> Present(const KnownFiles& files, const fs::path& path) {
    std::string bytes;
    const bool isKnown = files.Find(Resolved(path)) != nullptr;
    return isKnown && Disk::System().Read(path, bytes) ? std::optional(std::move(bytes))
                                                       : std::nullopt;
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
    return !ChangedOnDisk(document, path).empty();
}

fs::path ChangedOnDisk(const Document& document, const fs::path& path) {
    for (const fs::path& file : {path, CompanionToSave(document, path)}) {
        if (IsChanged(document.Files(), file)) {
            return file;
        }
    }
    return {};
}

void AcceptChangesOnDisk(const Document& document, const fs::path& path) {
    KnownFiles& files = document.Files();
    if (const auto form = Present(files, path)) {
        files.Remember(Resolved(path), *form);
    }
    const fs::path companion = CompanionToSave(document, path);
    if (auto bytes = Present(files, companion)) {
        files.Keep(Resolved(companion), *std::move(bytes));
    }
}

}  // namespace lumenkit::forms
