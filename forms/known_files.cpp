#include "forms/known_files.h"

#include <algorithm>
#include <string>
#include <system_error>
#include <utility>

#include "forms/path_names.h"
#include "frame/text.h"
#include "frame/utf8.h"

namespace lumenkit::forms {

namespace fs = std::filesystem;

// FNV-1a with 64 bits. The contents are not chosen to collide, so no stronger hash is needed.
Fingerprint Fingerprint::Of(std::string_view bytes) {
    constexpr std::uint64_t basis = 0xcbf29ce484222325;
    constexpr std::uint64_t prime = 0x100000001b3;
    std::uint64_t hash = basis;
    for (const char byte : bytes) {
        hash = (hash ^ static_cast<unsigned char>(byte)) * prime;
    }
    return {bytes.size(), hash};
}

namespace {

// False for names that are not in UTF-8: only file systems without regard to case need it.
bool MayBeSame(const fs::path& one, const fs::path& other) {
    try {
        return SameText(FromUtf8(NameOf(one)), FromUtf8(NameOf(other)), Compare::IgnoreCase);
    } catch (const MalformedUtf8&) {
        return false;
    }
}

}  // namespace

bool IsSamePath(const fs::path& one, const fs::path& other) {
    if (one == other) {
        return true;
    }
    std::error_code missing;
    return MayBeSame(one, other) && fs::equivalent(one, other, missing);
}

void KnownFiles::Remember(const fs::path& path, std::string_view bytes) {
    const auto known =
        std::ranges::find_if(entries_, [&](const Entry& e) { return IsSamePath(e.path, path); });
    if (known == entries_.end()) {
        entries_.push_back({path, Fingerprint::Of(bytes)});
    } else {
        known->fingerprint = Fingerprint::Of(bytes);
    }
}

const KnownFiles::Entry* KnownFiles::EntryOf(const fs::path& path) const {
    const auto known =
        std::ranges::find_if(entries_, [&](const Entry& e) { return IsSamePath(e.path, path); });
    return known == entries_.end() ? nullptr : &*known;
}

const Fingerprint* KnownFiles::Find(const fs::path& path) const {
    const Entry* const known = EntryOf(path);
    return known == nullptr ? nullptr : &known->fingerprint;
}

void KnownFiles::Keep(const fs::path& path, std::string bytes) {
    Remember(path, bytes);
    const auto known =
        std::ranges::find_if(entries_, [&](const Entry& e) { return IsSamePath(e.path, path); });
    known->kept = std::move(bytes);
}

const std::string* KnownFiles::Kept(const fs::path& path) const {
    const Entry* const known = EntryOf(path);
    return known == nullptr || !known->kept ? nullptr : &*known->kept;
}

}  // namespace lumenkit::forms
