// Remembers the contents of the files that a document read or wrote.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lumenkit::forms {

/// Tells the contents of one file from others.
struct Fingerprint {
    static Fingerprint Of(std::string_view bytes);

    std::uint64_t size = 0;
    std::uint64_t hash = 0;
    friend bool operator==(const Fingerprint&, const Fingerprint&) = default;
};

/// Whether two paths without links name one file. They may differ in case if the file system
/// ignores it.
bool IsSamePath(const std::filesystem::path& one, const std::filesystem::path& other);

/// The files that a document read or wrote, with the contents that it knows. A file that is not
/// here belongs to somebody else.
class KnownFiles {
 public:
    /// Paths are absolute and contain no links. Remember replaces an earlier entry.
    void Remember(const std::filesystem::path& path, std::string_view bytes);
    /// Returns null for a file that the document neither read nor wrote.
    const Fingerprint* Find(const std::filesystem::path& path) const;

    /// Remembers the contents of a companion that other forms may share. Saving keeps them: see
    /// Document::MoveBehind.
    void Keep(const std::filesystem::path& path, std::string bytes);
    /// Returns null for a file of which nothing is to be kept.
    const std::string* Kept(const std::filesystem::path& path) const;

 private:
    struct Entry {
        std::filesystem::path path;
        Fingerprint fingerprint;
        std::optional<std::string> kept = std::nullopt;
    };
    const Entry* EntryOf(const std::filesystem::path& path) const;

    std::vector<Entry> entries_;
};

}  // namespace lumenkit::forms
