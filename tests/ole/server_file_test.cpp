// The parts of the component server's file that installers, designers and the loader read.
#include <algorithm>
#include <cstddef>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <span>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <ocidl.h>
#include <windows.h>
#include <wrl/client.h>

#include "project/lumenkit_classes.h"

namespace lumenkit {

namespace {

using Microsoft::WRL::ComPtr;

const std::filesystem::path server = std::filesystem::path(LUMENKIT_BINARY_DIR) / "lumenkit.ocx";
// The resource type as a wide name. The headers define it for UNICODE programs only.
LPCWSTR const bitmapType = MAKEINTRESOURCEW(2);

/// The manifest of a program that is installed together with the server.
constexpr const char* clientManifest =
    "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
    "<assembly xmlns=\"urn:schemas-microsoft-com:asm.v1\" manifestVersion=\"1.0\">\n"
    "<assemblyIdentity type=\"win32\" name=\"client\" version=\"1.0.0.0\"/>\n"
    "<dependency><dependentAssembly>\n"
    "<assemblyIdentity type=\"win32\" name=\"lumenkit\" version=\"7.1.0.0\"/>\n"
    "</dependentAssembly></dependency></assembly>\n";

std::vector<std::byte> VersionInformation() {
    std::vector<std::byte> information(GetFileVersionInfoSizeW(server.c_str(), nullptr));
    EXPECT_FALSE(information.empty());
    EXPECT_TRUE(GetFileVersionInfoW(server.c_str(), 0, static_cast<DWORD>(information.size()),
                                    information.data()));
    return information;
}

std::wstring VersionText(const std::vector<std::byte>& information, const std::wstring& name) {
    void* text = nullptr;
    UINT length = 0;
    const std::wstring block = L"\\StringFileInfo\\040904B0\\" + name;
    return VerQueryValueW(information.data(), block.c_str(), &text, &length)
               ? std::wstring(static_cast<const wchar_t*>(text))
               : L"(none)";
}

TEST(ServerFile, TellsItsVersion) {
    const std::vector<std::byte> information = VersionInformation();
    void* found = nullptr;
    UINT length = 0;
    ASSERT_TRUE(VerQueryValueW(information.data(), L"\\", &found, &length));
    const auto& fixed = *static_cast<const VS_FIXEDFILEINFO*>(found);
    EXPECT_EQ(fixed.dwFileVersionMS, 7U << 16 | 1U);
    EXPECT_EQ(fixed.dwFileVersionLS, 0U);
    EXPECT_EQ(fixed.dwProductVersionMS, fixed.dwFileVersionMS);
    EXPECT_EQ(fixed.dwFileType, static_cast<DWORD>(VFT_DLL));
    EXPECT_EQ(VersionText(information, L"FileVersion"), L"7.1.0.0");
    EXPECT_EQ(VersionText(information, L"ProductName"), L"lumenkit");
    EXPECT_EQ(VersionText(information, L"OriginalFilename"), L"lumenkit.ocx");
    // Installers register a file that has this entry.
    EXPECT_EQ(VersionText(information, L"OLESelfRegister"), L"");
}

class LoadedServer : public ::testing::Test {
 protected:
    void SetUp() override {
        module_ = LoadLibraryExW(server.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
        ASSERT_NE(module_, nullptr);
    }
    void TearDown() override { FreeLibrary(module_); }

    std::span<const std::byte> Bitmap(std::uint16_t number) const {
        HRSRC found = FindResourceW(module_, MAKEINTRESOURCEW(number), bitmapType);
        if (found == nullptr) {
            return {};
        }
        return {static_cast<const std::byte*>(LockResource(LoadResource(module_, found))),
                SizeofResource(module_, found)};
    }

    HMODULE module_ = nullptr;
};

TEST_F(LoadedServer, HasAToolboxBitmapForEachControl) {
    std::vector<std::span<const std::byte>> bitmaps;
    for (const ClassDescriptor& type : lumenkitClasses.classes) {
        ASSERT_EQ(type.toolboxBitmap == 0, type.kind != ClassKind::Control);
        if (type.kind != ClassKind::Control) {
            continue;
        }
        const std::span<const std::byte> bitmap = Bitmap(type.toolboxBitmap);
        ASSERT_GT(bitmap.size(), sizeof(BITMAPINFOHEADER));
        const auto& header = *reinterpret_cast<const BITMAPINFOHEADER*>(bitmap.data());
        EXPECT_EQ(header.biWidth, 16);
        EXPECT_EQ(header.biHeight, 15);
        EXPECT_EQ(header.biBitCount, 4);
        for (const auto& other : bitmaps) {
            EXPECT_FALSE(std::ranges::equal(bitmap, other)) << "two controls look the same";
        }
        bitmaps.push_back(bitmap);
    }
}

/// Activates such a manifest for this thread, in the folder of the server.
class SideBySide : public ::testing::Test {
 protected:
    void SetUp() override {
        const std::filesystem::path folder = server.parent_path();
        const std::filesystem::path manifest = folder / "server_file_test_client.manifest";
        std::ofstream(manifest, std::ios::binary) << clientManifest;
        ACTCTXW request = {};
        request.cbSize = sizeof request;
        request.dwFlags = ACTCTX_FLAG_ASSEMBLY_DIRECTORY_VALID;
        request.lpSource = manifest.c_str();
        request.lpAssemblyDirectory = folder.c_str();
        context_ = CreateActCtxW(&request);
        ASSERT_NE(context_, INVALID_HANDLE_VALUE) << GetLastError();
        ASSERT_TRUE(ActivateActCtx(context_, &cookie_));
        ASSERT_TRUE(SUCCEEDED(OleInitialize(nullptr)));
    }
    void TearDown() override {
        OleUninitialize();
        DeactivateActCtx(0, cookie_);
        ReleaseActCtx(context_);
    }

    HANDLE context_ = INVALID_HANDLE_VALUE;
    ULONG_PTR cookie_ = 0;
};

/// Creates an object by its class name, as a program does that knows nothing else of the class.
ComPtr<IUnknown> Create(const ClassDescriptor& type) {
    const Text name = Text(lumenkitClasses.libraryName) + u"." + Text(type.name);
    CLSID found = {};
    EXPECT_EQ(CLSIDFromProgID(std::wstring(name.begin(), name.end()).c_str(), &found), S_OK);
    ComPtr<IUnknown> made;
    EXPECT_EQ(CoCreateInstance(found, nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown, &made), S_OK);
    return made;
}

TEST_F(SideBySide, MakesEachClassByItsName) {
    for (const ClassDescriptor& type : lumenkitClasses.classes) {
        const ComPtr<IUnknown> made = Create(type);
        ASSERT_NE(made, nullptr);
        ComPtr<IPropertyPage> page;
        ComPtr<IPersistStreamInit> saved;
        EXPECT_EQ(SUCCEEDED(made.As(&page)), type.kind == ClassKind::PropertyPage);
        ASSERT_EQ(SUCCEEDED(made.As(&saved)), type.kind == ClassKind::Control);
        if (saved != nullptr) {
            CLSID own = {};
            EXPECT_EQ(saved->GetClassID(&own), S_OK);
            EXPECT_EQ(std::memcmp(&own, &type.uniqueIdentifier, sizeof own), 0);
        }
    }
}

TEST_F(SideBySide, TellsTheStatusOfAControlAsTheControlDoes) {
    for (const ClassDescriptor& type : lumenkitClasses.classes) {
        if (type.kind != ClassKind::Control) {
            continue;
        }
        ComPtr<IOleObject> object;
        ASSERT_TRUE(SUCCEEDED(Create(type).As(&object)));
        CLSID own = {};
        DWORD told = 0;
        DWORD registered = 0;
        EXPECT_EQ(object->GetUserClassID(&own), S_OK);
        EXPECT_EQ(object->GetMiscStatus(DVASPECT_CONTENT, &told), S_OK);
        EXPECT_EQ(OleRegGetMiscStatus(own, DVASPECT_CONTENT, &registered), S_OK);
        EXPECT_EQ(told, registered);
        EXPECT_NE(told, 0U);
    }
}

TEST_F(SideBySide, FindsBothTypeLibraries) {
    const auto load = [](const UniqueIdentifier& identifier, WORD majorVersion, WORD minorVersion) {
        GUID guid = {};
        static_assert(sizeof guid == sizeof identifier);
        std::memcpy(&guid, &identifier, sizeof guid);
        ComPtr<ITypeLib> library;
        return LoadRegTypeLib(guid, majorVersion, minorVersion, 0, &library);
    };
    EXPECT_EQ(load(lumenkitClasses.uniqueIdentifier, 7, 1), S_OK);
    EXPECT_EQ(load(runtimeEnumerations.uniqueIdentifier, 1, 0), S_OK);
    EXPECT_NE(load(lumenkitClasses.uniqueIdentifier, 8, 0), S_OK);
}

}  // namespace

}  // namespace lumenkit
