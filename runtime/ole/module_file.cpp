#include "runtime/ole/module_file.h"

#include "runtime/ole/result.h"
#include "runtime/win32/wide_text.h"

namespace lumenkit::ole {

HINSTANCE OwnModule() {
    HMODULE module = nullptr;
    GetModuleHandleExW(
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
        reinterpret_cast<const wchar_t*>(&OwnModule), &module);
    return module;
}

Text ModulePath() {
    constexpr std::size_t longestPath = 32768;
    std::wstring path(longestPath, L'\0');
    const DWORD length =
        GetModuleFileNameW(OwnModule(), path.data(), static_cast<DWORD>(path.size()));
    if (length == 0) {
        throw ComError(HRESULT_FROM_WIN32(GetLastError()));
    }
    return Text(win32::AsText({path.data(), length}));
}

}  // namespace lumenkit::ole
