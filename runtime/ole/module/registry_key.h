// Keys of the platform's registry.
#pragma once

#include <string>

#include "runtime/ole/values/ole_header.h"

namespace lumenkit::ole {

/// An open key below HKEY_CLASSES_ROOT. Every function raises a ComError if the platform refuses.
class RegistryKey {
 public:
    /// Creates the key if it does not exist.
    explicit RegistryKey(const std::wstring& path);
    RegistryKey(const RegistryKey& parent, const std::wstring& path);
    ~RegistryKey();
    RegistryKey(const RegistryKey&) = delete;
    RegistryKey& operator=(const RegistryKey&) = delete;

    /// An empty name sets the unnamed value.
    void SetText(const std::wstring& name, const std::wstring& text) const;
    /// Creates a subkey with this unnamed value.
    void SetKey(const std::wstring& path, const std::wstring& text) const;

    /// Removes the key and everything below it. A missing key is not an error.
    static void Remove(const std::wstring& path);

 private:
    HKEY key_ = nullptr;
};

}  // namespace lumenkit::ole
