#include "forms/beside_file.h"

#include <cstddef>
#include <cstdint>
#include <random>
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
    throw FormError(place.name, "cannot be written" + reason);
}

FileState LookAt(Disk& disk, const Place& place) {
    FileState state;
    SystemCall call;
    if (!call.Run([&] { return disk.Look(place.path, state); })) {
        RefuseToWrite(place, call.Reason());
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
    const Disk::Opened file = last_.Run([&] {
        return Make(newEnd, [&](const fs::path& path) { return disk_.Create(path, old.exists); });
    });
    if (file.outcome != Disk::Outcome::Done) {
        RefuseToWrite(place_, Reason());
    }
    bool isWritten = last_.Run([&] { return disk_.Write(file.handle, bytes); }) &&
                     (!old.exists || disk_.KeepAttributes(file.handle, old)) &&
                     last_.Run([&] { return disk_.Flush(file.handle); });
    SystemCall closing;
    if (!closing.Run([&] { return disk_.Close(file.handle); }) && isWritten) {
        isWritten = false;
        last_ = closing;
    }
    if (!isWritten) {
        RefuseToWrite(place_, Reason());
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
    if (!last_.Run([&] { return disk_.Rename(path_, place_.path); })) {
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
