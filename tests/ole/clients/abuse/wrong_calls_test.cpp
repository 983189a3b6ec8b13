// Wrong calls by clients return an error and break nothing.
#include <array>
#include <climits>
#include <cmath>
#include <vector>

#include <gmock/gmock.h>
#include <ocidl.h>
#include <olectl.h>

#include "tests/ole/clients/support/boxes.h"
#include "tests/ole/clients/support/com.h"

namespace lumenkit::clients {

namespace {

constexpr std::array controls = {L"lumenkit.VLabel", L"lumenkit.VMemo", L"lumenkit.VOptList"};

// VARIANTs of every type: by value, by reference, by a null reference, as an array, and as a
// reference to an array. References refer to bytes that are zero in every type.
class Arguments {
 public:
    explicit Arguments(IDispatch& object) {
        SAFEARRAYBOUND bound = {2, 0};
        array_ = SafeArrayCreate(VT_I2, 1, &bound);
        for (VARTYPE type = 0; type <= 80; ++type) {
            VARIANT value = {};
            value.vt = type;
            if (type == VT_DISPATCH || type == VT_UNKNOWN) {
                all_.push_back(value);  // a null object
                value.pdispVal = &object;
            }
            if (type == VT_VARIANT || type == VT_RECORD || type == VT_VECTOR) {
                value.vt = VT_EMPTY;  // has no form by value
            }
            all_.push_back(value);
            value = {};
            value.vt = static_cast<VARTYPE>(type | VT_BYREF);
            all_.push_back(value);
            value.byref = zeros_.data();
            if (type != VT_RECORD) {
                all_.push_back(value);
            }
            value = {};
            value.vt = static_cast<VARTYPE>(type | VT_ARRAY);
            all_.push_back(value);
            value.parray = array_;
            all_.push_back(value);
            value.vt = static_cast<VARTYPE>(type | VT_ARRAY | VT_BYREF);
            value.pparray = &array_;
            all_.push_back(value);
            value.pparray = nullptr;
            all_.push_back(value);
        }
        VARIANT text = {};
        text.vt = VT_BSTR;
        text.bstrVal = text_.Get();
        all_.push_back(text);
        circle_.vt = VT_VARIANT | VT_BYREF;
        circle_.pvarVal = &circle_;
        all_.push_back(circle_);
        for (const double number : {1e300, -1e300, 0.5, HUGE_VAL, -HUGE_VAL, double(NAN)}) {
            VARIANT wide = {};
            wide.vt = VT_R8;
            wide.dblVal = number;
            all_.push_back(wide);
        }
    }
    ~Arguments() { SafeArrayDestroy(array_); }
    Arguments(const Arguments&) = delete;
    Arguments& operator=(const Arguments&) = delete;

    const std::vector<VARIANT>& All() const { return all_; }

 private:
    alignas(16) std::array<char, 64> zeros_ = {};
    SAFEARRAY* array_ = nullptr;
    Text text_{L"text"};
    VARIANT circle_ = {};
    std::vector<VARIANT> all_;
};

std::vector<DISPID> MembersOf(IDispatch& object) {
    std::vector<DISPID> members;
    ComPtr<ITypeInfo> information;
    TYPEATTR* attributes = nullptr;
    EXPECT_EQ(object.GetTypeInfo(0, LOCALE_USER_DEFAULT, &information), S_OK);
    EXPECT_EQ(information->GetTypeAttr(&attributes), S_OK);
    for (UINT index = 0; index < attributes->cFuncs; ++index) {
        FUNCDESC* function = nullptr;
        EXPECT_EQ(information->GetFuncDesc(index, &function), S_OK);
        const bool own = function->wFuncFlags != FUNCFLAG_FRESTRICTED;
        if (own && (members.empty() || members.back() != function->memid)) {
            members.push_back(function->memid);
        }
        information->ReleaseFuncDesc(function);
    }
    information->ReleaseTypeAttr(attributes);
    return members;
}

bool IsResult(HRESULT result) {
    return result == S_OK || HRESULT_FACILITY(result) == FACILITY_DISPATCH ||
           HRESULT_FACILITY(result) == FACILITY_CONTROL || result == E_POINTER ||
           result == E_INVALIDARG || result == E_OUTOFMEMORY;
}

class WrongCalls : public OleTest, public ::testing::WithParamInterface<const wchar_t*> {
 protected:
    ComPtr<IDispatch> object_ = Create(GetParam());
    BoxCloser boxes_;
};

TEST_P(WrongCalls, AnyArgumentToAnyMemberGetsAResult) {
    const std::vector<DISPID> members = MembersOf(*object_.Get());
    ASSERT_GT(members.size(), 15U);
    const Arguments arguments(*object_.Get());
    constexpr std::array<WORD, 5> ways = {DISPATCH_METHOD, DISPATCH_PROPERTYGET,
                                          DISPATCH_PROPERTYPUT, DISPATCH_PROPERTYPUTREF,
                                          DISPATCH_METHOD | DISPATCH_PROPERTYGET};
    for (const DISPID member : members) {
        for (const WORD way : ways) {
            for (const VARIANT& argument : arguments.All()) {
                VARIANT given = argument;
                DISPID put = DISPID_PROPERTYPUT;
                const bool assigns = (way & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
                DISPPARAMS parameters = {&given, assigns ? &put : nullptr, 1, assigns ? 1U : 0U};
                Variant result;
                EXCEPINFO exception = {};
                UINT wrong = 0;
                const HRESULT outcome = object_->Invoke(member, IID_NULL, 0, way, &parameters,
                                                        &result, &exception, &wrong);
                EXPECT_TRUE(IsResult(outcome)) << member << " " << way << " type " << argument.vt
                                               << std::hex << " result " << outcome;
                EXPECT_EQ(given.vt, argument.vt);
                SysFreeString(exception.bstrDescription);
                SysFreeString(exception.bstrSource);
            }
        }
    }
}

TEST_P(WrongCalls, AnyNumberOfArgumentsGetsAResult) {
    std::array<VARIANT, 6> values = {};
    for (VARIANT& value : values) {
        value.vt = VT_I2;
        value.iVal = 1;
    }
    std::array<DISPID, 6> names = {DISPID_PROPERTYPUT, DISPID_PROPERTYPUT, 0, 0, 77, -77};
    for (const DISPID member : MembersOf(*object_.Get())) {
        for (const int way : {DISPATCH_METHOD, DISPATCH_PROPERTYGET, DISPATCH_PROPERTYPUT}) {
            for (UINT count = 0; count <= values.size(); ++count) {
                for (UINT named = 0; named <= count + 1 && named <= names.size(); ++named) {
                    DISPPARAMS parameters = {values.data(), names.data(), count, named};
                    const HRESULT outcome =
                        object_->Invoke(member, IID_NULL, 0, static_cast<WORD>(way), &parameters,
                                        nullptr, nullptr, nullptr);
                    EXPECT_TRUE(IsResult(outcome)) << member << " " << count << " " << named;
                    // No member takes more than two arguments, the new value included.
                    if (count > 2 || named > 2 || named > count) {
                        EXPECT_NE(outcome, S_OK) << member << " " << count << " " << named;
                    }
                }
            }
        }
    }
}

TEST_P(WrongCalls, NothingWhereSomethingIsNeededIsRefused) {
    DISPPARAMS none = {};
    DISPPARAMS missing = {nullptr, nullptr, 1, 0};
    DISPPARAMS nameless = {nullptr, nullptr, 0, 1};
    const DISPID enabled = DISPID_ENABLED;
    const auto invoke = [&](DISPID member, const IID& iid, WORD way, DISPPARAMS* parameters) {
        return object_->Invoke(member, iid, 0, way, parameters, nullptr, nullptr, nullptr);
    };
    EXPECT_TRUE(FAILED(invoke(enabled, IID_NULL, DISPATCH_PROPERTYGET, nullptr)));
    EXPECT_TRUE(FAILED(invoke(enabled, IID_NULL, DISPATCH_PROPERTYPUT, &missing)));
    EXPECT_TRUE(FAILED(invoke(enabled, IID_NULL, DISPATCH_PROPERTYPUT, &nameless)));
    EXPECT_EQ(invoke(enabled, IID_IUnknown, DISPATCH_PROPERTYGET, &none), DISP_E_UNKNOWNINTERFACE);
    EXPECT_EQ(invoke(enabled, IID_NULL, DISPATCH_PROPERTYGET, &none), S_OK);
    EXPECT_TRUE(FAILED(invoke(enabled, IID_NULL, 0, &none)));
    for (const DISPID unknown :
         {-1, -2, -3, -4, -5, 1, 999, 1745027172, 1610809444, INT_MIN, INT_MAX}) {
        EXPECT_EQ(invoke(unknown, IID_NULL, DISPATCH_METHOD | DISPATCH_PROPERTYGET, &none),
                  DISP_E_MEMBERNOTFOUND)
            << unknown;
    }
    DISPID number = 0;
    wchar_t* name = nullptr;
    wchar_t known[] = L"Enabled";
    wchar_t strange[] = L"";
    wchar_t* names[] = {known, strange};
    std::array<DISPID, 2> numbers = {};
    EXPECT_TRUE(FAILED(object_->GetIDsOfNames(IID_NULL, nullptr, 1, 0, &number)));
    EXPECT_TRUE(FAILED(object_->GetIDsOfNames(IID_NULL, &name, 1, 0, &number)));
    EXPECT_TRUE(FAILED(object_->GetIDsOfNames(IID_NULL, names, 1, 0, nullptr)));
    EXPECT_EQ(object_->GetIDsOfNames(IID_IUnknown, names, 1, 0, &number), DISP_E_UNKNOWNINTERFACE);
    EXPECT_EQ(object_->GetIDsOfNames(IID_NULL, names, 2, 0, numbers.data()), DISP_E_UNKNOWNNAME);
    EXPECT_EQ(numbers[0], enabled);
    EXPECT_EQ(numbers[1], DISPID_UNKNOWN);
    EXPECT_EQ(object_->GetTypeInfoCount(nullptr), E_POINTER);
    EXPECT_EQ(object_->GetTypeInfo(0, 0, nullptr), E_POINTER);
    ComPtr<ITypeInfo> information;
    EXPECT_EQ(object_->GetTypeInfo(1, 0, &information), DISP_E_BADINDEX);
    EXPECT_EQ(object_->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
}

// Calls the methods of every interface with null pointers and other invalid arguments.
class NullPointers : public WrongCalls {
 protected:
    template <typename Interface>
    ComPtr<Interface> As() const {
        ComPtr<Interface> found;
        EXPECT_EQ(object_.As(&found), S_OK);
        return found;
    }
    static void ExpectRefused(HRESULT result, const char* what) {
        EXPECT_TRUE(FAILED(result)) << what;
    }

    void CallOleObject();
    void CallInPlaceObject();
    void CallViewObject();
    void CallDataObject();
    void CallPersistence();
    void CallConnectionPoints();
    void CallDescriptions();
};

void NullPointers::CallOleObject() {
    const auto ole = As<IOleObject>();
    ExpectRefused(ole->GetClientSite(nullptr), "GetClientSite");
    ExpectRefused(ole->GetMoniker(0, 0, nullptr), "GetMoniker");
    ExpectRefused(ole->GetClipboardData(0, nullptr), "GetClipboardData");
    ExpectRefused(ole->EnumVerbs(nullptr), "EnumVerbs");
    ExpectRefused(ole->GetUserClassID(nullptr), "GetUserClassID");
    ExpectRefused(ole->GetUserType(1, nullptr), "GetUserType");
    ExpectRefused(ole->SetExtent(DVASPECT_CONTENT, nullptr), "SetExtent");
    ExpectRefused(ole->GetExtent(DVASPECT_CONTENT, nullptr), "GetExtent");
    ExpectRefused(ole->Advise(nullptr, nullptr), "Advise");
    ExpectRefused(ole->Unadvise(77), "Unadvise");
    ExpectRefused(ole->GetMiscStatus(DVASPECT_CONTENT, nullptr), "GetMiscStatus");
    ExpectRefused(ole->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, nullptr, 0, nullptr, nullptr),
                  "DoVerb");
    ExpectRefused(ole->DoVerb(OLEIVERB_UIACTIVATE, nullptr, nullptr, 0, nullptr, nullptr),
                  "DoVerb");
    ExpectRefused(ole->DoVerb(-100, nullptr, nullptr, 0, nullptr, nullptr), "DoVerb");
    EXPECT_EQ(ole->SetClientSite(nullptr), S_OK);
    EXPECT_EQ(ole->Close(OLECLOSE_SAVEIFDIRTY), S_OK);
    SIZEL huge = {INT_MAX, INT_MAX};
    ExpectRefused(ole->SetExtent(DVASPECT_CONTENT, &huge), "SetExtent");
    huge = {-1, 5};
    ExpectRefused(ole->SetExtent(DVASPECT_CONTENT, &huge), "SetExtent");
}

void NullPointers::CallInPlaceObject() {
    const auto place = As<IOleInPlaceObject>();
    ExpectRefused(place->GetWindow(nullptr), "GetWindow");
    ExpectRefused(place->SetObjectRects(nullptr, nullptr), "SetObjectRects");
    EXPECT_TRUE(SUCCEEDED(place->InPlaceDeactivate()) ||
                place->InPlaceDeactivate() == E_UNEXPECTED);
}

void NullPointers::CallViewObject() {
    const auto view = As<IViewObject2>();
    ExpectRefused(view->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, nullptr, nullptr,
                             nullptr, nullptr, 0),
                  "Draw");
    ExpectRefused(view->GetExtent(DVASPECT_CONTENT, -1, nullptr, nullptr), "view GetExtent");
    EXPECT_EQ(view->SetAdvise(DVASPECT_CONTENT, 0, nullptr), S_OK);
    EXPECT_EQ(view->GetAdvise(nullptr, nullptr, nullptr), S_OK);
}

void NullPointers::CallDataObject() {
    const auto data = As<IDataObject>();
    ExpectRefused(data->GetData(nullptr, nullptr), "GetData");
    ExpectRefused(data->GetDataHere(nullptr, nullptr), "GetDataHere");
    ExpectRefused(data->QueryGetData(nullptr), "QueryGetData");
    ExpectRefused(data->EnumFormatEtc(DATADIR_GET, nullptr), "EnumFormatEtc");
    ExpectRefused(data->DAdvise(nullptr, 0, nullptr, nullptr), "DAdvise");
}

void NullPointers::CallPersistence() {
    const auto stream = As<IPersistStreamInit>();
    ExpectRefused(stream->Load(nullptr), "Load");
    ExpectRefused(stream->Save(nullptr, TRUE), "Save");
    ExpectRefused(stream->GetClassID(nullptr), "GetClassID");
    ULARGE_INTEGER* nowhere = nullptr;
    ExpectRefused(stream->GetSizeMax(nowhere), "GetSizeMax");
    const auto storage = As<IPersistStorage>();
    ExpectRefused(storage->Load(nullptr), "storage Load");
    ExpectRefused(storage->Save(nullptr, FALSE), "storage Save");
    ExpectRefused(storage->InitNew(nullptr), "storage InitNew");
    const auto bag = As<IPersistPropertyBag>();
    ExpectRefused(bag->Load(nullptr, nullptr), "bag Load");
    ExpectRefused(bag->Save(nullptr, TRUE, TRUE), "bag Save");
}

void NullPointers::CallConnectionPoints() {
    const auto points = As<IConnectionPointContainer>();
    ExpectRefused(points->EnumConnectionPoints(nullptr), "EnumConnectionPoints");
    ExpectRefused(points->FindConnectionPoint(IID_IDispatch, nullptr), "FindConnectionPoint");
    ComPtr<IConnectionPoint> point;
    EXPECT_EQ(points->FindConnectionPoint(IID_IPersist, &point), CONNECT_E_NOCONNECTION);
    ASSERT_EQ(points->FindConnectionPoint(IID_IPropertyNotifySink, &point), S_OK);
    DWORD cookie = 0;
    ExpectRefused(point->Advise(nullptr, &cookie), "Advise");
    ExpectRefused(point->Advise(object_.Get(), nullptr), "Advise");
    EXPECT_EQ(point->Advise(object_.Get(), &cookie), CONNECT_E_CANNOTCONNECT);
    EXPECT_EQ(point->Unadvise(77), CONNECT_E_NOCONNECTION);
    ExpectRefused(point->GetConnectionInterface(nullptr), "GetConnectionInterface");
}

void NullPointers::CallDescriptions() {
    const auto pages = As<ISpecifyPropertyPages>();
    ExpectRefused(pages->GetPages(nullptr), "GetPages");
    const auto control = As<IOleControl>();
    ExpectRefused(control->GetControlInfo(nullptr), "GetControlInfo");
    const auto browsing = As<IPerPropertyBrowsing>();
    ExpectRefused(browsing->GetDisplayString(0, nullptr), "GetDisplayString");
    ExpectRefused(browsing->MapPropertyToPage(0, nullptr), "MapPropertyToPage");
    ExpectRefused(browsing->GetPredefinedStrings(0, nullptr, nullptr), "GetPredefinedStrings");
    ExpectRefused(browsing->GetPredefinedValue(0, 0, nullptr), "GetPredefinedValue");
    const auto quick = As<IQuickActivate>();
    ExpectRefused(quick->QuickActivate(nullptr, nullptr), "QuickActivate");
    const auto info = As<IProvideClassInfo2>();
    ExpectRefused(info->GetClassInfo(nullptr), "GetClassInfo");
    ExpectRefused(info->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, nullptr), "GetGUID");
}

TEST_P(NullPointers, AreRefusedByEveryInterface) {
    CallOleObject();
    CallInPlaceObject();
    CallViewObject();
    CallDataObject();
    CallPersistence();
    CallConnectionPoints();
    CallDescriptions();
    EXPECT_TRUE(boxes_.Errors().empty());
}

// A stream with invalid contents is refused, and the control stays usable.
TEST_P(WrongCalls, StreamsOfRubbishAreRefused) {
    ComPtr<IPersistStreamInit> stream;
    ASSERT_EQ(object_.As(&stream), S_OK);
    for (const std::size_t size : {0U, 1U, 3U, 4U, 8U, 40U, 400U}) {
        for (const char filling : {'\0', '\x01', 'x', '\xFF'}) {
            ComPtr<IStream> rubbish;
            ASSERT_EQ(CreateStreamOnHGlobal(nullptr, TRUE, &rubbish), S_OK);
            const std::vector<char> bytes(size, filling);
            rubbish->Write(bytes.data(), static_cast<ULONG>(size), nullptr);
            rubbish->Seek({}, STREAM_SEEK_SET, nullptr);
            EXPECT_TRUE(FAILED(stream->Load(rubbish.Get()))) << size << " times " << int(filling);
        }
    }
    EXPECT_EQ(TextOf(*object_.Get(), L"Enabled"), L"True");
}

INSTANTIATE_TEST_SUITE_P(Controls, WrongCalls, ::testing::ValuesIn(controls));
INSTANTIATE_TEST_SUITE_P(Controls, NullPointers, ::testing::ValuesIn(controls));

}  // namespace

}  // namespace lumenkit::clients
