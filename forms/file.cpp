#include "forms/file.h"

#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <system_error>

#include "forms/flush.h"
#include "frame/utf8.h"

namespace lumenkit::forms {

namespace {

namespace fs = std::filesystem;

std::string NameOf(const fs::path& path) {
    const std::u8string name = path.u8string();
    return {name.begin(), name.end()};
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
    const auto readCompanion = [&](const std::string& fileName) {
        return ReadBytes(Beside(path, fileName));
    };
    return Document::Parse(NameOf(path), ReadBytes(path), readCompanion, codePage);
}

void Save(const Document& document, const fs::path& path) {
    const FormBytes bytes = document.Write();
    NewFile form(path, bytes.form);
    if (!bytes.companion.empty()) {
        NewFile companion(Beside(path, document.CompanionName()), bytes.companion);
        companion.TakePlace();
    }
    form.TakePlace();
}

}  // namespace lumenkit::forms
