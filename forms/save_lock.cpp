#include "forms/save_lock.h"

#include "forms/form_error.h"
#include "forms/system_call.h"

namespace lumenkit::forms {

SaveLock::SaveLock(Disk& disk, const Place& place) : disk_(disk), path_(place.lock) {
    constexpr int mostTries = 5000;  // with a pause of a millisecond each
    SystemCall call;
    const auto take = [&] { return call.Run([&] { return disk.Lock(path_); }); };
    Disk::Opened lock = take();
    for (int tries = 1; lock.outcome == Disk::Outcome::Taken; ++tries) {
        if (tries == mostTries) {
            throw FormError(place.name, "is being saved by another program");
        }
        disk.Pause();
        lock = take();
    }
    if (lock.outcome != Disk::Outcome::Done) {
        RefuseToWrite(place, call.Reason());
    }
    handle_ = lock.handle;
}

SaveLock::~SaveLock() {
    disk_.Unlock(handle_, path_);
}

}  // namespace lumenkit::forms
