// Thousands of controls are created and destroyed and leave nothing behind: no windows, no drawing
// objects, no strings, no loaded server.
#include <array>
#include <vector>

#include <gmock/gmock.h>
#include <ocidl.h>
#include <olectl.h>

#include "tests/ole/clients/support/com.h"
#include "tests/ole/string_cache.h"

namespace lumenkit::clients {

namespace {

constexpr std::array controls = {L"lumenkit.VLabel", L"lumenkit.VMemo", L"lumenkit.VOptList"};

// Counts the blocks of the platform's allocator that are not freed.
class Spy final : public IMallocSpy {
 public:
    virtual ~Spy() = default;
    long Alive() const { return alive_; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        *object = iid == IID_IUnknown || iid == IID_IMallocSpy ? this : nullptr;
        return *object == nullptr ? E_NOINTERFACE : S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    SIZE_T STDMETHODCALLTYPE PreAlloc(SIZE_T size) override { return size; }
    void* STDMETHODCALLTYPE PostAlloc(void* memory) override {
        alive_ += memory == nullptr ? 0 : 1;
        return memory;
    }
    void* STDMETHODCALLTYPE PreFree(void* memory, BOOL spied) override {
        alive_ -= spied && memory != nullptr ? 1 : 0;
        return memory;
    }
    void STDMETHODCALLTYPE PostFree(BOOL) override {}
    SIZE_T STDMETHODCALLTYPE PreRealloc(void* memory, SIZE_T size, void** same,
                                        BOOL spied) override {
        alive_ += memory == nullptr && spied ? 1 : 0;
        *same = memory;
        return size;
    }
    void* STDMETHODCALLTYPE PostRealloc(void* memory, BOOL) override { return memory; }
    void* STDMETHODCALLTYPE PreGetSize(void* memory, BOOL) override { return memory; }
    SIZE_T STDMETHODCALLTYPE PostGetSize(SIZE_T size, BOOL) override { return size; }
    void* STDMETHODCALLTYPE PreDidAlloc(void* memory, BOOL) override { return memory; }
    int STDMETHODCALLTYPE PostDidAlloc(void*, BOOL, int did) override { return did; }
    void STDMETHODCALLTYPE PreHeapMinimize() override {}
    void STDMETHODCALLTYPE PostHeapMinimize() override {}

 private:
    long alive_ = 0;
};

BOOL CALLBACK CountWindow(HWND window, LPARAM counted) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process == GetCurrentProcessId()) {
        ++*reinterpret_cast<int*>(counted);
    }
    return TRUE;
}

// Counts all windows of this process: top-level, child and message-only windows.
int Windows() {
    int count = 0;
    const auto counted = reinterpret_cast<LPARAM>(&count);
    EnumChildWindows(GetDesktopWindow(), &CountWindow, counted);
    for (HWND window = nullptr;
         (window = FindWindowExW(HWND_MESSAGE, window, nullptr, nullptr)) != nullptr;) {
        CountWindow(window, counted);
        EnumChildWindows(window, &CountWindow, counted);
    }
    return count;
}

// Returns how many more drawing objects this process may create. Not every platform reports how
// many it has.
int FreeDrawingObjects() {
    constexpr std::size_t most = 100000;
    std::vector<HBRUSH> brushes;
    HBRUSH brush = nullptr;
    while (brushes.size() < most && (brush = CreateSolidBrush(1)) != nullptr) {
        brushes.push_back(brush);
    }
    EXPECT_LT(brushes.size(), most) << "there is no limit to count by";
    for (const HBRUSH each : brushes) {
        DeleteObject(each);
    }
    return static_cast<int>(brushes.size());
}

HRESULT CanUnload() {
    using Entry = HRESULT(STDAPICALLTYPE*)();
    const HMODULE server = GetModuleHandleW(L"lumenkit.ocx");
    EXPECT_NE(server, nullptr);
    return reinterpret_cast<Entry>(
        reinterpret_cast<void*>(GetProcAddress(server, "DllCanUnloadNow")))();
}

// Creates a control, sets properties, saves and loads it, and takes its picture.
void Live(const wchar_t* name, bool thoroughly) {
    const ComPtr<IDispatch> object = Create(name);
    ASSERT_NE(object, nullptr);
    const wchar_t* property = name == controls[1] ? L"Text" : L"Caption";
    EXPECT_EQ(Put(*object.Get(), property, Variant(L"some |B|text")), S_OK);
    EXPECT_EQ(TextOf(*object.Get(), property), L"some |B|text");
    if (!thoroughly) {
        return;
    }
    EXPECT_EQ(Put(*object.Get(), L"Enabled", Variant(L"oops")), DISP_E_TYPEMISMATCH);
    Variant font;
    EXPECT_EQ(Read(*object.Get(), L"Font", font), S_OK);
    EXPECT_EQ(Put(*font.pdispVal, L"Bold", Variant(1L)), S_OK);
    ComPtr<IPersistStreamInit> persisted;
    ComPtr<IStream> stream;
    ASSERT_EQ(object.As(&persisted), S_OK);
    ASSERT_EQ(CreateStreamOnHGlobal(nullptr, TRUE, &stream), S_OK);
    EXPECT_EQ(persisted->Save(stream.Get(), TRUE), S_OK);
    stream->Seek({}, STREAM_SEEK_SET, nullptr);
    EXPECT_EQ(persisted->Load(stream.Get()), S_OK);
    EXPECT_EQ(TextOf(*object.Get(), property), L"some |B|text");
    ComPtr<IDataObject> data;
    ASSERT_EQ(object.As(&data), S_OK);
    FORMATETC format = {CF_METAFILEPICT, nullptr, DVASPECT_CONTENT, -1, TYMED_MFPICT};
    STGMEDIUM medium = {};
    EXPECT_EQ(data->GetData(&format, &medium), S_OK);
    ReleaseStgMedium(&medium);
}

// Turns off the cache of automation strings, so that a freed string counts as freed at once.
class Lifetime : public OleTest {
 protected:
    static void SetUpTestSuite() { SetOaNoCache(); }
};

// The counters must notice one leftover of each kind.
TEST_F(Lifetime, LeftoversAreNoticed) {
    static Spy spy;
    ASSERT_EQ(CoRegisterMallocSpy(&spy), S_OK);
    BSTR text = SysAllocString(L"left behind");
    EXPECT_EQ(spy.Alive(), 1);
    SysFreeString(text);
    EXPECT_EQ(spy.Alive(), 0);
    EXPECT_EQ(CoRevokeMallocSpy(), S_OK);
    // With the first window of a thread, the platform creates further windows.
    const HWND first = CreateWindowExW(0, L"Static", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr,
                                       nullptr, nullptr);
    const int windows = Windows();
    const HWND window = CreateWindowExW(0, L"Static", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr,
                                        nullptr, nullptr);
    const HWND child =
        CreateWindowExW(0, L"Static", L"", WS_CHILD, 0, 0, 1, 1, window, nullptr, nullptr, nullptr);
    const HWND messages =
        CreateWindowExW(0, L"Static", L"", 0, 0, 0, 1, 1, HWND_MESSAGE, nullptr, nullptr, nullptr);
    ASSERT_NE(child, nullptr);
    EXPECT_EQ(Windows(), windows + 3);
    DestroyWindow(messages);
    DestroyWindow(window);
    EXPECT_EQ(Windows(), windows);
    DestroyWindow(first);
    const int drawingObjects = FreeDrawingObjects();
    const HPEN pen = CreatePen(PS_SOLID, 1, 0);
    EXPECT_EQ(FreeDrawingObjects(), drawingObjects - 1);
    DeleteObject(pen);
    EXPECT_EQ(FreeDrawingObjects(), drawingObjects);
}

TEST_F(Lifetime, TenThousandControlsLeaveNothingBehind) {
    // The server stays loaded, so that the data it keeps for all controls does not count as a leak.
    const ComPtr<IDispatch> first = Create(controls[0]);
    for (std::size_t round = 0; round < 30; ++round) {
        Live(controls[round % 3], true);
    }
    RunMessages();
    static Spy spy;
    const int windows = Windows();
    const int drawingObjects = FreeDrawingObjects();
    ASSERT_EQ(CoRegisterMallocSpy(&spy), S_OK);
    for (std::size_t round = 0; round < 10000 && !HasFailure(); ++round) {
        Live(controls[round % 3], round % 10 == 0);
    }
    RunMessages();
    EXPECT_EQ(spy.Alive(), 0);
    CoRevokeMallocSpy();
    EXPECT_EQ(Windows(), windows);
    EXPECT_EQ(FreeDrawingObjects(), drawingObjects);
}

TEST_F(Lifetime, TheServerIsUnloadedAndLoadedAgain) {
    for (std::size_t round = 0; round < 5; ++round) {
        {
            const ComPtr<IDispatch> object = Create(controls[round % 3]);
            ComPtr<IDispatch> page = Create(L"lumenkit.VLabelCaption");
            EXPECT_EQ(CanUnload(), S_FALSE);
            Variant font;
            EXPECT_EQ(Read(*object.Get(), L"Font", font), S_OK);
        }
        EXPECT_EQ(CanUnload(), S_OK);
        CoFreeUnusedLibrariesEx(0, 0);
        CoFreeUnusedLibrariesEx(0, 0);
        EXPECT_EQ(GetModuleHandleW(L"lumenkit.ocx"), nullptr) << round;
    }
}

// A reference to a part of a control keeps the server loaded.
TEST_F(Lifetime, APartKeepsTheServer) {
    {
        ComPtr<IConnectionPoint> point;
        {
            const ComPtr<IConnectionPointContainer> points =
                Create<IConnectionPointContainer>(controls[2]);
            ASSERT_EQ(points->FindConnectionPoint(IID_IPropertyNotifySink, &point), S_OK);
        }
        EXPECT_EQ(CanUnload(), S_FALSE);
        IID connection = {};
        EXPECT_EQ(point->GetConnectionInterface(&connection), S_OK);
        EXPECT_EQ(connection, IID_IPropertyNotifySink);
    }
    EXPECT_EQ(CanUnload(), S_OK);
}

}  // namespace

}  // namespace lumenkit::clients
