// Registers and unregisters copies of the server in several folders, and looks at the registry. An
// entry of the registry stands for the server of the other bitness.
#include <algorithm>
#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <ole2.h>
#include <oleauto.h>
#include <windows.h>
#include <wrl/client.h>

#include "project/lumenkit_classes.h"

namespace lumenkit::clients {

namespace {

using Microsoft::WRL::ComPtr;
using ::testing::Contains;
using ::testing::IsEmpty;
using ::testing::Not;

constexpr bool has64Bits = sizeof(void*) == 8;
constexpr const wchar_t* ownBitness = has64Bits ? L"win64" : L"win32";

GUID GuidOf(const UniqueIdentifier& identifier) {
    GUID guid = {};
    guid.Data1 = identifier.data1;
    guid.Data2 = identifier.data2;
    guid.Data3 = identifier.data3;
    std::ranges::copy(identifier.data4, std::begin(guid.Data4));
    return guid;
}

std::wstring TextOf(const UniqueIdentifier& identifier) {
    std::array<wchar_t, 40> text = {};
    StringFromGUID2(GuidOf(identifier), text.data(), static_cast<int>(text.size()));
    return text.data();
}

// A copy of the server in a folder of its own, loaded into this process.
class Server {
 public:
    explicit Server(const std::wstring& folder) {
        const std::filesystem::path build = LUMENKIT_BINARY_DIR;
        const std::filesystem::path copy = build / "registration" / folder / "lumenkit.ocx";
        std::filesystem::create_directories(copy.parent_path());
        const std::filesystem::path original = build / "lumenkit.ocx";
        EXPECT_TRUE(CopyFileW(original.c_str(), copy.c_str(), FALSE)) << GetLastError();
        module_ = LoadLibraryW(copy.c_str());
        EXPECT_NE(module_, nullptr) << GetLastError();
    }
    ~Server() { FreeLibrary(module_); }
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;

    HRESULT Register() const { return Call("DllRegisterServer"); }
    HRESULT Unregister() const { return Call("DllUnregisterServer"); }
    std::wstring Path() const {
        std::array<wchar_t, MAX_PATH> path = {};
        GetModuleFileNameW(module_, path.data(), MAX_PATH);
        return path.data();
    }

 private:
    HRESULT Call(const char* name) const {
        void* const address = reinterpret_cast<void*>(GetProcAddress(module_, name));
        auto* const function = reinterpret_cast<HRESULT(STDAPICALLTYPE*)()>(address);
        return function == nullptr ? E_NOINTERFACE : function();
    }

    HMODULE module_ = nullptr;
};

std::optional<std::wstring> TextAt(const std::wstring& key, REGSAM view = 0) {
    HKEY open = nullptr;
    if (RegOpenKeyExW(HKEY_CLASSES_ROOT, key.c_str(), 0, KEY_READ | view, &open) != ERROR_SUCCESS) {
        return std::nullopt;
    }
    std::array<wchar_t, MAX_PATH> text = {};
    DWORD size = sizeof text;
    RegGetValueW(open, nullptr, nullptr, RRF_RT_REG_SZ, nullptr, text.data(), &size);
    RegCloseKey(open);
    return text.data();
}

void SetText(const std::wstring& key, const std::wstring& text, REGSAM view = 0) {
    HKEY open = nullptr;
    ASSERT_EQ(RegCreateKeyExW(HKEY_CLASSES_ROOT, key.c_str(), 0, nullptr, 0, KEY_WRITE | view,
                              nullptr, &open, nullptr),
              ERROR_SUCCESS);
    RegSetValueExW(open, nullptr, 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                   static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
    RegCloseKey(open);
}

// Opens the folder of the key in the view, because Wine does not keep the view of the root.
void Remove(const std::wstring& key, REGSAM view = 0) {
    const std::size_t end = key.rfind(L'\\');
    const std::wstring folder = end == std::wstring::npos ? L"" : key.substr(0, end);
    HKEY open = nullptr;
    if (RegOpenKeyExW(HKEY_CLASSES_ROOT, folder.c_str(), 0, KEY_ALL_ACCESS | view, &open) ==
        ERROR_SUCCESS) {
        RegDeleteTreeW(open, key.c_str() + (folder.empty() ? 0 : end + 1));
        RegCloseKey(open);
    }
}

std::wstring ProgramKey(const ClassDescriptor& type) {
    return L"lumenkit." + std::wstring(type.name.begin(), type.name.end());
}
std::wstring ServerKey(const ClassDescriptor& type) {
    return L"CLSID\\" + TextOf(type.uniqueIdentifier) + L"\\InprocServer32";
}
std::wstring LibraryKey(const UniqueIdentifier& identifier) {
    return L"TypeLib\\" + TextOf(identifier);
}

struct Library {
    UniqueIdentifier identifier;
    WORD major;
    WORD minor;
    std::wstring part;

    std::wstring PathKey(const wchar_t* locale, const wchar_t* bitness) const {
        return LibraryKey(identifier) + L"\\" + std::to_wstring(major) + L"." +
               std::to_wstring(minor) + L"\\" + locale + L"\\" + bitness;
    }
};

const std::vector<Library>& Libraries() {
    static const std::vector<Library> libraries = {
        {lumenkitClasses.uniqueIdentifier, lumenkitClasses.majorVersion,
         lumenkitClasses.minorVersion, L""},
        {lumenkitClasses.enumerations->uniqueIdentifier, lumenkitClasses.enumerations->majorVersion,
         lumenkitClasses.enumerations->minorVersion, L"\\2"}};
    return libraries;
}

constexpr std::array<REGSAM, 3> views = {0, KEY_WOW64_32KEY, KEY_WOW64_64KEY};

// Returns the keys of the registry that only a registered server has.
std::vector<std::wstring> Present() {
    std::vector<std::wstring> present;
    const auto look = [&](const std::wstring& key) {
        for (const REGSAM view : views) {
            if (TextAt(key, view)) {
                present.push_back(key);
                return;
            }
        }
    };
    for (const ClassDescriptor& type : lumenkitClasses.classes) {
        look(ProgramKey(type));
        look(L"CLSID\\" + TextOf(type.uniqueIdentifier));
        look(L"Interface\\" + TextOf(type.interfaceTable->uniqueIdentifier));
    }
    for (const Library& library : Libraries()) {
        look(LibraryKey(library.identifier));
    }
    return present;
}

class Registration : public ::testing::Test {
 protected:
    // Tests that were ended early leave the server registered.
    static void SetUpTestSuite() {
        for (const std::wstring& key : Present()) {
            for (const REGSAM view : views) {
                Remove(key, view);
            }
        }
    }

    Registration() { EXPECT_THAT(Present(), IsEmpty()); }
    ~Registration() override { EXPECT_THAT(Present(), IsEmpty()); }

    static void ExpectRegistered(const Server& server) {
        for (const ClassDescriptor& type : lumenkitClasses.classes) {
            EXPECT_EQ(TextAt(ServerKey(type)), server.Path());
            EXPECT_EQ(TextAt(ProgramKey(type) + L"\\CLSID"), TextOf(type.uniqueIdentifier));
        }
        for (const Library& library : Libraries()) {
            EXPECT_EQ(TextAt(library.PathKey(L"409", ownBitness)), server.Path() + library.part);
            EXPECT_EQ(TextAt(library.PathKey(L"0", ownBitness)), server.Path() + library.part);
        }
    }
};

TEST_F(Registration, IsRemovedCompletelyAndMayBeRemovedAgain) {
    const Server server(L"one");
    EXPECT_EQ(server.Unregister(), S_OK);  // there is nothing to remove
    EXPECT_EQ(server.Register(), S_OK);
    ExpectRegistered(server);
    EXPECT_EQ(server.Register(), S_OK);
    EXPECT_EQ(server.Unregister(), S_OK);
    EXPECT_THAT(Present(), IsEmpty());
    EXPECT_EQ(server.Unregister(), S_OK);
}

TEST_F(Registration, TheLibrariesAreFoundInEveryLanguage) {
    const Server server(L"one");
    ASSERT_EQ(server.Register(), S_OK);
    for (const Library& library : Libraries()) {
        for (const LCID locale : {0U, 0x409U, 0x407U, 0x809U}) {
            ComPtr<ITypeLib> found;
            EXPECT_EQ(LoadRegTypeLib(GuidOf(library.identifier), library.major, library.minor,
                                     locale, &found),
                      S_OK)
                << locale;
        }
    }
    ASSERT_EQ(server.Unregister(), S_OK);
    ComPtr<ITypeLib> found;
    EXPECT_EQ(LoadRegTypeLib(GuidOf(Libraries()[0].identifier), 7, 1, 0, &found),
              TYPE_E_LIBNOTREGISTERED);
}

TEST_F(Registration, AnOldCopyTakesNothingFromTheNewOne) {
    const Server old(L"one");
    const Server current(L"two");
    ASSERT_EQ(old.Register(), S_OK);
    ASSERT_EQ(current.Register(), S_OK);
    EXPECT_EQ(old.Unregister(), S_OK);
    ExpectRegistered(current);
    EXPECT_EQ(current.Unregister(), S_OK);
}

TEST_F(Registration, APathIsRecognisedInOtherLetters) {
    const Server server(L"one");
    ASSERT_EQ(server.Register(), S_OK);
    std::wstring upper = server.Path();
    CharUpperW(upper.data());
    for (const ClassDescriptor& type : lumenkitClasses.classes) {
        SetText(ServerKey(type), upper);
    }
    EXPECT_EQ(server.Unregister(), S_OK);
}

TEST_F(Registration, AProgrammaticIdentifierOfAnotherProgramIsKept) {
    const Server server(L"one");
    ASSERT_EQ(server.Register(), S_OK);
    const std::wstring key = ProgramKey(lumenkitClasses.classes[0]);
    SetText(key + L"\\CLSID", L"{00000000-0000-0000-0000-000000000001}");
    EXPECT_EQ(server.Unregister(), S_OK);
    EXPECT_THAT(Present(), ::testing::ElementsAre(key));
    Remove(key);
}

// A 32-bit system has no second view of the registry.
#ifdef _WIN64
class OtherBitness : public Registration {
 protected:
    static constexpr const wchar_t* path = L"C:\\elsewhere\\lumenkit.ocx";

    static void Add() {
        for (const ClassDescriptor& type : lumenkitClasses.classes) {
            SetText(ServerKey(type), path, KEY_WOW64_32KEY);
            // Otherwise the keys of the two servers are the same one.
            ASSERT_EQ(TextAt(ServerKey(type)), std::nullopt);
        }
        for (const Library& library : Libraries()) {
            SetText(library.PathKey(L"409", L"win32"), path + library.part);
            SetText(library.PathKey(L"0", L"win32"), path + library.part);
        }
    }
    static void Take() {
        for (const ClassDescriptor& type : lumenkitClasses.classes) {
            Remove(L"CLSID\\" + TextOf(type.uniqueIdentifier), KEY_WOW64_32KEY);
        }
        for (const Library& library : Libraries()) {
            Remove(library.PathKey(L"409", L"win32"));
            Remove(library.PathKey(L"0", L"win32"));
        }
    }
};

TEST_F(OtherBitness, KeepsWhatItNeeds) {
    const Server server(L"one");
    Add();
    ASSERT_EQ(server.Register(), S_OK);
    EXPECT_EQ(server.Unregister(), S_OK);
    for (const ClassDescriptor& type : lumenkitClasses.classes) {
        EXPECT_EQ(TextAt(ServerKey(type)), std::nullopt);
        EXPECT_EQ(TextAt(ServerKey(type), KEY_WOW64_32KEY), path);
        EXPECT_EQ(TextAt(ProgramKey(type) + L"\\CLSID"), TextOf(type.uniqueIdentifier));
        EXPECT_THAT(Present(),
                    Contains(L"Interface\\" + TextOf(type.interfaceTable->uniqueIdentifier)));
    }
    for (const Library& library : Libraries()) {
        for (const wchar_t* locale : {L"409", L"0"}) {
            EXPECT_EQ(TextAt(library.PathKey(locale, L"win32")), path + library.part);
            EXPECT_EQ(TextAt(library.PathKey(locale, L"win64")), std::nullopt);
        }
    }
    EXPECT_EQ(server.Unregister(), S_OK);
    EXPECT_THAT(Present(), Not(IsEmpty()));
    Take();
    ASSERT_EQ(server.Register(), S_OK);
    EXPECT_EQ(server.Unregister(), S_OK);
}
#endif

}  // namespace

}  // namespace lumenkit::clients
