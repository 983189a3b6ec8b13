#include "runtime/ole/module/registration.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "runtime/ole/module/identifiers.h"
#include "runtime/ole/module/library_registration.h"
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

std::wstring ServerKey(const ClassDescriptor& type) {
    return ClassKey(type) + L"\\InprocServer32";
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
    // The first entry: without it, the others of the class could not be removed.
    const RegistryKey server(ServerKey(type));
    server.SetText(L"", path);
    server.SetText(L"ThreadingModel", L"Apartment");
    const RegistryKey key(ClassKey(type));
    key.SetText(L"", name);
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

std::vector<LibraryEntry> LibrariesOf(const ClassTable& classes, const std::wstring& path) {
    std::vector<LibraryEntry> libraries = {{.identifier = GuidOf(classes.uniqueIdentifier),
                                            .majorVersion = classes.majorVersion,
                                            .minorVersion = classes.minorVersion,
                                            .locale = classes.locale,
                                            .file = path,
                                            .part = L""}};
    if (const EnumerationLibrary* library = classes.enumerations; library != nullptr) {
        libraries.push_back({.identifier = GuidOf(library->uniqueIdentifier),
                             .majorVersion = library->majorVersion,
                             .minorVersion = library->minorVersion,
                             .locale = library->locale,
                             .file = path,
                             .part = L"\\2"});
    }
    return libraries;
}

// Whether any server is registered for the class, of whichever bitness and in whichever folder.
bool HasServer(const ClassDescriptor& type) {
    constexpr std::array views = {RegistryView::Own, RegistryView::Bits32, RegistryView::Bits64};
    return std::ranges::any_of(views, [&](RegistryView view) {
        return RegistryKey::TextAt(ServerKey(type), view).has_value();
    });
}

void RemoveClass(const ClassDescriptor& type, const std::wstring& path) {
    const auto server = RegistryKey::TextAt(ServerKey(type));
    if (server && IsSameFile(*server, path)) {
        RegistryKey::Remove(ClassKey(type));
    }
}

// The programmatic identifier is common to the servers of all bitnesses.
void RemoveName(const ClassTable& classes, const ClassDescriptor& type) {
    const std::wstring name = Name(classes, type);
    const auto named = RegistryKey::TextAt(name + L"\\CLSID");
    if (named &&
        lstrcmpiW(named->c_str(), TextOfGuid(GuidOf(type.uniqueIdentifier)).c_str()) == 0 &&
        !HasServer(type)) {
        RegistryKey::Remove(name);
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
    for (const LibraryEntry& library : LibrariesOf(classes, path)) {
        RegisterLibrary(library);
    }
    for (const ClassDescriptor& type : classes.classes) {
        if (IsPublished(type)) {
            RegisterOne(classes, type, path);
        }
    }
}

void Unregister(const ClassTable& classes) {
    const std::wstring path = OwnPath();
    Steps steps;
    for (const ClassDescriptor& type : classes.classes) {
        if (IsPublished(type)) {
            steps.Run([&] { RemoveClass(type, path); });
            steps.Run([&] { RemoveName(classes, type); });
        }
    }
    for (const LibraryEntry& library : LibrariesOf(classes, path)) {
        steps.Run([&] { UnregisterLibrary(library); });
    }
    Check(steps.First());
}

}  // namespace lumenkit::ole
