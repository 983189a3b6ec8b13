#include "forms/flush.h"

#include <fcntl.h>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace lumenkit::forms {

#ifdef _WIN32

bool FlushFile(const std::filesystem::path& file) {
    const int handle = _wopen(file.c_str(), _O_RDWR | _O_BINARY);
    if (handle < 0) {
        return false;
    }
    const bool flushed = _commit(handle) == 0;
    return _close(handle) == 0 && flushed;
}

void FlushFolder(const std::filesystem::path& /*folder*/) {}

#else

namespace {

bool Flush(const char* path) {
    const int handle = open(path, O_RDONLY | O_CLOEXEC);
    if (handle < 0) {
        return false;
    }
    const bool flushed = fsync(handle) == 0;
    return close(handle) == 0 && flushed;
}

}  // namespace

bool FlushFile(const std::filesystem::path& file) {
    return Flush(file.c_str());
}

void FlushFolder(const std::filesystem::path& folder) {
    static_cast<void>(Flush(folder.empty() ? "." : folder.c_str()));
}

#endif

}  // namespace lumenkit::forms
