#include "runtime/win32/application.h"

#include "frame/runtime_error.h"
#include "runtime/win32/wide_text.h"

namespace lumenkit::win32 {

// A path may be longer than MAX_PATH.
std::wstring PathOf(HINSTANCE module) {
    constexpr std::size_t longest = 32768;
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length =
            GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
        if (length == 0) {
            Raise(ErrorNumber::InternalError);
        }
        if (length < path.size() || path.size() >= longest) {
            path.resize(length);
            return path;
        }
        path.resize(path.size() * 2);
    }
}

Text Application::ExeName() {
    const std::wstring path = PathOf(module_);
    const std::size_t folderEnd = path.find_last_of(L"\\/");
    const std::wstring file = path.substr(folderEnd + 1);  // the whole path if it has no folder
    return Text(AsText(std::wstring_view(file).substr(0, file.rfind(L'.'))));
}

}  // namespace lumenkit::win32
