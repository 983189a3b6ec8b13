// Uses the controls as a form designer does. It is not in user mode; it browses, changes and
// observes properties, saves to a storage and to a stream, and loads again.
#include <gmock/gmock.h>

#include "tests/ole/clients/containers/site.h"
#include "tests/ole/clients/support/boxes.h"

namespace lumenkit::clients {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr DISPID userProperty = 1745027072;

class Designer : public OleTest {
 protected:
    ComPtr<IDispatch> New(const wchar_t* name) {
        ComPtr<IDispatch> control = Create(name);
        ComPtr<IOleObject> object;
        EXPECT_EQ(control.As(&object), S_OK);
        EXPECT_EQ(object->SetClientSite(site_.Client()), S_OK);
        ComPtr<IPersistStreamInit> persisted;
        EXPECT_EQ(control.As(&persisted), S_OK);
        EXPECT_EQ(persisted->InitNew(), S_OK);
        return control;
    }
    static void Leave(const ComPtr<IDispatch>& control) {
        ComPtr<IOleObject> object;
        ASSERT_EQ(control.As(&object), S_OK);
        EXPECT_EQ(object->SetClientSite(nullptr), S_OK);
    }

    Site site_{false};
    BoxCloser boxes_;
};

TEST_F(Designer, SetsWhatBelongsToItAndIsRefusedTheSelection) {
    const ComPtr<IDispatch> list = New(L"lumenkit.VOptList");
    {
        const Notices notices(*list.Get(), site_);
        EXPECT_EQ(Put(*list.Get(), L"ItemFontName", Variant(L"Arial")), S_OK);
        EXPECT_EQ(Put(*list.Get(), L"LeftMargin", Variant(120L)), S_OK);
        EXPECT_EQ(Put(*list.Get(), L"Spacing", Variant(300L)), S_OK);
        EXPECT_THAT(site_.changed,
                    ElementsAre(userProperty + 7, userProperty + 4, userProperty + 2));
    }
    EXPECT_EQ(TextOf(*list.Get(), L"ItemFontName"), L"Arial");
    EXPECT_EQ(TextOf(*list.Get(), L"LeftMargin"), L"120");
    EXPECT_EQ(TextOf(*list.Get(), L"Spacing"), L"300");
    EXPECT_THAT(boxes_.Errors(), IsEmpty());
    EXPECT_EQ(Put(*list.Get(), L"Text", Variant(L"x")), S_OK);
    EXPECT_THAT(boxes_.Errors(), ElementsAre(L"VOPTLIST pLetText 387"));
    Leave(list);
}

TEST_F(Designer, BrowsesProperties) {
    const ComPtr<IDispatch> memo = New(L"lumenkit.VMemo");
    ComPtr<IPerPropertyBrowsing> browsing;
    ASSERT_EQ(memo.As(&browsing), S_OK);
    const DISPID scrollBars = userProperty + 3;
    CALPOLESTR texts = {};
    CADWORD cookies = {};
    ASSERT_EQ(browsing->GetPredefinedStrings(scrollBars, &texts, &cookies), S_OK);
    ASSERT_EQ(texts.cElems, 4U);
    ASSERT_EQ(cookies.cElems, 4U);
    for (ULONG index = 0; index < texts.cElems; ++index) {
        Variant value;
        EXPECT_EQ(browsing->GetPredefinedValue(scrollBars, cookies.pElems[index], &value), S_OK);
        EXPECT_EQ(value.lVal, static_cast<LONG>(index));
        EXPECT_EQ(Put(*memo.Get(), L"ScrollBars", value), S_OK);
        Text shown;
        EXPECT_EQ(browsing->GetDisplayString(scrollBars, shown.Out()), S_OK);
        EXPECT_EQ(shown.Read(), texts.pElems[index]);
        CoTaskMemFree(texts.pElems[index]);
    }
    CoTaskMemFree(texts.pElems);
    CoTaskMemFree(cookies.pElems);
    Text shown;
    EXPECT_NE(browsing->GetDisplayString(0, shown.Out()), S_OK);
    CLSID page = {};
    EXPECT_EQ(browsing->MapPropertyToPage(scrollBars, &page), PERPROP_E_NOPAGEAVAILABLE);
    Leave(memo);

    const ComPtr<IDispatch> label = New(L"lumenkit.VLabel");
    ASSERT_EQ(label.As(&browsing), S_OK);
    CLSID caption = {};
    ASSERT_EQ(CLSIDFromProgID(L"lumenkit.VLabelCaption", &caption), S_OK);
    EXPECT_EQ(browsing->MapPropertyToPage(0, &page), S_OK);
    EXPECT_EQ(page, caption);
    ComPtr<ISpecifyPropertyPages> pages;
    CAUUID list = {};
    ASSERT_EQ(label.As(&pages), S_OK);
    ASSERT_EQ(pages->GetPages(&list), S_OK);
    ASSERT_EQ(list.cElems, 1U);
    EXPECT_EQ(list.pElems[0], caption);
    CoTaskMemFree(list.pElems);
    Leave(label);
}

TEST_F(Designer, TakesTheContainersBackground) {
    const ComPtr<IDispatch> label = New(L"lumenkit.VLabel");
    EXPECT_EQ(Put(*label.Get(), L"BackStyle", Variant(1L)), S_OK);
    // The label keeps its own colour.
    EXPECT_EQ(TextOf(*label.Get(), L"BackColor"), std::to_wstring(long(0x80000005)));
    Leave(label);
}

TEST_F(Designer, SavesAndLoadsAForm) {
    ComPtr<IStorage> form;
    ComPtr<ILockBytes> bytes;
    ASSERT_EQ(CreateILockBytesOnHGlobal(nullptr, TRUE, &bytes), S_OK);
    ASSERT_EQ(StgCreateDocfileOnILockBytes(
                  bytes.Get(), STGM_CREATE | STGM_READWRITE | STGM_SHARE_EXCLUSIVE, 0, &form),
              S_OK);
    ComPtr<IStream> copied;
    ASSERT_EQ(CreateStreamOnHGlobal(nullptr, TRUE, &copied), S_OK);
    {
        const ComPtr<IDispatch> list = New(L"lumenkit.VOptList");
        EXPECT_EQ(Put(*list.Get(), L"Contents", Variant(L"1;One|2;Two")), S_OK);
        EXPECT_EQ(Put(*list.Get(), L"ListIndex", Variant(1L)), S_OK);
        EXPECT_EQ(Put(*list.Get(), L"TopMargin", Variant(60L)), S_OK);
        EXPECT_EQ(Put(*list.Get(), L"Caption", Variant(L"Pick one")), S_OK);
        ComPtr<IPersistStorage> storage;
        ComPtr<IPersistStreamInit> stream;
        ASSERT_EQ(list.As(&storage), S_OK);
        ASSERT_EQ(list.As(&stream), S_OK);
        EXPECT_EQ(storage->IsDirty(), S_OK);
        EXPECT_EQ(storage->Save(form.Get(), FALSE), S_OK);
        EXPECT_EQ(storage->SaveCompleted(nullptr), S_OK);
        EXPECT_EQ(storage->IsDirty(), S_FALSE);
        EXPECT_EQ(stream->Save(copied.Get(), FALSE), S_OK);
        Leave(list);
    }
    copied->Seek({}, STREAM_SEEK_SET, nullptr);
    for (const bool fromStorage : {true, false}) {
        const ComPtr<IDispatch> list = Create(L"lumenkit.VOptList");
        ComPtr<IOleObject> object;
        ASSERT_EQ(list.As(&object), S_OK);
        EXPECT_EQ(object->SetClientSite(site_.Client()), S_OK);
        ComPtr<IPersistStorage> storage;
        ComPtr<IPersistStreamInit> stream;
        ASSERT_EQ(list.As(&storage), S_OK);
        ASSERT_EQ(list.As(&stream), S_OK);
        EXPECT_EQ(fromStorage ? storage->Load(form.Get()) : stream->Load(copied.Get()), S_OK);
        EXPECT_EQ(TextOf(*list.Get(), L"Contents"), L"1;One|2;Two");
        EXPECT_EQ(TextOf(*list.Get(), L"Value"), L"2");
        EXPECT_EQ(TextOf(*list.Get(), L"TopMargin"), L"60");
        EXPECT_EQ(TextOf(*list.Get(), L"Caption"), L"Pick one");
        EXPECT_EQ(TextOf(*list.Get(), L"Spacing"), L"240");
        EXPECT_EQ(storage->IsDirty(), S_FALSE);
        Leave(list);
    }
}

}  // namespace

}  // namespace lumenkit::clients
