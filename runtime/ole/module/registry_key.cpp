#include "runtime/ole/module/registry_key.h"

#include "runtime/ole/values/result.h"

namespace lumenkit::ole {

namespace {

void CheckStatus(LSTATUS status) {
    Check(HRESULT_FROM_WIN32(static_cast<DWORD>(status)));
}

HKEY Create(HKEY parent, const std::wstring& path) {
    HKEY key = nullptr;
    CheckStatus(
        RegCreateKeyExW(parent, path.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, &key, nullptr));
    return key;
}

}  // namespace

RegistryKey::RegistryKey(const std::wstring& path) : key_(Create(HKEY_CLASSES_ROOT, path)) {}

RegistryKey::RegistryKey(const RegistryKey& parent, const std::wstring& path)
    : key_(Create(parent.key_, path)) {}

RegistryKey::~RegistryKey() {
    RegCloseKey(key_);
}

void RegistryKey::SetText(const std::wstring& name, const std::wstring& text) const {
    const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    CheckStatus(RegSetValueExW(key_, name.c_str(), 0, REG_SZ,
                               reinterpret_cast<const BYTE*>(text.c_str()), size));
}

void RegistryKey::SetKey(const std::wstring& path, const std::wstring& text) const {
    RegistryKey(*this, path).SetText(L"", text);
}

void RegistryKey::Remove(const std::wstring& path) {
    const LSTATUS status = RegDeleteTreeW(HKEY_CLASSES_ROOT, path.c_str());
    if (status != ERROR_FILE_NOT_FOUND && status != ERROR_PATH_NOT_FOUND) {
        CheckStatus(status);
    }
}

}  // namespace lumenkit::ole
