// Controls as objects in documents: saved, loaded and drawn into pictures and metafiles by the
// platform's functions, and embedded in rich text.
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <richedit.h>
#include <richole.h>

#include "tests/ole/clients/documents/picture.h"
#include "tests/ole/clients/support/com.h"

namespace lumenkit::clients {

namespace {

constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF blue = RGB(0, 0, 255);

ComPtr<IStorage> NewStorage() {
    ComPtr<ILockBytes> bytes;
    ComPtr<IStorage> storage;
    EXPECT_EQ(CreateILockBytesOnHGlobal(nullptr, TRUE, &bytes), S_OK);
    EXPECT_EQ(StgCreateDocfileOnILockBytes(
                  bytes.Get(), STGM_CREATE | STGM_READWRITE | STGM_SHARE_EXCLUSIVE, 0, &storage),
              S_OK);
    return storage;
}

// A label with blue letters on red.
ComPtr<IDispatch> ColourfulLabel() {
    ComPtr<IDispatch> label = Create(L"lumenkit.VLabel");
    EXPECT_EQ(Put(*label.Get(), L"BackColor", Variant(long(red))), S_OK);
    EXPECT_EQ(Put(*label.Get(), L"ForeColor", Variant(long(blue))), S_OK);
    EXPECT_EQ(Put(*label.Get(), L"Caption", Variant(L"|SIZE:18||B|MMMM|CR|MMMM")), S_OK);
    return label;
}

void CheckColours(const Picture& picture) {
    EXPECT_GT(picture.Count(red), picture.Size() / 4);
    EXPECT_GT(picture.Count(blue), 50);
    EXPECT_EQ(picture.Untouched(), 0);
}

// What a metafile consists of.
struct Records {
    std::vector<std::wstring> texts;
    int bitmaps = 0;
};

int CALLBACK Collect(HDC /*device*/, HANDLETABLE* /*handles*/, const ENHMETARECORD* record,
                     int /*handleCount*/, LPARAM target) {
    auto& records = *reinterpret_cast<Records*>(target);
    if (record->iType == EMR_EXTTEXTOUTW) {
        const EMRTEXT& text = reinterpret_cast<const EMREXTTEXTOUTW*>(record)->emrtext;
        const auto* const bytes = reinterpret_cast<const char*>(record);
        if (text.nChars > 0) {  // an empty one fills a box
            records.texts.emplace_back(reinterpret_cast<const wchar_t*>(bytes + text.offString),
                                       text.nChars);
        }
    }
    records.bitmaps += (record->iType >= EMR_BITBLT && record->iType <= EMR_STRETCHDIBITS) ||
                               record->iType == EMR_ALPHABLEND
                           ? 1
                           : 0;
    return 1;
}

Records RecordsOf(HENHMETAFILE file) {
    Records records;
    EnumEnhMetaFile(nullptr, file, &Collect, &records, nullptr);
    return records;
}

struct Constituted {
    ComPtr<IDispatch> object;
    std::vector<std::wstring> texts;
};

// Controls that consist of constituents.
std::vector<Constituted> ConstitutedControls() {
    std::vector<Constituted> all = {
        {Create(L"lumenkit.VMemo"), {L"first line", L"second"}},
        {Create(L"lumenkit.VOptList"), {L"One", L"Two", L"Three", L"Caption"}}};
    EXPECT_EQ(Put(*all[0].object.Get(), L"Text", Variant(L"first line\r\nsecond")), S_OK);
    EXPECT_EQ(Put(*all[1].object.Get(), L"Contents", Variant(L"1;One|2;Two|3;Three")), S_OK);
    EXPECT_EQ(Put(*all[1].object.Get(), L"ListIndex", Variant(1L)), S_OK);
    return all;
}

class Documents : public OleTest {};

TEST_F(Documents, AStorageKeepsEachControl) {
    struct Case {
        const wchar_t* name;
        const wchar_t* property;
        const wchar_t* value;
    };
    for (const Case& each : {Case{L"lumenkit.VLabel", L"BulletPrefix", L"\x2022 "},
                             Case{L"lumenkit.VMemo", L"Text", L"two\r\nlines"},
                             Case{L"lumenkit.VOptList", L"Contents", L"1;One|2;Two"}}) {
        const ComPtr<IDispatch> object = Create(each.name);
        ASSERT_EQ(Put(*object.Get(), each.property, Variant(each.value)), S_OK);
        ComPtr<IPersistStorage> persisted;
        ASSERT_EQ(object.As(&persisted), S_OK);
        EXPECT_EQ(persisted->IsDirty(), S_OK);
        const ComPtr<IStorage> storage = NewStorage();
        ASSERT_EQ(OleSave(persisted.Get(), storage.Get(), FALSE), S_OK);
        EXPECT_EQ(persisted->SaveCompleted(nullptr), S_OK);
        EXPECT_EQ(persisted->IsDirty(), S_FALSE);
        ComPtr<IDispatch> loaded;
        ASSERT_EQ(OleLoad(storage.Get(), IID_IDispatch, nullptr,
                          reinterpret_cast<void**>(loaded.GetAddressOf())),
                  S_OK);
        EXPECT_EQ(TextOf(*loaded.Get(), each.property), each.value);
    }
}

TEST_F(Documents, AStreamKeepsTheClassAndTheControl) {
    const ComPtr<IDispatch> label = ColourfulLabel();
    Variant font;
    ASSERT_EQ(Read(*label.Get(), L"Font", font), S_OK);
    ASSERT_EQ(Put(*font.pdispVal, L"Name", Variant(L"Courier New")), S_OK);
    ComPtr<IPersistStreamInit> persisted;
    ComPtr<IStream> stream;
    ASSERT_EQ(label.As(&persisted), S_OK);
    ASSERT_EQ(CreateStreamOnHGlobal(nullptr, TRUE, &stream), S_OK);
    // The two interfaces begin with the same methods, and the function uses only these.
    ASSERT_EQ(OleSaveToStream(reinterpret_cast<IPersistStream*>(persisted.Get()), stream.Get()),
              S_OK);
    stream->Seek({}, STREAM_SEEK_SET, nullptr);
    CLSID type = {};
    ASSERT_EQ(ReadClassStm(stream.Get(), &type), S_OK);
    ComPtr<IPersistStreamInit> loaded;
    ASSERT_EQ(CoCreateInstance(type, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&loaded)), S_OK);
    ASSERT_EQ(loaded->Load(stream.Get()), S_OK);
    ComPtr<IDispatch> dispatch;
    ASSERT_EQ(loaded.As(&dispatch), S_OK);
    EXPECT_EQ(TextOf(*dispatch.Get(), L"Caption"), L"|SIZE:18||B|MMMM|CR|MMMM");
    EXPECT_EQ(TextOf(*dispatch.Get(), L"ForeColor"), std::to_wstring(long(blue)));
    Variant loadedFont;
    ASSERT_EQ(Read(*dispatch.Get(), L"Font", loadedFont), S_OK);
    EXPECT_EQ(TextOf(*loadedFont.pdispVal, L"Name"), L"Courier New");
}

TEST_F(Documents, ALabelIsDrawn) {
    const Picture picture(200, 100);
    const RECT whole = picture.Whole();
    ASSERT_EQ(OleDraw(ColourfulLabel().Get(), DVASPECT_CONTENT, picture.Device(), &whole), S_OK);
    CheckColours(picture);
}

TEST_F(Documents, ALabelIsDrawnWhereItIsToBe) {
    const Picture picture(200, 100);
    const RECT middle = {50, 25, 150, 75};
    ASSERT_EQ(OleDraw(ColourfulLabel().Get(), DVASPECT_CONTENT, picture.Device(), &middle), S_OK);
    EXPECT_EQ(picture.Untouched(), picture.Size() - 100 * 50);
    EXPECT_GT(picture.Count(red), 0);
    EXPECT_GT(picture.Count(blue), 0);
}

TEST_F(Documents, WindowedControlsAreDrawnWithoutAWindow) {
    const ComPtr<IDispatch> memo = Create(L"lumenkit.VMemo");
    ASSERT_EQ(Put(*memo.Get(), L"ForeColor", Variant(long(blue))), S_OK);
    ASSERT_EQ(Put(*memo.Get(), L"Text", Variant(L"MMMMMM\r\nMMMMMM")), S_OK);
    const Picture picture(200, 100);
    const RECT whole = picture.Whole();
    ASSERT_EQ(OleDraw(memo.Get(), DVASPECT_CONTENT, picture.Device(), &whole), S_OK);
    EXPECT_GT(picture.Count(blue), 50);
    EXPECT_GT(picture.Count(GetSysColor(COLOR_WINDOW)), picture.Size() / 2);
    EXPECT_EQ(picture.Untouched(), 0);

    const ComPtr<IDispatch> list = Create(L"lumenkit.VOptList");
    ASSERT_EQ(Put(*list.Get(), L"Contents", Variant(L"1;One|2;Two|3;Three")), S_OK);
    const Picture options(200, 100);
    ASSERT_EQ(OleDraw(list.Get(), DVASPECT_CONTENT, options.Device(), &whole), S_OK);
    EXPECT_GT(options.Count(GetSysColor(COLOR_BTNFACE)), options.Size() / 2);
    EXPECT_GT(options.Count(GetSysColor(COLOR_BTNTEXT)), 30);
    EXPECT_EQ(options.Untouched(), 0);
}

TEST_F(Documents, AMetafileShowsTheSame) {
    const RECT frame = {0, 0, 5000, 2500};
    const HDC recorder = CreateEnhMetaFileW(nullptr, nullptr, &frame, nullptr);
    const RECT place = {0, 0, 200, 100};
    ASSERT_EQ(OleDraw(ColourfulLabel().Get(), DVASPECT_CONTENT, recorder, &place), S_OK);
    const HENHMETAFILE metafile = CloseEnhMetaFile(recorder);
    const Picture picture(200, 100);
    const RECT whole = picture.Whole();
    EXPECT_TRUE(PlayEnhMetaFile(picture.Device(), metafile, &whole));
    CheckColours(picture);
    DeleteEnhMetaFile(metafile);
}

TEST_F(Documents, ItsDataAreItsPicture) {
    const ComPtr<IDispatch> label = ColourfulLabel();
    ComPtr<IDataObject> data;
    ASSERT_EQ(label.As(&data), S_OK);
    FORMATETC format = {CF_METAFILEPICT, nullptr, DVASPECT_CONTENT, -1, TYMED_MFPICT};
    STGMEDIUM medium = {};
    ASSERT_EQ(data->GetData(&format, &medium), S_OK);
    const auto* kept = static_cast<const METAFILEPICT*>(GlobalLock(medium.hMetaFilePict));
    const Picture picture(200, 100);
    SetMapMode(picture.Device(), MM_ANISOTROPIC);
    SetViewportExtEx(picture.Device(), 200, 100, nullptr);
    EXPECT_TRUE(PlayMetaFile(picture.Device(), kept->hMF));
    GlobalUnlock(medium.hMetaFilePict);
    ReleaseStgMedium(&medium);
    EXPECT_GT(picture.Count(red), picture.Size() / 4);
    EXPECT_GT(picture.Count(blue), 50);

    format = {CF_DIB, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
    EXPECT_EQ(data->QueryGetData(&format), S_OK);
    format.cfFormat = CF_TEXT;
    EXPECT_NE(data->QueryGetData(&format), S_OK);
}

TEST_F(Documents, AMetafileContainsTheTextsOfConstituents) {
    for (const Constituted& control : ConstitutedControls()) {
        const RECT frame = {0, 0, 5000, 2500};
        const HDC recorder = CreateEnhMetaFileW(nullptr, nullptr, &frame, nullptr);
        const RECT place = {0, 0, 500, 250};
        ASSERT_EQ(OleDraw(control.object.Get(), DVASPECT_CONTENT, recorder, &place), S_OK);
        const HENHMETAFILE metafile = CloseEnhMetaFile(recorder);
        const Records records = RecordsOf(metafile);
        DeleteEnhMetaFile(metafile);
        EXPECT_THAT(records.texts, ::testing::UnorderedElementsAreArray(control.texts));
        EXPECT_EQ(records.bitmaps, 0);
    }
}

TEST_F(Documents, TheDataOfConstituentsAreTextToo) {
    for (const Constituted& control : ConstitutedControls()) {
        ComPtr<IDataObject> data;
        ASSERT_EQ(control.object.As(&data), S_OK);
        FORMATETC format = {CF_ENHMETAFILE, nullptr, DVASPECT_CONTENT, -1, TYMED_ENHMF};
        STGMEDIUM medium = {};
        ASSERT_EQ(data->GetData(&format, &medium), S_OK);
        const Records records = RecordsOf(medium.hEnhMetaFile);
        EXPECT_THAT(records.texts, ::testing::UnorderedElementsAreArray(control.texts));
        EXPECT_EQ(records.bitmaps, 0);
        ReleaseStgMedium(&medium);

        format = {CF_METAFILEPICT, nullptr, DVASPECT_CONTENT, -1, TYMED_MFPICT};
        ASSERT_EQ(data->GetData(&format, &medium), S_OK);
        const auto* kept = static_cast<const METAFILEPICT*>(GlobalLock(medium.hMetaFilePict));
        const Picture picture(400, 200);
        SetMapMode(picture.Device(), MM_ANISOTROPIC);
        SetViewportExtEx(picture.Device(), 400, 200, nullptr);
        EXPECT_TRUE(PlayMetaFile(picture.Device(), kept->hMF));
        GlobalUnlock(medium.hMetaFilePict);
        ReleaseStgMedium(&medium);
        EXPECT_EQ(picture.Untouched(), 0);
        EXPECT_GT(picture.Count(GetSysColor(COLOR_WINDOWTEXT)), 100);
    }
}

TEST_F(Documents, APictureOfItStaysWhereTheControlDoesNot) {
    const ComPtr<IDispatch> label = ColourfulLabel();
    ComPtr<IDataObject> data;
    ASSERT_EQ(label.As(&data), S_OK);
    const ComPtr<IStorage> storage = NewStorage();
    FORMATETC format = {CF_METAFILEPICT, nullptr, DVASPECT_CONTENT, -1, TYMED_MFPICT};
    ComPtr<IUnknown> picture;
    ASSERT_EQ(
        OleCreateStaticFromData(data.Get(), IID_IUnknown, OLERENDER_FORMAT, &format, nullptr,
                                storage.Get(), reinterpret_cast<void**>(picture.GetAddressOf())),
        S_OK);
    const Picture drawn(200, 100);
    const RECT whole = drawn.Whole();
    ASSERT_EQ(OleDraw(picture.Get(), DVASPECT_CONTENT, drawn.Device(), &whole), S_OK);
    EXPECT_GT(drawn.Count(red), drawn.Size() / 4);
    EXPECT_GT(drawn.Count(blue), 50);
}

TEST_F(Documents, RichTextShowsItAsAnObject) {
    ASSERT_NE(LoadLibraryW(L"riched20.dll"), nullptr);
    const HWND window =
        CreateWindowExW(0, L"RichEdit20W", L"", WS_POPUP | WS_VISIBLE | ES_MULTILINE, 0, 0, 400,
                        300, nullptr, nullptr, nullptr, nullptr);
    ASSERT_NE(window, nullptr);
    {
        ComPtr<IRichEditOle> text;
        ASSERT_TRUE(SendMessageW(window, EM_GETOLEINTERFACE, 0,
                                 reinterpret_cast<LPARAM>(text.GetAddressOf())));
        const ComPtr<IDispatch> label = ColourfulLabel();
        ComPtr<IOleObject> object;
        ComPtr<IOleClientSite> site;
        ASSERT_EQ(label.As(&object), S_OK);
        ASSERT_EQ(text->GetClientSite(&site), S_OK);
        ASSERT_EQ(object->SetClientSite(site.Get()), S_OK);
        const ComPtr<IStorage> storage = NewStorage();
        REOBJECT inserted = {};
        inserted.cbStruct = sizeof inserted;
        inserted.cp = static_cast<LONG>(REO_CP_SELECTION);
        inserted.poleobj = object.Get();
        inserted.pstg = storage.Get();
        inserted.polesite = site.Get();
        inserted.dvaspect = DVASPECT_CONTENT;
        inserted.dwFlags = REO_RESIZABLE;
        ASSERT_EQ(text->InsertObject(&inserted), S_OK);
        EXPECT_EQ(text->GetObjectCount(), 1);
        UpdateWindow(window);
        const Picture page(400, 300);
        const HDC screen = GetDC(window);
        BitBlt(page.Device(), 0, 0, 400, 300, screen, 0, 0, SRCCOPY);
        ReleaseDC(window, screen);
        EXPECT_GT(page.Count(red), 1000);
        EXPECT_GT(page.Count(blue), 50);
        EXPECT_EQ(object->SetClientSite(nullptr), S_OK);
    }
    DestroyWindow(window);
}

}  // namespace

}  // namespace lumenkit::clients
