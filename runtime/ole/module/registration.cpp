#include "runtime/ole/module/registration.h"

#include <array>
#include <string>
#include <vector>

#include "runtime/ole/module/identifiers.h"
#include "runtime/ole/module/misc_status.h"
#include "runtime/ole/module/module_file.h"
#include "runtime/ole/module/registry_key.h"
#include "runtime/ole/values/result.h"
#include "runtime/win32/wide_text.h"

namespace lumenkit::ole {

namespace {

constexpr std::array categories = {
    L"{40FC6ED4-2438-11CF-A3DB-080036F12502}",  // controls
    L"{40FC6ED5-2438-11CF-A3DB-080036F12502}",  // programmable
    L"{7DD95801-9882-11CF-9FA9-00AA006C42C4}",  // safe for scripting
    L"{7DD95802-9882-11CF-9FA9-00AA006C42C4}",  // safe for initialising
};

std::wstring ClassKey(const ClassDescriptor& type) {
    return L"CLSID\\" + TextOfGuid(GuidOf(type.uniqueIdentifier));
}

std::wstring Name(const ClassTable& classes, const ClassDescriptor& type) {
    return win32::ToWide(ProgrammaticIdentifier(classes, type));
}

void RegisterControl(const RegistryKey& key, const ClassDescriptor& type,
                     const std::wstring& path) {
    key.SetKey(L"Control", L"");
    key.SetKey(L"MiscStatus", L"0");
    key.SetKey(L"MiscStatus\\1", std::to_wstring(controlStatus));
    if (type.toolboxBitmap != 0) {
        key.SetKey(L"ToolboxBitmap32", path + L", " + std::to_wstring(type.toolboxBitmap));
    }
    for (const wchar_t* category : categories) {
        key.SetKey(std::wstring(L"Implemented Categories\\") + category, L"");
    }
}

void RegisterOne(const ClassTable& classes, const ClassDescriptor& type, const std::wstring& path) {
    const std::wstring name = Name(classes, type);
    const RegistryKey key(ClassKey(type));
    key.SetText(L"", name);
    const RegistryKey server(key, L"InprocServer32");
    server.SetText(L"", path);
    server.SetText(L"ThreadingModel", L"Apartment");
    key.SetKey(L"ProgID", name);
    key.SetKey(L"VersionIndependentProgID", name);
    key.SetKey(L"TypeLib", TextOfGuid(GuidOf(classes.uniqueIdentifier)));
    key.SetKey(L"Version", std::to_wstring(classes.majorVersion) + L"." +
                               std::to_wstring(classes.minorVersion));
    key.SetKey(L"Programmable", L"");
    if (type.kind == ClassKind::Control) {
        RegisterControl(key, type, path);
    }
    const RegistryKey program(name);
    program.SetText(L"", name);
    program.SetKey(L"CLSID", TextOfGuid(GuidOf(type.uniqueIdentifier)));
}

bool IsPublished(const ClassDescriptor& type) {
    return type.uniqueIdentifier != UniqueIdentifier();
}

// The paths of the module's type libraries: its own library, followed by that of the enumerations.
std::vector<std::wstring> LibraryPaths(const ClassTable& classes, const std::wstring& path) {
    std::vector<std::wstring> paths = {path};
    if (classes.enumerations != nullptr) {
        paths.push_back(path + L"\\2");
    }
    return paths;
}

void RegisterLibrary(const std::wstring& path) {
    ComPtr<ITypeLib> library;
    Check(LoadTypeLibEx(path.c_str(), REGKIND_NONE, &library));
    std::wstring writable = path;
    Check(RegisterTypeLib(library.Get(), writable.data(), nullptr));
}

void UnregisterLibrary(const UniqueIdentifier& identifier, WORD major, WORD minor, LCID locale) {
    constexpr SYSKIND system = sizeof(void*) == sizeof(std::uint64_t) ? SYS_WIN64 : SYS_WIN32;
    const HRESULT result = UnRegisterTypeLib(GuidOf(identifier), major, minor, locale, system);
    if (result != TYPE_E_REGISTRYACCESS && result != TYPE_E_LIBNOTREGISTERED) {
        Check(result);
    }
}

// Runs every step, even if others fail, and keeps the first failure.
class Steps {
 public:
    template <typename Step>
    void Run(Step&& step) {
        const HRESULT result = Guarded(std::forward<Step>(step));
        if (FAILED(result) && SUCCEEDED(first_)) {
            first_ = result;
        }
    }
    HRESULT First() const { return first_; }

 private:
    HRESULT first_ = S_OK;
};

}  // namespace

void Register(const ClassTable& classes) {
    const std::wstring path = OwnPath();
    for (const std::wstring& library : LibraryPaths(classes, path)) {
        RegisterLibrary(library);
    }
    for (const ClassDescriptor& type : classes.classes) {
        if (IsPublished(type)) {
            RegisterOne(classes, type, path);
        }
    }
}

void Unregister(const ClassTable& classes) {
    Steps steps;
    for (const ClassDescriptor& type : classes.classes) {
        if (IsPublished(type)) {
            steps.Run([&] { RegistryKey::Remove(ClassKey(type)); });
            steps.Run([&] { RegistryKey::Remove(Name(classes, type)); });
        }
    }
    steps.Run([&] {
        UnregisterLibrary(classes.uniqueIdentifier, classes.majorVersion, classes.minorVersion,
                          classes.locale);
    });
    if (const EnumerationLibrary* library = classes.enumerations; library != nullptr) {
        steps.Run([&] {
            UnregisterLibrary(library->uniqueIdentifier, library->majorVersion,
                              library->minorVersion, classes.locale);
        });
    }
    Check(steps.First());
}

}  // namespace lumenkit::ole
