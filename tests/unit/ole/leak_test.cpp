// Repeated use of controls leaves nothing behind.
#include <atomic>
#include <set>

#include "runtime/win32/window.h"
#include "tests/ole/string_cache.h"
#include "tests/support/window_count.h"
#include "tests/unit/ole/ole_test.h"

namespace lumenkit::ole {
namespace {

// Counts the blocks of the platform's allocator, which holds automation strings too.
class BlockCounter final : public container::Counted<IMallocSpy> {
 public:
    BlockCounter() : Counted(IID_IMallocSpy) {}

    long Blocks() const { return blocks_; }

    SIZE_T STDMETHODCALLTYPE PreAlloc(SIZE_T size) override { return size; }
    void* STDMETHODCALLTYPE PostAlloc(void* block) override {
        blocks_ += block != nullptr ? 1 : 0;
        return block;
    }
    void* STDMETHODCALLTYPE PreFree(void* block, BOOL /*spied*/) override {
        blocks_ -= block != nullptr ? 1 : 0;
        return block;
    }
    void STDMETHODCALLTYPE PostFree(BOOL /*spied*/) override {}
    SIZE_T STDMETHODCALLTYPE PreRealloc(void* block, SIZE_T size, void** same,
                                        BOOL /*spied*/) override {
        blocks_ -= block != nullptr ? 1 : 0;
        *same = block;
        return size;
    }
    void* STDMETHODCALLTYPE PostRealloc(void* block, BOOL /*spied*/) override {
        blocks_ += block != nullptr ? 1 : 0;
        return block;
    }
    void* STDMETHODCALLTYPE PreGetSize(void* block, BOOL /*spied*/) override { return block; }
    SIZE_T STDMETHODCALLTYPE PostGetSize(SIZE_T size, BOOL /*spied*/) override { return size; }
    void* STDMETHODCALLTYPE PreDidAlloc(void* block, BOOL /*spied*/) override { return block; }
    int STDMETHODCALLTYPE PostDidAlloc(void* /*block*/, BOOL /*spied*/, int actual) override {
        return actual;
    }
    void STDMETHODCALLTYPE PreHeapMinimize() override {}
    void STDMETHODCALLTYPE PostHeapMinimize() override {}

 private:
    std::atomic<long> blocks_ = 0;
};

class LeakTest : public OleTest {
 protected:
    // Creates a control and uses everything that makes strings and objects.
    static void Use(TextView name) {
        const ComPtr<IDispatch> dispatch = Create<IDispatch>(name);
        const Late control(dispatch);
        const wchar_t* property = name == u"VMemo" ? L"Text" : L"Caption";
        control.Put(property, Text(u"some text"));
        control.Get(property);
        control.Put(property, Null{});
        Variant font;
        control.Invoke(L"Font", DISPATCH_PROPERTYGET, {}, font.Get());
        control.Invoke(L"Font", DISPATCH_PROPERTYPUTREF, {*font});
        ComPtr<IPersistStreamInit> persist;
        dispatch.As(&persist);
        ComPtr<IStream> stream;
        CreateStreamOnHGlobal(nullptr, TRUE, &stream);
        persist->Save(stream.Get(), TRUE);
        stream->Seek({}, STREAM_SEEK_SET, nullptr);
        persist->Load(stream.Get());
        persist->Load(stream.Get());  // at the end of the stream
        ComPtr<IOleObject> object;
        dispatch.As(&object);
        LPOLESTR type = nullptr;
        object->GetUserType(USERCLASSTYPE_SHORT, &type);
        CoTaskMemFree(type);
    }
};

TEST_F(LeakTest, TenThousandControlsLeaveNothing) {
    for (int round = 0; round < 10000; ++round) {
        const ComPtr<IDispatch> control = Create<IDispatch>(round % 3 == 0   ? u"VLabel"
                                                            : round % 3 == 1 ? u"VMemo"
                                                                             : u"VOptList");
        Late(control).Put(L"Enabled", false);
    }
    EXPECT_EQ(testing::WindowCount(), 0);
    EXPECT_LT(GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS), 500U);
}

TEST_F(LeakTest, StringsAndObjectsAreFreed) {
    SetOaNoCache();
    for (const TextView name : {u"VLabel", u"VMemo", u"VOptList"}) {
        Use(name);  // makes everything that is made only once
    }
    BlockCounter counter;
    ASSERT_EQ(CoRegisterMallocSpy(&counter), S_OK);
    const long none = counter.Blocks();
    const BSTR seen = SysAllocString(L"a string of some length");
    EXPECT_EQ(counter.Blocks(), none + 1);  // the counter works
    SysFreeString(seen);
    EXPECT_EQ(counter.Blocks(), none);
    for (const TextView name : {u"VLabel", u"VMemo", u"VOptList"}) {
        const long before = counter.Blocks();
        for (int round = 0; round < 50; ++round) {
            Use(name);
        }
        EXPECT_EQ(counter.Blocks(), before) << ::testing::PrintToString(name);
    }
    EXPECT_EQ(CoRevokeMallocSpy(), S_OK);
}

}  // namespace
}  // namespace lumenkit::ole
