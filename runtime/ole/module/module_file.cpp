#include "runtime/ole/module/module_file.h"

#include <cwchar>

#include "runtime/win32/application.h"

namespace lumenkit::ole {

namespace {

std::wstring LongForm(const std::wstring& path) {
    const DWORD size = GetLongPathNameW(path.c_str(), nullptr, 0);
    std::wstring text(size, L'\0');
    if (size == 0 || GetLongPathNameW(path.c_str(), text.data(), size) >= size) {
        return path;
    }
    text.resize(std::wcslen(text.c_str()));
    return text;
}

}  // namespace

HINSTANCE OwnModule() {
    HMODULE module = nullptr;
    GetModuleHandleExW(
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
        reinterpret_cast<const wchar_t*>(&OwnModule), &module);
    return module;
}

std::wstring OwnPath() {
    return win32::PathOf(OwnModule());
}

bool IsSameFile(const std::wstring& one, const std::wstring& other) {
    return CompareStringOrdinal(LongForm(one).c_str(), -1, LongForm(other).c_str(), -1, TRUE) ==
           CSTR_EQUAL;
}

}  // namespace lumenkit::ole
