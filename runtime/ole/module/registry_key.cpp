#include "runtime/ole/module/registry_key.h"

#include <array>
#include <cwchar>
#include <memory>
#include <type_traits>

#include "runtime/ole/values/result.h"

namespace lumenkit::ole {

namespace {

struct KeyEnd {
    void operator()(HKEY key) const { RegCloseKey(key); }
};
using OpenKey = std::unique_ptr<std::remove_pointer_t<HKEY>, KeyEnd>;

void CheckStatus(LSTATUS status) {
    Check(HRESULT_FROM_WIN32(static_cast<DWORD>(status)));
}

bool IsMissing(LSTATUS status) {
    return status == ERROR_FILE_NOT_FOUND || status == ERROR_PATH_NOT_FOUND;
}

HKEY Create(HKEY parent, const std::wstring& path) {
    HKEY key = nullptr;
    CheckStatus(
        RegCreateKeyExW(parent, path.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, &key, nullptr));
    return key;
}

// Returns null for a missing key.
OpenKey Open(const std::wstring& path, RegistryView view) {
    HKEY key = nullptr;
    const LSTATUS status = RegOpenKeyExW(HKEY_CLASSES_ROOT, path.c_str(), 0,
                                         KEY_READ | static_cast<REGSAM>(view), &key);
    if (!IsMissing(status)) {
        CheckStatus(status);
    }
    return OpenKey(key);
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

std::optional<std::wstring> RegistryKey::TextAt(const std::wstring& path, RegistryView view) {
    const OpenKey key = Open(path, view);
    DWORD size = 0;
    if (key == nullptr || RegGetValueW(key.get(), nullptr, nullptr, RRF_RT_REG_SZ, nullptr, nullptr,
                                       &size) != ERROR_SUCCESS) {
        return std::nullopt;
    }
    std::wstring text(size / sizeof(wchar_t), L'\0');
    CheckStatus(
        RegGetValueW(key.get(), nullptr, nullptr, RRF_RT_REG_SZ, nullptr, text.data(), &size));
    text.resize(std::wcslen(text.c_str()));
    return text;
}

std::vector<std::wstring> RegistryKey::KeysIn(const std::wstring& path) {
    std::vector<std::wstring> names;
    const OpenKey key = Open(path, RegistryView::Own);
    if (key == nullptr) {
        return names;
    }
    constexpr DWORD longestName = 256;
    std::array<wchar_t, longestName> name = {};
    DWORD length = longestName;
    while (RegEnumKeyExW(key.get(), static_cast<DWORD>(names.size()), name.data(), &length, nullptr,
                         nullptr, nullptr, nullptr) == ERROR_SUCCESS) {
        names.emplace_back(name.data(), length);
        length = longestName;
    }
    return names;
}

void RegistryKey::Remove(const std::wstring& path) {
    const LSTATUS status = RegDeleteTreeW(HKEY_CLASSES_ROOT, path.c_str());
    if (!IsMissing(status)) {
        CheckStatus(status);
    }
}

void RegistryKey::RemoveIfEmpty(const std::wstring& path) {
    if (KeysIn(path).empty()) {
        Remove(path);
    }
}

}  // namespace lumenkit::ole
