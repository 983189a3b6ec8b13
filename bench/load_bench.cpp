// Benchmarks of loading the component server and creating its first object, against controls that
// come with Wine: the script control, which has no window, and the web browser, which creates its
// window later. These are in-process servers that load only libraries of the platform, and their
// objects have IPersistStreamInit. Each round releases all objects and unloads the library, so that
// the next round loads it again. The program has a window and has loaded OLE's libraries, as every
// container has.
#include <string>

#include <ocidl.h>

#include "bench/ratio_table.h"
#include "bench/require.h"
#include "runtime/win32/windows_header.h"

namespace {

using lumenkit::bench::AddComparison;
using lumenkit::bench::Ratio;
using lumenkit::bench::Require;
using lumenkit::bench::Side;

constexpr CLSID label = {
    0xc9d68950, 0xe9f6, 0x434b, {0xbd, 0x20, 0x7e, 0x03, 0x5e, 0x44, 0xaf, 0x24}};
constexpr CLSID scriptControl = {
    0x0e59f1d5, 0x1fbe, 0x11d0, {0x8f, 0xf2, 0x00, 0xa0, 0xd1, 0x00, 0x38, 0xbc}};

constexpr CLSID webBrowser = {
    0x8856f961, 0x340a, 0x11d0, {0xa9, 0x6b, 0x00, 0xc0, 0x4f, 0xd7, 0x05, 0xa2}};

struct Component {
    const wchar_t* file;
    CLSID type;
};

using GetClassObject = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);

void MakeFirstObject(HMODULE server, const CLSID& type) {
    const FARPROC entry = GetProcAddress(server, "DllGetClassObject");
    Require(entry != nullptr, "the server exports no DllGetClassObject");
    const auto getClassObject = reinterpret_cast<GetClassObject>(reinterpret_cast<void*>(entry));
    IClassFactory* factory = nullptr;
    Require(SUCCEEDED(getClassObject(type, IID_IClassFactory, reinterpret_cast<void**>(&factory))),
            "DllGetClassObject failed");
    IPersistStreamInit* object = nullptr;
    Require(SUCCEEDED(factory->CreateInstance(nullptr, IID_IPersistStreamInit,
                                              reinterpret_cast<void**>(&object))),
            "CreateInstance failed");
    Require(SUCCEEDED(object->InitNew()), "InitNew failed");
    object->Release();
    factory->Release();
}

Side Loading(const Component& component) {
    return {.round = [component] {
        const HMODULE server = LoadLibraryW(component.file);
        Require(server != nullptr, "LoadLibrary failed");
        MakeFirstObject(server, component.type);
        FreeLibrary(server);
        Require(GetModuleHandleW(component.file) == nullptr, "the server is not unloaded");
    }};
}

}  // namespace

int main(int argc, char** argv) {
    OleInitialize(nullptr);
    SysFreeString(nullptr);  // loads oleaut32.dll
    const HWND window = CreateWindowExW(0, L"STATIC", L"container", WS_OVERLAPPEDWINDOW, 0, 0, 300,
                                        200, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
    const auto against = [](const std::string& name, const Component& other) {
        AddComparison({.what = "Wine: load the server and make a label, against " + name,
                       .unit = "load",
                       .ours = Loading({LUMENKIT_OCX, label}),
                       .other = Loading(other),
                       .ratio = Ratio::TimesSlower,
                       .aim = "<= 1x"});
    };
    against("a script control", {L"msscript.ocx", scriptControl});
    against("a web browser", {L"ieframe.dll", webBrowser});
    const int result = lumenkit::bench::RunComparisons(argc, argv);
    DestroyWindow(window);
    OleUninitialize();
    return result;
}
