// Keys of the platform's registry.
#pragma once

#include <string>

#include "runtime/ole/ole_header.h"

namespace lumenkit::ole {

/// An open key below HKEY_CLASSES_ROOT. Everything raises a ComError when the platform refuses.
class RegistryKey {
 public:
    /// Makes the key where it is not there.
    explicit RegistryKey(const std::wstring& path);
    RegistryKey(const RegistryKey& parent, const std::wstring& path);
    ~RegistryKey();
    RegistryKey(const RegistryKey&) = delete;
    RegistryKey& operator=(const RegistryKey&) = delete;

    /// The unnamed value for an empty name.
    void SetText(const std::wstring& name, const std::wstring& text) const;
    /// A key below it with this unnamed value.
    void SetKey(const std::wstring& path, const std::wstring& text) const;

    /// With all that is below it; one that is not there is no error.
    static void Remove(const std::wstring& path);

 private:
    HKEY key_ = nullptr;
};

}  // namespace lumenkit::ole
