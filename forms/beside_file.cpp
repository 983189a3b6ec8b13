#include "forms/beside_file.h"

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <random>
#include <system_error>
#include <utility>

#include "forms/ascii.h"
#include "forms/form_error.h"
#include "forms/hexadecimal.h"
#include "forms/known_files.h"
#include "forms/path_names.h"

namespace lumenkit::forms {

namespace {

namespace fs = std::filesystem;

std::string Digits(std::uint64_t number) {
    return Hexadecimal(number, 2 * sizeof number);
}

std::string ReasonOf(int error) {
    return error == 0 ? std::string() : std::generic_category().message(error);
}

// Runs a call of the system that returns whether it succeeded. Sets `error` to the number of the
// error, or to 0 if the call does not say.
template <typename Call>
bool Try(int& error, const Call& call) {
    errno = 0;
    const bool succeeds = call();
    error = errno;
    return succeeds;
}

}  // namespace

Place::Place(const fs::path& named, const std::string& contents)
    : name(NameOf(named)),
      path(Resolved(named)),
      folder(path.parent_path()),
      bytes(contents),
      prefix(".lumenkit-" + Digits(Fingerprint::Of(LowerAscii(NameOf(path.filename()))).hash)),
      lock(folder / (prefix + ".lock")) {}

fs::path Place::NewName(std::string_view end) const {
    std::random_device random;
    constexpr int half = 32;
    const std::uint64_t number = (std::uint64_t{random()} << half) | random();
    return folder / (prefix + "-" + Digits(number) + std::string(end));
}

void RefuseToWrite(const Place& place, const std::string& reason) {
    throw FormError(place.name, "cannot be written" + (reason.empty() ? "" : ": " + reason));
}

FileState LookAt(Disk& disk, const Place& place) {
    FileState state;
    if (!disk.Look(place.path, state)) {
        RefuseToWrite(place);
    }
    if (state.exists && !state.isRegular) {
        throw FormError(place.name, "is not a plain file");
    }
    if (state.isReadOnly) {
        throw FormError(place.name, "is read-only");
    }
    return state;
}

void Remove(Disk& disk, const fs::path& path) {
    if (!disk.Remove(path)) {
        disk.Pause();
        disk.Remove(path);
    }
}

BesideFile::~BesideFile() {
    if (isThere_) {
        Remove(disk_, path_);
    }
}

void BesideFile::Write(std::string_view bytes, const FileState& old) {
    errno = 0;
    const Disk::Opened file =
        Make(newEnd, [&](const fs::path& path) { return disk_.Create(path, old.exists); });
    int error = errno;
    if (file.outcome != Disk::Outcome::Done) {
        RefuseToWrite(place_, ReasonOf(error));
    }
    bool isWritten = Try(error, [&] { return disk_.Write(file.handle, bytes); }) &&
                     (!old.exists || disk_.KeepAttributes(file.handle, old)) &&
                     Try(error, [&] { return disk_.Flush(file.handle); });
    int errorOfClose = 0;
    if (!Try(errorOfClose, [&] { return disk_.Close(file.handle); }) && isWritten) {
        isWritten = false;
        error = errorOfClose;
    }
    if (!isWritten) {
        RefuseToWrite(place_, ReasonOf(error));
    }
}

void BesideFile::Keep(std::string_view oldBytes, const FileState& old) {
    const Disk::Opened linked = Make(
        keptEnd, [&](const fs::path& path) { return Disk::Opened{disk_.Link(place_.path, path)}; });
    if (linked.outcome != Disk::Outcome::Done) {
        Write(oldBytes, old);
    }
}

bool BesideFile::TakePlace() {
    if (!disk_.Rename(path_, place_.path)) {
        return false;
    }
    isThere_ = false;
    disk_.FlushFolder(place_.folder);
    return true;
}

template <typename Creation>
Disk::Opened BesideFile::Make(std::string_view end, const Creation& create) {
    constexpr int mostTries = 100;
    Disk::Opened made{Disk::Outcome::Taken};
    for (int tries = 0; made.outcome == Disk::Outcome::Taken && tries < mostTries; ++tries) {
        path_ = place_.NewName(end);
        made = create(std::as_const(path_));
    }
    isThere_ = made.outcome == Disk::Outcome::Done;
    return made;
}

}  // namespace lumenkit::forms
