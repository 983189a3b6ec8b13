#include "forms/save_lock.h"

#include "forms/form_error.h"

namespace lumenkit::forms {

SaveLock::SaveLock(Disk& disk, const Place& place) : disk_(disk), path_(place.lock) {
    constexpr int mostTries = 5000;  // with a pause of a millisecond each
    Disk::Opened lock = disk.Lock(path_);
    for (int tries = 1; lock.outcome == Disk::Outcome::Taken; ++tries) {
        if (tries == mostTries) {
            throw FormError(place.name, "is being saved by another program");
        }
        disk.Pause();
        lock = disk.Lock(path_);
    }
    if (lock.outcome != Disk::Outcome::Done) {
        RefuseToWrite(place);
    }
    handle_ = lock.handle;
}

SaveLock::~SaveLock() {
    disk_.Unlock(handle_, path_);
}

}  // namespace lumenkit::forms
