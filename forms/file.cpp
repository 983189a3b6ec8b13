#include "forms/file.h"

#include <string>

#include "forms/disk.h"
#include "forms/form_error.h"
#include "forms/known_files.h"

namespace lumenkit::forms {

namespace {

namespace fs = std::filesystem;

std::string ReadBytes(const fs::path& path) {
    std::string bytes;
    if (!Disk::System().Read(path, bytes)) {
        throw FormError(NameOf(path), "cannot be read");
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
    KnownFiles files;
    const auto read = [&](const fs::path& file) {
        std::string bytes = ReadBytes(file);
        files.Remember(Resolved(file), bytes);
        return bytes;
    };
    const auto readCompanion = [&](const std::string& fileName) {
        return read(Beside(path, fileName));
    };
    Document document = Document::Parse(NameOf(path), read(path), readCompanion, codePage);
    document.Files() = std::move(files);
    return document;
}

void Save(const Document& document, const fs::path& path, Replacing replacing) {
    SaveOn(Disk::System(), document, path, replacing);
}

bool IsChangedOnDisk(const Document& document, const fs::path& path) {
    return IsChanged(document.Files(), path) ||
           IsChanged(document.Files(), Beside(path, document.CompanionName()));
}

}  // namespace lumenkit::forms
