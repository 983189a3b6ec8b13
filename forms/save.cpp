#include "forms/save.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "forms/beside_file.h"
#include "forms/companion_path.h"
#include "forms/form_error.h"
#include "forms/known_files.h"
#include "forms/path_names.h"
#include "forms/save_lock.h"

namespace lumenkit::forms {

namespace {

namespace fs = std::filesystem;

// Whether a file is left over from a save of `place` by a program that was killed. Call it only
// while the place is locked. A kept companion is left over only if nothing of it would be lost.
bool IsLeftOver(Disk& disk, const Place& place, const fs::path& file) {
    const std::string name = NameOf(file.filename());
    const std::size_t begin = place.prefix.size() + 1 + 2 * sizeof(std::uint64_t);
    if (!name.starts_with(place.prefix + "-") || name.size() < begin) {
        return false;
    }
    const std::string_view end = std::string_view(name).substr(begin);
    if (end != keptEnd) {
        return end == newEnd;
    }
    std::string kept;
    std::string present;
    return disk.Read(file, kept) && disk.Read(place.path, present) && present.starts_with(kept);
}

void RemoveLeftOvers(Disk& disk, const Place& place) {
    std::vector<fs::path> names;
    disk.List(place.folder, names);  // a folder that cannot be listed keeps its files
    for (const fs::path& name : names) {
        const fs::path file = place.folder / name;
        if (IsLeftOver(disk, place, file)) {
            disk.Remove(file);
        }
    }
}

// Returns the bytes of a document. They keep the records of other forms in its companion.
FormBytes BytesToSave(const Document& document, const fs::path& path) {
    FormBytes bytes = document.Write();
    if (bytes.companion.empty()) {
        return bytes;
    }
    const std::string* const kept =
        document.Files().Kept(Resolved(CompanionToSave(document, path)));
    if (kept == nullptr || bytes.companion.starts_with(*kept)) {
        return bytes;
    }
    Document moved = document.WithBytes(bytes);
    moved.MoveBehind(*kept);
    return moved.Write();
}

// One save of a document.
class Saving {
 public:
    Saving(Disk& disk, const Document& document, const fs::path& path, Replacing replacing)
        : disk_(disk),
          document_(document),
          path_(path),
          replacing_(replacing),
          bytes_(BytesToSave(document, path)),
          form_(path, bytes_.form) {
        if (!bytes_.companion.empty()) {
            companion_.emplace(CompanionToSave(document, path), bytes_.companion);
            if (companion_->path == form_.path || IsSamePath(companion_->path, form_.path)) {
                throw FormError(companion_->name, "is the name of the form and of its companion");
            }
        }
    }

    void Run() {
        // Tells a read-only file as such even if its folder is read-only too.
        LookAt(disk_, form_);
        if (companion_) {
            LookAt(disk_, *companion_);
        }
        const SaveLock formLock(disk_, form_);
        std::optional<SaveLock> companionLock;
        RemoveLeftOvers(disk_, form_);
        if (companion_) {
            companionLock.emplace(disk_, *companion_);
            RemoveLeftOvers(disk_, *companion_);
        }
        Replace();
    }

 private:
    // The present file of a place.
    struct Present {
        FileState state;
        std::string bytes;
    };

    Present Read(const Place& place) const {
        Present present{LookAt(disk_, place), {}};
        SystemCall call;
        if (present.state.exists &&
            !call.Run([&] { return disk_.Read(place.path, present.bytes); })) {
            throw FormError(place.name, "cannot be read" + call.Reason());
        }
        return present;
    }

    void Replace() {
        BesideFile newForm(disk_, form_);
        newForm.Write(bytes_.form, LookAt(disk_, form_));
        std::optional<BesideFile> newCompanion;
        std::optional<BesideFile> keptCompanion;
        if (companion_) {
            newCompanion.emplace(disk_, *companion_);
            newCompanion->Write(bytes_.companion, LookAt(disk_, *companion_));
        }
        // The following comparison comes as late as possible: programs without the lock may write
        // the files too.
        const Present form = Read(form_);
        RequireKnown(form);
        if (companion_) {
            const Present companion = Read(*companion_);
            RequireKnown(companion, form);
            if (companion.state.exists) {
                keptCompanion.emplace(disk_, *companion_);
                keptCompanion->Keep(companion.bytes, companion.state);
            }
        }
        KnownFiles known = document_.Files();
        known.Remember(form_.path, form_.bytes);
        if (companion_) {
            known.Remember(companion_->path, companion_->bytes);
            TakeBothPlaces(newForm, *newCompanion, keptCompanion);
        } else if (!newForm.TakePlace()) {
            RefuseToWrite(form_, newForm.Reason());
        }
        document_.Files() = std::move(known);
    }

    void RequireKnown(const Present& form) const {
        const Fingerprint* const known = document_.Files().Find(form_.path);
        const bool isExpected = known == nullptr ? replacing_ == Replacing::Named
                                                 : *known == Fingerprint::Of(form.bytes);
        if (form.state.exists && form.bytes != form_.bytes && !isExpected &&
            replacing_ != Replacing::Confirmed) {
            Refuse(form_, known);
        }
    }
    void RequireKnown(const Present& companion, const Present& form) const {
        const Fingerprint* const known = document_.Files().Find(companion_->path);
        if (!companion.state.exists || companion.bytes == companion_->bytes ||
            (known != nullptr && *known == Fingerprint::Of(companion.bytes)) ||
            (replacing_ == Replacing::Confirmed && form.state.exists && RefersToIt(form.bytes))) {
            return;
        }
        Refuse(*companion_, known);
    }
    [[noreturn]] static void Refuse(const Place& place, const Fingerprint* known) {
        throw FormError(
            place.name,
            known != nullptr
                ? "was changed by another program since this form was read"
                : "is there already and was not read with this form; it is not replaced");
    }

    // Whether the form on the disk refers to the companion.
    bool RefersToIt(const std::string& form) const {
        std::string named;
        const auto readCompanion = [&](const std::string& name) -> std::optional<std::string> {
            named = name;
            return std::nullopt;
        };
        try {
            Document::Parse(form_.name, form, readCompanion, document_.CompanionCodePage());
        } catch (const FormError&) {
            // The name is known even then.
        }
        if (named.empty()) {
            return false;
        }
        const CompanionName name{named, document_.NameBytes(named)};
        const fs::path found = CompanionPath(path_, name, [](const fs::path&) { return true; });
        return IsSamePath(Resolved(found), companion_->path);
    }

    // Allocates no memory until both files are in their places, or neither is.
    void TakeBothPlaces(BesideFile& newForm, BesideFile& newCompanion,
                        std::optional<BesideFile>& kept) const {
        if (!newCompanion.TakePlace()) {
            RefuseToWrite(*companion_, newCompanion.Reason());
        }
        if (newForm.TakePlace()) {
            return;
        }
        if (!kept) {
            Remove(disk_, companion_->path);
        } else if (!kept->TakePlace()) {
            kept->Leave();
            throw FormError(companion_->name,
                            "belongs to a form that could not be written; its "
                            "former content is in " +
                                NameOf(kept->Path().filename()));
        }
        RefuseToWrite(form_, newForm.Reason());
    }

    Disk& disk_;
    const Document& document_;
    const fs::path& path_;
    const Replacing replacing_;
    const FormBytes bytes_;
    const Place form_;
    std::optional<Place> companion_;
};

}  // namespace

fs::path CompanionToSave(const Document& document, const fs::path& path) {
    const CompanionName name{document.CompanionName(),
                             document.NameBytes(document.CompanionName())};
    return CompanionPath(path, name, [&](const fs::path& file) {
        return document.Files().Find(Resolved(file)) != nullptr;
    });
}

void SaveOn(Disk& disk, const Document& document, const fs::path& path, Replacing replacing) {
    Saving(disk, document, path, replacing).Run();
}

}  // namespace lumenkit::forms
