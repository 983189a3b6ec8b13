#include "forms/file.h"

#include <array>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

#include "forms/flush.h"
#include "frame/text.h"
#include "frame/utf8.h"

namespace lumenkit::forms {

namespace {

namespace fs = std::filesystem;

std::string NameOf(const fs::path& path) {
    const std::u8string name = path.u8string();
    return {name.begin(), name.end()};
}

bool IsSameName(const fs::path& path, TextView fileName) {
    try {
        return SameText(FromUtf8(NameOf(path.filename())), fileName, Compare::IgnoreCase);
    } catch (const MalformedUtf8&) {
        return false;
    }
}

// Returns the file with this name, in any case. Empty if there is none.
fs::path FindInFolder(const fs::path& folder, const std::string& fileName) {
    const Text name = FromUtf8(fileName);
    std::error_code error;
    for (fs::directory_iterator entry(folder.empty() ? fs::path(".") : folder, error), end;
         !error && entry != end; entry.increment(error)) {
        if (IsSameName(entry->path(), name)) {
            return folder / entry->path().filename();
        }
    }
    return {};
}

fs::path Beside(const fs::path& path, const std::string& fileName) {
    return path.parent_path() / fs::path(std::u8string(fileName.begin(), fileName.end()));
}

std::string ReadBytes(const fs::path& path) {
    std::error_code unknown;
    std::ifstream stream(path, std::ios::binary);
    if (!stream || fs::is_directory(path, unknown)) {
        throw FormError(NameOf(path), "cannot be read");
    }
    std::string bytes{std::istreambuf_iterator<char>(stream), {}};
    if (stream.bad()) {
        throw FormError(NameOf(path), "cannot be read");
    }
    return bytes;
}

// Whether the file is an earlier state of the companion, which only grows.
bool BeginsWith(std::string_view companion, const fs::path& path) {
    try {
        return companion.starts_with(ReadBytes(path));
    } catch (const FormError&) {
        return false;
    }
}

// Returns the file of the companion: beside the form, or beside the file to which the form is a
// link; of these, the one with the exact name, or else one whose name differs in case only and that
// `isMeant` accepts. For a companion that does not exist, returns the place for a new one.
template <typename IsMeant>
fs::path CompanionOf(const fs::path& form, const std::string& fileName, const IsMeant& isMeant) {
    std::error_code error;
    const fs::path target = fs::canonical(form, error);
    const std::array<fs::path, 2> forms = {form, error ? form : target};
    for (const fs::path& place : forms) {
        if (fs::exists(Beside(place, fileName), error)) {
            return Beside(place, fileName);
        }
    }
    for (const fs::path& place : forms) {
        const fs::path found = FindInFolder(place.parent_path(), fileName);
        if (!found.empty() && isMeant(found)) {
            return found;
        }
    }
    return Beside(fs::is_symlink(form, error) ? forms.back() : form, fileName);
}

// New contents of a file. They are written next to the file and removed by the destructor unless
// they replaced the file.
class NewFile {
 public:
    NewFile(const fs::path& target, std::string_view bytes) : NewFile(target) {
        std::ofstream stream(beside_, std::ios::binary);
        stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        stream.close();
        if (!stream || !FlushFile(beside_)) {
            throw FormError(NameOf(target_), "cannot be written");
        }
    }
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;
    ~NewFile() {
        std::error_code gone;
        fs::remove(beside_, gone);
    }

    // Must not allocate memory: running out of memory here would leave a new companion with an old
    // form.
    void TakePlace() {
        std::error_code error;
        const fs::file_status old = fs::status(target_, error);
        if (fs::is_regular_file(old)) {
            fs::permissions(beside_, old.permissions(), error);
        }
        fs::rename(beside_, target_, error);
        if (error) {
            throw FormError(NameOf(target_), "cannot be written");
        }
        FlushFolder(folder_);
    }

 private:
    // A delegated constructor, so that the destructor removes the new file even if the public
    // constructor throws.
    explicit NewFile(const fs::path& target)
        : target_(Resolved(target)), folder_(target_.parent_path()), beside_(target_) {
        beside_ += ".new";
    }
    // Resolves a link, so that its target is replaced instead of the link.
    static fs::path Resolved(const fs::path& path) {
        std::error_code error;
        fs::path resolved = fs::canonical(path, error);
        return error ? path : resolved;
    }

    fs::path target_;
    fs::path folder_;
    fs::path beside_;
};

}  // namespace

Document Load(const fs::path& path, int codePage) {
    const auto readCompanion = [&](const std::string& fileName) -> std::optional<std::string> {
        try {
            const auto anyFile = [](const fs::path&) { return true; };
            return ReadBytes(CompanionOf(path, fileName, anyFile));
        } catch (const FormError&) {
            return std::nullopt;
        }
    };
    return Document::Parse(NameOf(path), ReadBytes(path), readCompanion, codePage);
}

void Save(const Document& document, const fs::path& path) {
    const FormBytes bytes = document.Write();
    NewFile form(path, bytes.form);
    if (!bytes.companion.empty()) {
        // Another form may own a file whose name differs in case only.
        const auto isOlder = [&](const fs::path& file) {
            return BeginsWith(bytes.companion, file);
        };
        NewFile companion(CompanionOf(path, document.CompanionName(), isOlder), bytes.companion);
        companion.TakePlace();
    }
    form.TakePlace();
}

}  // namespace lumenkit::forms
