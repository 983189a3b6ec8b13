#include <cstring>

#include "tests/ole/container/sinks.h"
#include "tests/unit/ole/ole_test.h"

namespace lumenkit::ole {
namespace {

class ViewTest : public OleTest {
 protected:
    ComPtr<IUnknown> label_ = Create(u"VLabel");
    container::CallLog log_;

    template <typename Interface>
    ComPtr<Interface> As() const {
        ComPtr<Interface> found;
        label_.As(&found);
        return found;
    }
    void TearDown() override {
        label_.Reset();
        OleTest::TearDown();
    }
};

// A 32-bit bitmap to draw on. It is filled with a colour that no control shows.
class Canvas {
 public:
    static constexpr int width = 120;
    static constexpr int height = 60;
    static constexpr std::uint32_t untouched = 0x00FE01FD;

    Canvas() {
        BITMAPINFO information = {};
        information.bmiHeader.biSize = sizeof information.bmiHeader;
        information.bmiHeader.biWidth = width;
        information.bmiHeader.biHeight = -height;
        information.bmiHeader.biPlanes = 1;
        information.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        device_ = CreateCompatibleDC(nullptr);
        bitmap_ = CreateDIBSection(device_, &information, DIB_RGB_COLORS, &bits, nullptr, 0);
        former_ = SelectObject(device_, bitmap_);
        pixels_ = static_cast<std::uint32_t*>(bits);
        std::fill_n(pixels_, width * height, untouched);
    }
    ~Canvas() {
        SelectObject(device_, former_);
        DeleteObject(bitmap_);
        DeleteDC(device_);
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    HDC Device() const { return device_; }
    std::uint32_t At(int x, int y) const {
        GdiFlush();
        return pixels_[y * width + x] & 0xFFFFFF;
    }
    bool Has(std::uint32_t color) const {
        GdiFlush();
        return std::any_of(pixels_, pixels_ + width * height,
                           [&](std::uint32_t pixel) { return (pixel & 0xFFFFFF) == color; });
    }

 private:
    HDC device_;
    HBITMAP bitmap_;
    HGDIOBJ former_;
    std::uint32_t* pixels_;
};

TEST_F(ViewTest, DrawsWithoutAContainer) {
    const Late label(As<IDispatch>());
    EXPECT_EQ(label.Put(L"BackColor", std::int32_t{0x00FF00}), S_OK);
    EXPECT_EQ(label.Put(L"ForeColor", std::int32_t{0x0000FF}), S_OK);
    EXPECT_EQ(label.Put(L"Caption", Text(u"MMMMMM")), S_OK);
    const Canvas canvas;
    const RECTL place = {10, 10, 110, 50};
    EXPECT_EQ(As<IViewObject>()->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr,
                                      canvas.Device(), &place, nullptr, nullptr, 0),
              S_OK);
    EXPECT_EQ(canvas.At(108, 48), 0x00FF00U);
    EXPECT_EQ(canvas.At(5, 5), Canvas::untouched);
    EXPECT_EQ(canvas.At(112, 52), Canvas::untouched);
    EXPECT_TRUE(canvas.Has(0xFF0000));
}

TEST_F(ViewTest, ALabelThatCannotBeDrawnReportsItOnceForEachReason) {
    const Late label(As<IDispatch>());
    const Canvas canvas;
    const auto draw = [&] {
        const RECTL place = {0, 0, Canvas::width, Canvas::height};
        EXPECT_EQ(As<IViewObject>()->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr,
                                          canvas.Device(), &place, nullptr, nullptr, 0),
                  S_OK);
        return MessageBoxes::Take();
    };
    EXPECT_EQ(label.Put(L"Caption", Text(u"|size:5000|x")), S_OK);
    EXPECT_EQ(draw(), 1);
    EXPECT_EQ(draw(), 0);
    EXPECT_EQ(label.Put(L"WordWrap", true), S_OK);
    EXPECT_EQ(draw(), 1);
    EXPECT_EQ(draw(), 0);
}

// A font object that a program shares between the label and other controls.
class ViewedFont : public ViewTest {
 protected:
    ViewedFont() {
        const Late label(As<IDispatch>());
        Variant font;
        EXPECT_EQ(label.Invoke(L"Font", DISPATCH_PROPERTYGET, {}, font.Get()), S_OK);
        font_ = V_DISPATCH(font.Get());
        EXPECT_EQ(label.Put(L"Caption", Text(u"|b:1|x|b:0|y|i:1|z|size:20|large")), S_OK);
    }
    Late Font() { return Late(font_); }
    void Draw() {
        const Canvas canvas;
        const RECTL place = {0, 0, Canvas::width, Canvas::height};
        EXPECT_EQ(Late(As<IDispatch>()).Invoke(L"Refresh", DISPATCH_METHOD, {}), S_OK);
        EXPECT_EQ(As<IViewObject>()->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr,
                                          canvas.Device(), &place, nullptr, nullptr, 0),
                  S_OK);
        EXPECT_TRUE(canvas.Has(0)) << "the text";
    }
    void TearDown() override {
        font_.Reset();
        ViewTest::TearDown();
    }

    ComPtr<IDispatch> font_;
};

TEST_F(ViewedFont, KeepsItsWeight) {
    for (const std::int16_t weight : {std::int16_t{300}, std::int16_t{900}}) {
        EXPECT_EQ(Font().Put(L"Weight", weight), S_OK);
        Draw();
        EXPECT_EQ(Font().Get(L"Weight"), Value(weight));
    }
}

TEST_F(ViewedFont, NotifiesNoHolderOfADrawing) {
    container::PropertySink sink(log_);
    ComPtr<IConnectionPointContainer> points;
    ComPtr<IConnectionPoint> point;
    ASSERT_EQ(Font().Get().As(&points), S_OK);
    ASSERT_EQ(points->FindConnectionPoint(IID_IPropertyNotifySink, &point), S_OK);
    DWORD cookie = 0;
    ASSERT_EQ(point->Advise(&sink, &cookie), S_OK);
    Draw();
    Draw();
    EXPECT_EQ(log_.Take(), Lines{});
    EXPECT_EQ(Font().Put(L"Bold", true), S_OK);
    EXPECT_NE(log_.Take(), Lines{});
    EXPECT_EQ(point->Unadvise(cookie), S_OK);
}

TEST_F(ViewedFont, TellsContainersOfAChangedAttribute) {
    container::AdviseSink sink(log_);
    EXPECT_EQ(As<IViewObject>()->SetAdvise(DVASPECT_CONTENT, 0, &sink), S_OK);
    Draw();
    log_.Take();
    EXPECT_EQ(Font().Put(L"Size", 24.0F), S_OK);
    EXPECT_THAT(log_.Take(), ::testing::Contains("OnViewChange 1 -1"));
    EXPECT_EQ(As<IViewObject>()->SetAdvise(0, 0, nullptr), S_OK);
}

TEST_F(ViewTest, RefusesOtherAspectsAndBadPlaces) {
    const ComPtr<IViewObjectEx> view = As<IViewObjectEx>();
    const Canvas canvas;
    const RECTL place = {0, 0, 50, 50};
    const auto draw = [&](DWORD aspect, LONG index, HDC device, LPCRECTL where) {
        return view->Draw(aspect, index, nullptr, nullptr, nullptr, device, where, nullptr, nullptr,
                          0);
    };
    EXPECT_EQ(draw(DVASPECT_ICON, -1, canvas.Device(), &place), DV_E_DVASPECT);
    EXPECT_EQ(draw(DVASPECT_CONTENT, 3, canvas.Device(), &place), DV_E_LINDEX);
    EXPECT_EQ(draw(DVASPECT_CONTENT, -1, nullptr, &place), E_INVALIDARG);
    EXPECT_EQ(draw(DVASPECT_CONTENT, -1, canvas.Device(), nullptr), E_POINTER);
    SIZEL size = {};
    EXPECT_EQ(view->GetExtent(DVASPECT_CONTENT, -1, nullptr, nullptr), E_POINTER);
    EXPECT_EQ(view->GetExtent(DVASPECT_THUMBNAIL, -1, nullptr, &size), DV_E_DVASPECT);
    EXPECT_EQ(view->GetColorSet(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, nullptr),
              E_POINTER);
    EXPECT_EQ(view->GetRect(DVASPECT_CONTENT, nullptr), E_POINTER);
    EXPECT_EQ(view->GetViewStatus(nullptr), E_POINTER);
    EXPECT_EQ(view->QueryHitPoint(DVASPECT_CONTENT, nullptr, {}, 0, nullptr), E_POINTER);
    EXPECT_EQ(view->GetAdvise(nullptr, nullptr, nullptr), S_OK);
}

TEST_F(ViewTest, SaysWhereItIsHit) {
    const ComPtr<IViewObjectEx> view = As<IViewObjectEx>();
    const RECT bounds = {10, 10, 20, 20};
    DWORD hit = 99;
    EXPECT_EQ(view->QueryHitPoint(DVASPECT_CONTENT, &bounds, {10, 19}, 3, &hit), S_OK);
    EXPECT_EQ(hit, static_cast<DWORD>(HITRESULT_HIT));
    EXPECT_EQ(view->QueryHitPoint(DVASPECT_CONTENT, &bounds, {8, 12}, 3, &hit), S_OK);
    EXPECT_EQ(hit, static_cast<DWORD>(HITRESULT_CLOSE));
    EXPECT_EQ(view->QueryHitPoint(DVASPECT_CONTENT, &bounds, {5, 12}, 3, &hit), S_OK);
    EXPECT_EQ(hit, static_cast<DWORD>(HITRESULT_OUTSIDE));
    const RECT area = {0, 0, 12, 12};
    EXPECT_EQ(view->QueryHitRect(DVASPECT_CONTENT, &bounds, &area, 0, &hit), S_OK);
    EXPECT_EQ(hit, static_cast<DWORD>(HITRESULT_HIT));
}

TEST_F(ViewTest, TellsOfChangesOfItsPicture) {
    container::AdviseSink sink(log_);
    const ComPtr<IViewObject> view = As<IViewObject>();
    EXPECT_EQ(view->SetAdvise(DVASPECT_CONTENT, 0, &sink), S_OK);
    EXPECT_EQ(Late(As<IDispatch>()).Put(L"Caption", Text(u"new")), S_OK);
    EXPECT_THAT(log_.Take(), ::testing::Contains("OnViewChange 1 -1"));
    EXPECT_EQ(view->SetAdvise(0, 0, nullptr), S_OK);
    EXPECT_EQ(sink.References(), 0U);
    EXPECT_EQ(Late(As<IDispatch>()).Put(L"Caption", Text(u"newer")), S_OK);
    EXPECT_EQ(log_.Take(), Lines{});
}

TEST_F(ViewTest, RendersForTheClipboard) {
    const ComPtr<IDataObject> data = As<IDataObject>();
    ComPtr<IEnumFORMATETC> formats;
    ASSERT_EQ(data->EnumFormatEtc(DATADIR_GET, &formats), S_OK);
    FORMATETC format = {};
    int count = 0;
    while (formats->Next(1, &format, nullptr) == S_OK) {
        EXPECT_EQ(data->QueryGetData(&format), S_OK);
        STGMEDIUM medium = {};
        EXPECT_EQ(data->GetData(&format, &medium), S_OK);
        EXPECT_EQ(medium.tymed, format.tymed);
        EXPECT_NE(medium.hGlobal, nullptr);
        ReleaseStgMedium(&medium);
        ++count;
    }
    EXPECT_EQ(count, 3);
    STGMEDIUM medium = {};
    format.cfFormat = CF_TEXT;
    EXPECT_EQ(data->GetData(&format, &medium), DV_E_FORMATETC);
    format.dwAspect = DVASPECT_ICON;
    EXPECT_EQ(data->QueryGetData(&format), DV_E_DVASPECT);
    EXPECT_EQ(data->QueryGetData(nullptr), E_POINTER);
    EXPECT_EQ(data->GetData(nullptr, nullptr), E_POINTER);
    EXPECT_EQ(data->GetDataHere(nullptr, nullptr), E_POINTER);
    EXPECT_EQ(data->EnumFormatEtc(DATADIR_GET, nullptr), E_POINTER);
    EXPECT_EQ(data->EnumFormatEtc(DATADIR_SET, &formats), E_NOTIMPL);
}

TEST_F(ViewTest, ABitmapHoldsThePicture) {
    EXPECT_EQ(Late(As<IDispatch>()).Put(L"BackColor", std::int32_t{0x112233}), S_OK);
    FORMATETC format = {CF_DIB, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
    STGMEDIUM medium = {};
    ASSERT_EQ(As<IDataObject>()->GetData(&format, &medium), S_OK);
    const auto* bytes = static_cast<const std::uint8_t*>(GlobalLock(medium.hGlobal));
    const auto* header = reinterpret_cast<const BITMAPINFOHEADER*>(bytes);
    EXPECT_EQ(header->biBitCount, 24);
    // The first pixel is the lower left corner, which shows only the background.
    EXPECT_EQ(bytes[header->biSize], 0x11);
    EXPECT_EQ(bytes[header->biSize + 1], 0x22);
    EXPECT_EQ(bytes[header->biSize + 2], 0x33);
    GlobalUnlock(medium.hGlobal);
    ReleaseStgMedium(&medium);
}

TEST_F(ViewTest, APlatformPictureCanBeMadeOfIt) {
    const Canvas canvas;
    const RECT place = {0, 0, Canvas::width, Canvas::height};
    EXPECT_EQ(Late(As<IDispatch>()).Put(L"BackColor", std::int32_t{0x0000FF}), S_OK);
    EXPECT_EQ(OleDraw(label_.Get(), DVASPECT_CONTENT, canvas.Device(), &place), S_OK);
    EXPECT_EQ(canvas.At(Canvas::width - 2, Canvas::height - 2), 0xFF0000U);
}

TEST_F(ViewTest, DescribesItself) {
    DWORD status = 0;
    EXPECT_EQ(As<IOleObject>()->GetMiscStatus(DVASPECT_CONTENT, &status), S_OK);
    EXPECT_EQ(status, 131473U);
    LPOLESTR name = nullptr;
    EXPECT_EQ(As<IOleObject>()->GetUserType(USERCLASSTYPE_FULL, &name), S_OK);
    EXPECT_STREQ(name, L"lumenkit.VLabel");
    CoTaskMemFree(name);
    EXPECT_EQ(As<IOleObject>()->GetUserType(9, &name), E_INVALIDARG);
    GUID guid = {};
    EXPECT_EQ(As<IProvideClassInfo2>()->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &guid), S_OK);
    EXPECT_EQ(guid, GuidOf(lumenkitClasses.Find(u"lumenkit.VLabel")->eventTable->uniqueIdentifier));
    EXPECT_EQ(As<IProvideClassInfo2>()->GetGUID(7, &guid), E_INVALIDARG);
    CAUUID pages = {};
    EXPECT_EQ(As<ISpecifyPropertyPages>()->GetPages(&pages), S_OK);
    ASSERT_EQ(pages.cElems, 1U);
    EXPECT_EQ(pages.pElems[0], ClassIdOf(u"VLabelCaption"));
    CoTaskMemFree(pages.pElems);
    ComPtr<IEnumOLEVERB> verbs;
    EXPECT_EQ(As<IOleObject>()->EnumVerbs(&verbs), S_OK);
    OLEVERB verb = {};
    EXPECT_EQ(verbs->Next(1, &verb, nullptr), S_OK);
    EXPECT_EQ(verb.lVerb, OLEIVERB_PROPERTIES);
    CoTaskMemFree(verb.lpszVerbName);
}

TEST_F(ViewTest, HelpsPropertyBrowsers) {
    const ComPtr<IPerPropertyBrowsing> browsing = As<IPerPropertyBrowsing>();
    CLSID page = {};
    EXPECT_EQ(browsing->MapPropertyToPage(0, &page), S_OK);
    EXPECT_EQ(page, ClassIdOf(u"VLabelCaption"));
    EXPECT_EQ(browsing->MapPropertyToPage(-501, &page), PERPROP_E_NOPAGEAVAILABLE);
    EXPECT_EQ(browsing->MapPropertyToPage(0, nullptr), E_POINTER);
    const ComPtr<IPerPropertyBrowsing> memo = Create<IPerPropertyBrowsing>(u"VMemo");
    constexpr DISPID scrollBars = 1745027072 + 3;
    BSTR text = nullptr;
    EXPECT_EQ(memo->GetDisplayString(scrollBars, &text), S_OK);
    EXPECT_EQ(TextOf(text), u"0 - scrollBarsNone");
    SysFreeString(text);
    EXPECT_EQ(memo->GetDisplayString(0, &text), S_FALSE);
    EXPECT_EQ(memo->GetDisplayString(99, &text), DISP_E_MEMBERNOTFOUND);
    CALPOLESTR texts = {};
    CADWORD cookies = {};
    ASSERT_EQ(memo->GetPredefinedStrings(scrollBars, &texts, &cookies), S_OK);
    ASSERT_EQ(texts.cElems, 4U);
    EXPECT_STREQ(texts.pElems[2], L"2 - scrollBarsVertical");
    Variant value;
    EXPECT_EQ(memo->GetPredefinedValue(scrollBars, cookies.pElems[2], value.Get()), S_OK);
    EXPECT_EQ(value->vt, VT_I4);
    EXPECT_EQ(V_I4(value.Get()), 2);
    for (ULONG index = 0; index < texts.cElems; ++index) {
        CoTaskMemFree(texts.pElems[index]);
    }
    CoTaskMemFree(texts.pElems);
    CoTaskMemFree(cookies.pElems);
    EXPECT_EQ(memo->GetPredefinedValue(scrollBars, 9, value.Get()), E_INVALIDARG);
}

TEST_F(ViewTest, IsSafeAndRunning) {
    DWORD supported = 0;
    DWORD enabled = 0;
    // The compiler's headers do not attach IObjectSafety's identifier to it.
    ComPtr<IObjectSafety> safety;
    EXPECT_EQ(
        label_->QueryInterface(IID_IObjectSafety, reinterpret_cast<void**>(safety.GetAddressOf())),
        S_OK);
    EXPECT_EQ(safety->GetInterfaceSafetyOptions(IID_IDispatch, &supported, &enabled), S_OK);
    EXPECT_EQ(supported, 3U);
    EXPECT_EQ(safety->SetInterfaceSafetyOptions(IID_IDispatch, 3, 3), S_OK);
    EXPECT_EQ(safety->SetInterfaceSafetyOptions(IID_IDispatch, 4, 4), E_FAIL);
    EXPECT_EQ(safety->GetInterfaceSafetyOptions(IID_IStorage, &supported, &enabled), E_NOINTERFACE);
    EXPECT_NE(As<IRunnableObject>()->IsRunning(), FALSE);
    const ComPtr<IObjectWithSite> withSite = As<IObjectWithSite>();
    ComPtr<IUnknown> site;
    EXPECT_EQ(withSite->GetSite(IID_PPV_ARGS(&site)), E_FAIL);
    EXPECT_EQ(withSite->SetSite(label_.Get()), S_OK);
    EXPECT_EQ(withSite->GetSite(IID_PPV_ARGS(&site)), S_OK);
    EXPECT_EQ(site.Get(), label_.Get());
    EXPECT_EQ(withSite->SetSite(nullptr), S_OK);
}

TEST_F(ViewTest, QuickActivationDoesAllAtOnce) {
    container::Form form;
    container::Site site(form);
    container::PropertySink sink(log_);
    ComPtr<IQuickActivate> quick = As<IQuickActivate>();
    QACONTAINER container = {};
    container.cbSize = sizeof container;
    container.pClientSite = site.ClientSite();
    container.pPropertyNotifySink = &sink;
    QACONTROL control = {};
    EXPECT_EQ(quick->QuickActivate(&container, &control), E_INVALIDARG);
    control.cbSize = sizeof control;
    ASSERT_EQ(quick->QuickActivate(&container, &control), S_OK);
    EXPECT_EQ(control.dwMiscStatus, 131473U);
    EXPECT_NE(control.dwPropNotifyCookie, 0U);
    EXPECT_EQ(Late(As<IDispatch>()).Put(L"Caption", Text(u"x")), S_OK);
    EXPECT_EQ(log_.Take(), Lines{"OnChanged 0"});
    EXPECT_EQ(quick->QuickActivate(nullptr, &control), E_POINTER);
    EXPECT_EQ(As<IOleObject>()->SetClientSite(nullptr), S_OK);
    EXPECT_EQ(site.References(), 0U);
    label_.Reset();
    quick.Reset();
    EXPECT_EQ(sink.References(), 0U);
}

}  // namespace
}  // namespace lumenkit::ole
