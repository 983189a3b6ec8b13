#include "runtime/ole/module/library_registration.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <string_view>

#include "runtime/ole/module/identifiers.h"
#include "runtime/ole/module/module_file.h"
#include "runtime/ole/module/registry_key.h"
#include "runtime/ole/values/result.h"

namespace lumenkit::ole {

namespace {

constexpr LCID neutralLocale = 0;
constexpr int hexadecimalBase = 16;
constexpr bool has64Bits = sizeof(void*) == sizeof(std::uint64_t);
constexpr const wchar_t* ownBitness = has64Bits ? L"win64" : L"win32";

std::wstring Hexadecimal(unsigned long number) {
    std::array<char, 2 * sizeof number> digits = {};
    const auto written =
        std::to_chars(digits.data(), digits.data() + digits.size(), number, hexadecimalBase);
    return {digits.data(), written.ptr};
}

std::wstring LibraryKey(const LibraryEntry& library) {
    return L"TypeLib\\" + TextOfGuid(library.identifier);
}

std::wstring VersionKey(const LibraryEntry& library) {
    return LibraryKey(library) + L"\\" + Hexadecimal(library.majorVersion) + L"." +
           Hexadecimal(library.minorVersion);
}

std::wstring LocaleKey(const LibraryEntry& library, LCID locale) {
    return VersionKey(library) + L"\\" + Hexadecimal(locale);
}

std::wstring PathKey(const LibraryEntry& library, LCID locale) {
    return LocaleKey(library, locale) + L"\\" + ownBitness;
}

bool NamesFile(const LibraryEntry& library, LCID locale) {
    const auto path = RegistryKey::TextAt(PathKey(library, locale));
    return path && path->ends_with(library.part) &&
           IsSameFile(path->substr(0, path->size() - library.part.size()), library.file);
}

void RemovePath(const LibraryEntry& library, LCID locale) {
    RegistryKey::Remove(PathKey(library, locale));
    RegistryKey::RemoveIfEmpty(LocaleKey(library, locale));
}

// Returns the number of files that the library is registered for, counted for each locale and
// bitness. The keys of locales are next to others, which contain no such keys.
std::ptrdiff_t CountPaths(const LibraryEntry& library) {
    std::ptrdiff_t count = 0;
    for (const std::wstring& locale : RegistryKey::KeysIn(VersionKey(library))) {
        count += std::ranges::count_if(
            RegistryKey::KeysIn(VersionKey(library) + L"\\" + locale),
            [](const std::wstring& name) { return name == L"win32" || name == L"win64"; });
    }
    return count;
}

// Removes the descriptions of the interfaces too, which marshalling needs.
void RemoveLast(const LibraryEntry& library) {
    const HRESULT result =
        UnRegisterTypeLib(library.identifier, library.majorVersion, library.minorVersion,
                          library.locale, has64Bits ? SYS_WIN64 : SYS_WIN32);
    if (result != TYPE_E_REGISTRYACCESS && result != TYPE_E_LIBNOTREGISTERED) {
        Check(result);
    }
}

}  // namespace

void RegisterLibrary(const LibraryEntry& library) {
    ComPtr<ITypeLib> loaded;
    std::wstring path = library.Path();
    Check(LoadTypeLibEx(path.c_str(), REGKIND_NONE, &loaded));
    Check(RegisterTypeLib(loaded.Get(), path.data(), nullptr));
    RegistryKey(PathKey(library, neutralLocale)).SetText(L"", path);
}

void UnregisterLibrary(const LibraryEntry& library) {
    if (NamesFile(library, neutralLocale)) {
        RemovePath(library, neutralLocale);
    }
    if (NamesFile(library, library.locale)) {
        if (CountPaths(library) == 1) {
            RemoveLast(library);
        } else {
            RemovePath(library, library.locale);
        }
    }
    if (CountPaths(library) == 0) {
        RegistryKey::Remove(VersionKey(library));
        RegistryKey::RemoveIfEmpty(LibraryKey(library));
    }
}

}  // namespace lumenkit::ole
