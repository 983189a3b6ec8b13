#include <random>

#include "runtime/ole/control/persist_stream.h"
#include "runtime/ole/stored/stream_format.h"
#include "tests/ole/container/bag.h"
#include "tests/ole/container/error_log.h"
#include "tests/support/sealed_stream.h"
#include "tests/unit/ole/ole_test.h"

namespace lumenkit::ole {
namespace {

constexpr auto invalidValue = static_cast<HRESULT>(0x800A017C);  // error 380

using Bytes = std::vector<std::uint8_t>;

ComPtr<IStream> StreamOf(const Bytes& bytes) {
    ComPtr<IStream> stream;
    CreateStreamOnHGlobal(nullptr, TRUE, &stream);
    stream->Write(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr);
    stream->Seek({}, STREAM_SEEK_SET, nullptr);
    return stream;
}

Bytes BytesOf(IStream& stream) {
    ULARGE_INTEGER size = {};
    stream.Seek({}, STREAM_SEEK_END, &size);
    stream.Seek({}, STREAM_SEEK_SET, nullptr);
    Bytes bytes(static_cast<std::size_t>(size.QuadPart));
    stream.Read(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr);
    return bytes;
}

class PersistenceTest : public OleTest {
 protected:
    // Returns a label that differs from a new one in every kind of value.
    static ComPtr<IDispatch> Edited() {
        ComPtr<IDispatch> label = Create<IDispatch>(u"VLabel");
        const Late late(label);
        EXPECT_EQ(late.Put(L"Caption", Text(u"|B:1|caf\u00E9\0x", 10)), S_OK);
        EXPECT_EQ(late.Put(L"WordWrap", true), S_OK);
        EXPECT_EQ(late.Put(L"BulletIndent", std::int16_t{-120}), S_OK);
        EXPECT_EQ(late.Put(L"ForeColor", std::int32_t{0x00AABB}), S_OK);
        Variant font;
        EXPECT_EQ(late.Invoke(L"Font", DISPATCH_PROPERTYGET, {}, font.Get()), S_OK);
        const Late fontDispatch{ComPtr<IDispatch>(V_DISPATCH(font.Get()))};
        EXPECT_EQ(fontDispatch.Put(L"Name", Text(u"Arial")), S_OK);
        EXPECT_EQ(fontDispatch.Put(L"Size", 14.0), S_OK);
        EXPECT_EQ(fontDispatch.Put(L"Italic", true), S_OK);
        SIZEL size = {4000, 2000};
        ComPtr<IOleObject> object;
        label.As(&object);
        EXPECT_EQ(object->SetExtent(DVASPECT_CONTENT, &size), S_OK);
        return label;
    }
    static void ExpectEdited(const ComPtr<IDispatch>& label) {
        const Late late(label);
        EXPECT_EQ(ToText(late.Get(L"Caption")), Text(u"|B:1|caf\u00E9\0x", 10));
        EXPECT_TRUE(ToBoolean(late.Get(L"WordWrap")));
        EXPECT_EQ(ToInteger(late.Get(L"BulletIndent")), -120);
        EXPECT_EQ(ToLong(late.Get(L"ForeColor")), 0x00AABB);
        Variant font;
        EXPECT_EQ(late.Invoke(L"Font", DISPATCH_PROPERTYGET, {}, font.Get()), S_OK);
        const Late fontDispatch{ComPtr<IDispatch>(V_DISPATCH(font.Get()))};
        EXPECT_NEAR(ToSingle(fontDispatch.Get(L"Size")), 14.0F, 0.5F);
        EXPECT_TRUE(ToBoolean(fontDispatch.Get(L"Italic")));
        SIZEL size = {};
        ComPtr<IOleObject> object;
        label.As(&object);
        EXPECT_EQ(object->GetExtent(DVASPECT_CONTENT, &size), S_OK);
        EXPECT_EQ(size.cx, 4000);
        EXPECT_EQ(size.cy, 2000);
    }
    template <typename Interface>
    static ComPtr<Interface> As(const ComPtr<IDispatch>& control) {
        ComPtr<Interface> found;
        control.As(&found);
        return found;
    }
    static Bytes Saved(const ComPtr<IDispatch>& control) {
        const ComPtr<IStream> stream = StreamOf({});
        EXPECT_EQ(As<IPersistStreamInit>(control)->Save(stream.Get(), TRUE), S_OK);
        return BytesOf(*stream.Get());
    }
    static Late FontOf(const ComPtr<IDispatch>& control) {
        Variant font;
        EXPECT_EQ(Late(control).Invoke(L"Font", DISPATCH_PROPERTYGET, {}, font.Get()), S_OK);
        return Late(ComPtr<IDispatch>(V_DISPATCH(font.Get())));
    }
    static ComPtr<IStorage> NewStorage() {
        ComPtr<ILockBytes> memory;
        ComPtr<IStorage> storage;
        CreateILockBytesOnHGlobal(nullptr, TRUE, &memory);
        StgCreateDocfileOnILockBytes(
            memory.Get(), STGM_CREATE | STGM_READWRITE | STGM_SHARE_EXCLUSIVE, 0, &storage);
        return storage;
    }
};

TEST_F(PersistenceTest, GoesThroughAStream) {
    const ComPtr<IDispatch> label = Edited();
    const ComPtr<IPersistStreamInit> saver = As<IPersistStreamInit>(label);
    EXPECT_EQ(saver->IsDirty(), S_OK);
    const Bytes bytes = Saved(label);
    EXPECT_EQ(saver->IsDirty(), S_FALSE);
    ULARGE_INTEGER size = {};
    EXPECT_EQ(saver->GetSizeMax(&size), S_OK);
    EXPECT_EQ(size.QuadPart, bytes.size());
    const ComPtr<IDispatch> loaded = Create<IDispatch>(u"VLabel");
    const ComPtr<IPersistStreamInit> loader = As<IPersistStreamInit>(loaded);
    Bytes followed = bytes;
    followed.push_back(0xEE);
    const ComPtr<IStream> stream = StreamOf(followed);
    EXPECT_EQ(loader->Load(stream.Get()), S_OK);
    EXPECT_EQ(loader->IsDirty(), S_FALSE);
    std::uint8_t next = 0;
    EXPECT_EQ(stream->Read(&next, 1, nullptr), S_OK);
    EXPECT_EQ(next, 0xEE);  // the bytes that follow are not read
    ExpectEdited(loaded);
    EXPECT_EQ(Saved(loaded), bytes);
    EXPECT_EQ(Late(loaded).Put(L"Caption", Text(u"new")), S_OK);
    EXPECT_EQ(loader->IsDirty(), S_OK);
}

TEST_F(PersistenceTest, GoesThroughAStorage) {
    const ComPtr<IStorage> storage = NewStorage();
    const ComPtr<IDispatch> label = Edited();
    const ComPtr<IPersistStorage> saver = As<IPersistStorage>(label);
    EXPECT_EQ(saver->Save(storage.Get(), FALSE), S_OK);
    EXPECT_EQ(saver->SaveCompleted(nullptr), S_OK);
    EXPECT_EQ(saver->IsDirty(), S_FALSE);
    const ComPtr<IDispatch> loaded = Create<IDispatch>(u"VLabel");
    EXPECT_EQ(As<IPersistStorage>(loaded)->Load(storage.Get()), S_OK);
    ExpectEdited(loaded);
    EXPECT_EQ(Saved(loaded), Saved(label));
    EXPECT_EQ(saver->HandsOffStorage(), S_OK);
    EXPECT_TRUE(
        FAILED(As<IPersistStorage>(Create<IDispatch>(u"VLabel"))->Load(NewStorage().Get())));
}

TEST_F(PersistenceTest, GoesThroughABag) {
    container::Bag bag;
    const ComPtr<IDispatch> label = Edited();
    EXPECT_EQ(As<IPersistPropertyBag>(label)->Save(&bag, TRUE, FALSE), S_OK);
    EXPECT_EQ(bag.Get(L"Enabled"), Value(Empty{}));  // a default is not saved
    EXPECT_EQ(bag.Get(L"WordWrap"), Value(true));
    const ComPtr<IDispatch> loaded = Create<IDispatch>(u"VLabel");
    EXPECT_EQ(As<IPersistPropertyBag>(loaded)->Load(&bag, nullptr), S_OK);
    ExpectEdited(loaded);
    EXPECT_EQ(Saved(loaded), Saved(label));
    EXPECT_EQ(bag.References(), 0U);
}

TEST_F(PersistenceTest, TakesTextsFromABag) {
    container::Bag bag;
    bag.Put(L"Caption", Text(u"from a page"));
    bag.Put(L"WordWrap", Text(u"-1"));
    bag.Put(L"BulletIndent", Text(u"150"));
    bag.Put(L"ForeColor", Text(u"2147483653"));
    bag.Put(L"BulletPrefix", std::int32_t{7});
    bag.Put(L"Enabled", Text(u"nonsense"));
    bag.Put(L"Font", Text(u"Arial"));
    const Late label(Create<IDispatch>(u"VLabel"));
    EXPECT_EQ(As<IPersistPropertyBag>(label.Get())->Load(&bag, nullptr), S_OK);
    EXPECT_EQ(ToText(label.Get(L"Caption")), u"from a page");
    EXPECT_TRUE(ToBoolean(label.Get(L"WordWrap")));
    EXPECT_EQ(ToInteger(label.Get(L"BulletIndent")), 150);
    EXPECT_EQ(ToLong(label.Get(L"ForeColor")), static_cast<std::int32_t>(0x80000005));
    EXPECT_EQ(ToText(label.Get(L"BulletPrefix")), u"7");
    EXPECT_TRUE(ToBoolean(label.Get(L"Enabled")));
}

TEST_F(PersistenceTest, ABagThatTakesNoObjectsIsAFailureToSave) {
    container::Bag bag;
    bag.takesObjects = false;
    const ComPtr<IDispatch> label = Edited();
    EXPECT_EQ(As<IPersistPropertyBag>(label)->Save(&bag, TRUE, FALSE), E_NOTIMPL);
    EXPECT_EQ(As<IPersistStreamInit>(label)->IsDirty(), S_OK);
}

// The font object takes a size that the control refuses.
TEST_F(PersistenceTest, ASaveThatFailsWritesNothingAndLeavesTheControlDirty) {
    for (const TextView name : {u"VLabel", u"VMemo", u"VOptList"}) {
        const ComPtr<IDispatch> control = Create<IDispatch>(name);
        const ComPtr<IStorage> storage = NewStorage();
        const ComPtr<IPersistStorage> keeper = As<IPersistStorage>(control);
        const ComPtr<IPersistStreamInit> saver = As<IPersistStreamInit>(control);
        ASSERT_EQ(keeper->Save(storage.Get(), FALSE), S_OK);
        ASSERT_EQ(keeper->SaveCompleted(nullptr), S_OK);
        const Bytes before = Saved(control);
        const Late font = FontOf(control);
        ASSERT_EQ(font.Put(L"Size", 3000.0), S_OK);
        ASSERT_EQ(Late(control).Put(L"Enabled", false), S_OK);

        const ComPtr<IStream> stream = StreamOf({});
        EXPECT_EQ(saver->Save(stream.Get(), TRUE), invalidValue);
        EXPECT_EQ(MessageBoxes::Take(), 1);
        EXPECT_EQ(BytesOf(*stream.Get()), Bytes{});
        container::Bag bag;
        EXPECT_EQ(As<IPersistPropertyBag>(control)->Save(&bag, TRUE, TRUE), invalidValue);
        EXPECT_EQ(bag.Size(), 0U);
        EXPECT_EQ(keeper->Save(storage.Get(), TRUE), invalidValue);
        EXPECT_EQ(keeper->SaveCompleted(nullptr), S_OK);
        EXPECT_EQ(MessageBoxes::Take(), 2);
        ULARGE_INTEGER size = {};
        EXPECT_EQ(saver->GetSizeMax(&size), invalidValue);
        EXPECT_EQ(MessageBoxes::Take(), 1);
        EXPECT_EQ(saver->IsDirty(), S_OK);

        const ComPtr<IDispatch> loaded = Create<IDispatch>(name);
        ASSERT_EQ(As<IPersistStorage>(loaded)->Load(storage.Get()), S_OK);
        EXPECT_EQ(Saved(loaded), before);
        ASSERT_EQ(font.Put(L"Size", 12.0), S_OK);
        EXPECT_EQ(saver->Save(stream.Get(), TRUE), S_OK);
        EXPECT_EQ(saver->IsDirty(), S_FALSE);
    }
}

TEST_F(PersistenceTest, AnUnusableExtentIsLoggedAndLeftOut) {
    for (const Value& width : {Value(Text(u"wide")), Value(std::int32_t{-1}), Value(1e20),
                               Value(std::int32_t{2000000000})}) {
        container::Bag bag;
        container::ErrorLog log;
        bag.Put(L"Caption", Text(u"loaded"));
        bag.Put(L"_ExtentX", width);
        bag.Put(L"_ExtentY", std::int32_t{2000});
        const ComPtr<IDispatch> label = Create<IDispatch>(u"VLabel");
        SIZEL before = {};
        SIZEL after = {};
        As<IOleObject>(label)->GetExtent(DVASPECT_CONTENT, &before);
        EXPECT_EQ(As<IPersistPropertyBag>(label)->Load(&bag, &log), S_OK);
        As<IOleObject>(label)->GetExtent(DVASPECT_CONTENT, &after);
        EXPECT_EQ(after.cx, before.cx);
        EXPECT_EQ(after.cy, before.cy);
        EXPECT_EQ(ToText(Late(label).Get(L"Caption")), u"loaded");
        ASSERT_THAT(log.lines, ::testing::SizeIs(1));
        EXPECT_THAT(log.lines[0],
                    ::testing::AnyOf(L"_ExtentX: Type mismatch", L"_ExtentX: Overflow",
                                     L"_ExtentX: Invalid property value"));
    }
}

TEST_F(PersistenceTest, AControlThatIsUsedWithoutLoadingIsNew) {
    EXPECT_EQ(ToText(Late(Create<IDispatch>(u"VLabel")).Get(L"Caption")), u"VLabel");
    EXPECT_EQ(ToText(Late(Create<IDispatch>(u"VMemo")).Get(L"Text")), u"VMemo\r\n");
    const ComPtr<IDispatch> label = Create<IDispatch>(u"VLabel");
    EXPECT_EQ(As<IPersistStreamInit>(label)->InitNew(), S_OK);
    EXPECT_EQ(As<IPersistStreamInit>(label)->InitNew(), E_UNEXPECTED);
}

TEST_F(PersistenceTest, ATruncatedStreamIsRefusedAtEveryByte) {
    const Bytes bytes = Saved(Edited());
    for (std::size_t length = 0; length < bytes.size(); ++length) {
        const ComPtr<IDispatch> label = Create<IDispatch>(u"VLabel");
        const Bytes part(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(length));
        ASSERT_TRUE(FAILED(As<IPersistStreamInit>(label)->Load(StreamOf(part).Get()))) << length;
        ASSERT_EQ(ToText(Late(label).Get(L"Caption")), u"VLabel");
    }
}

TEST_F(PersistenceTest, ACorruptStreamIsRefused) {
    const Bytes bytes = Saved(Edited());
    std::mt19937 random(20260001);
    const ComPtr<IDispatch> label = Create<IDispatch>(u"VLabel");
    for (int round = 0; round < 2000; ++round) {
        Bytes corrupt = bytes;
        const std::size_t changes = 1 + random() % 4;
        for (std::size_t change = 0; change < changes; ++change) {
            corrupt[random() % corrupt.size()] ^= static_cast<std::uint8_t>(1 + random() % 255);
        }
        if (corrupt != bytes) {
            ASSERT_TRUE(FAILED(As<IPersistStreamInit>(label)->Load(StreamOf(corrupt).Get())));
        }
    }
    EXPECT_EQ(ToText(Late(label).Get(L"Caption")), u"VLabel");
}

TEST_F(PersistenceTest, RecordsThatLieAreRefusedThoughTheCheckSumIsRight) {
    const Bytes bytes = stored::Encode({{u"Caption", Text(u"x")}});
    EXPECT_EQ(testing::Sealed(bytes), bytes);
    for (std::size_t index = 0; index < bytes.size(); ++index) {
        for (const int value : {0, 1, 2, 8, 127, 128, 255}) {
            Bytes altered = bytes;
            altered[index] = static_cast<std::uint8_t>(value);
            const ComPtr<IDispatch> label = Create<IDispatch>(u"VLabel");
            As<IPersistStreamInit>(label)->Load(StreamOf(testing::Sealed(altered)).Get());
            Late(label).Get(L"Caption");  // any result, but the control stays usable
        }
    }
}

TEST_F(PersistenceTest, RefusesNullPointers) {
    const ComPtr<IDispatch> label = Create<IDispatch>(u"VLabel");
    EXPECT_EQ(As<IPersistStreamInit>(label)->Load(nullptr), E_POINTER);
    EXPECT_EQ(As<IPersistStreamInit>(label)->Save(nullptr, TRUE), E_POINTER);
    EXPECT_EQ(As<IPersistStreamInit>(label)->GetSizeMax(nullptr), E_POINTER);
    EXPECT_EQ(As<IPersistStreamInit>(label)->GetClassID(nullptr), E_POINTER);
    EXPECT_EQ(As<IPersistStorage>(label)->Load(nullptr), E_POINTER);
    EXPECT_EQ(As<IPersistStorage>(label)->Save(nullptr, TRUE), E_POINTER);
    EXPECT_EQ(As<IPersistStorage>(label)->InitNew(nullptr), E_POINTER);
    EXPECT_EQ(As<IPersistPropertyBag>(label)->Load(nullptr, nullptr), E_POINTER);
    EXPECT_EQ(As<IPersistPropertyBag>(label)->Save(nullptr, TRUE, TRUE), E_POINTER);
}

}  // namespace
}  // namespace lumenkit::ole
