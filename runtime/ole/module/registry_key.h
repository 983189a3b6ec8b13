// Keys of the platform's registry.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "runtime/ole/values/ole_header.h"

namespace lumenkit::ole {

/// 64-bit Windows keeps two versions of some keys, such as CLSID: one for programs of 64 bits and
/// one for programs of 32 bits. A program sees its own version unless it requests the other one.
enum class RegistryView : REGSAM { Own = 0, Bits32 = KEY_WOW64_32KEY, Bits64 = KEY_WOW64_64KEY };

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

    /// Returns the unnamed value of a key, or nothing if there is no such key or value.
    static std::optional<std::wstring> TextAt(const std::wstring& path,
                                              RegistryView view = RegistryView::Own);
    /// Returns the names of the keys in a key, which may be missing.
    static std::vector<std::wstring> KeysIn(const std::wstring& path);
    /// Removes the key and everything below it. A missing key is not an error.
    static void Remove(const std::wstring& path);
    /// Removes the key if no other key is in it.
    static void RemoveIfEmpty(const std::wstring& path);

 private:
    HKEY key_ = nullptr;
};

}  // namespace lumenkit::ole
