#include <limits>

#include "frame/runtime_error.h"
#include "runtime/ole/values/dispatch_object.h"
#include "tests/unit/ole/ole_test.h"

namespace lumenkit::ole {
namespace {

class DispatchTest : public OleTest {
 protected:
    Late label_{Create<IDispatch>(u"VLabel")};

    void TearDown() override {
        label_ = Late(nullptr);
        OleTest::TearDown();
    }
    HRESULT PutWide(const wchar_t* name, VARTYPE type, LONGLONG bits) {
        VARIANT variant = {};
        variant.vt = type;
        V_I8(&variant) = bits;
        return label_.PutVariant(name, variant);
    }
    std::int16_t Indent() { return ToInteger(label_.Get(L"BulletIndent")); }
};

TEST_F(DispatchTest, FindsNamesWithoutRegardToCase) {
    EXPECT_EQ(label_.Identifier(L"Caption"), 0);
    EXPECT_EQ(label_.Identifier(L"cAPTION"), 0);
    EXPECT_EQ(label_.Identifier(L"BackColor"), -501);
    EXPECT_EQ(label_.Identifier(L"WordWrap"), 1745027072 + 4);
    EXPECT_EQ(label_.Identifier(L"Nothing"), DISPID_UNKNOWN);
    std::wstring member = L"getproperty";
    std::wstring parameter = L"PROPERTYNAME";
    std::wstring unknown = L"other";
    std::array names = {member.data(), parameter.data(), unknown.data()};
    std::array<DISPID, 3> found = {};
    EXPECT_EQ(label_->GetIDsOfNames(IID_NULL, names.data(), 2, 0, found.data()), S_OK);
    EXPECT_EQ(found[0], 1610809344 + 32);
    EXPECT_EQ(found[1], 0);
    EXPECT_EQ(label_->GetIDsOfNames(IID_NULL, names.data(), 3, 0, found.data()),
              DISP_E_UNKNOWNNAME);
    EXPECT_EQ(found[2], DISPID_UNKNOWN);
    EXPECT_EQ(label_->GetIDsOfNames(IID_IDispatch, names.data(), 1, 0, found.data()),
              DISP_E_UNKNOWNINTERFACE);
    EXPECT_EQ(label_->GetIDsOfNames(IID_NULL, nullptr, 1, 0, found.data()), E_POINTER);
    EXPECT_EQ(label_->GetIDsOfNames(IID_NULL, names.data(), 1, 0, nullptr), E_POINTER);
}

TEST_F(DispatchTest, ReadsAndAssigns) {
    EXPECT_EQ(label_.Get(L"Caption"), Value(Text(u"VLabel")));
    const Text withZero(u"a\0b", 3);
    EXPECT_EQ(label_.Put(L"Caption", withZero), S_OK);
    EXPECT_EQ(label_.Get(L"Caption"), Value(withZero));
    EXPECT_EQ(label_.Put(L"WordWrap", true), S_OK);
    EXPECT_EQ(label_.Get(L"WordWrap"), Value(true));
    EXPECT_EQ(label_.Put(L"BackColor", 255.0), S_OK);
    EXPECT_EQ(label_.Get(L"BackColor"), Value(std::int32_t{255}));
    VARIANT null = {};
    null.vt = VT_BSTR;
    EXPECT_EQ(label_.PutVariant(L"Caption", null), S_OK);
    EXPECT_EQ(label_.Get(L"Caption"), Value(Text()));
}

TEST_F(DispatchTest, TakesNumbersOfEveryWidth) {
    for (const VARTYPE type :
         {VT_I1, VT_UI1, VT_I2, VT_UI2, VT_I4, VT_UI4, VT_INT, VT_UINT, VT_I8, VT_UI8}) {
        EXPECT_EQ(label_.Put(L"BulletIndent", std::int16_t{0}), S_OK);
        EXPECT_EQ(PutWide(L"BulletIndent", type, 77), S_OK) << type;
        EXPECT_EQ(Indent(), 77) << type;
    }
    VARIANT variant = {};
    variant.vt = VT_R4;
    V_R4(&variant) = 2.5F;
    EXPECT_EQ(label_.PutVariant(L"BulletIndent", variant), S_OK);
    EXPECT_EQ(Indent(), 2);
    variant.vt = VT_CY;
    V_CY(&variant).int64 = 35000;
    EXPECT_EQ(label_.PutVariant(L"BulletIndent", variant), S_OK);
    EXPECT_EQ(Indent(), 4);
    variant.vt = VT_DATE;
    V_DATE(&variant) = 5.0;
    EXPECT_EQ(label_.PutVariant(L"BulletIndent", variant), S_OK);
    EXPECT_EQ(Indent(), 5);
    DECIMAL decimal = {};
    VarDecFromI4(-6, &decimal);
    V_DECIMAL(&variant) = decimal;
    variant.vt = VT_DECIMAL;
    EXPECT_EQ(label_.PutVariant(L"BulletIndent", variant), S_OK);
    EXPECT_EQ(Indent(), -6);
    EXPECT_EQ(label_.Put(L"BulletIndent", Text(u"&H10")), S_OK);
    EXPECT_EQ(Indent(), 16);
    EXPECT_EQ(PutWide(L"BackColor", VT_UI4, 0x80000005LL), S_OK);
    EXPECT_EQ(ToLong(label_.Get(L"BackColor")), static_cast<std::int32_t>(0x80000005));
}

TEST_F(DispatchTest, FollowsReferences) {
    SHORT number = 12;
    VARIANT reference = {};
    reference.vt = VT_BYREF | VT_I2;
    V_I2REF(&reference) = &number;
    EXPECT_EQ(label_.PutVariant(L"BulletIndent", reference), S_OK);
    EXPECT_EQ(Indent(), 12);
    Variant held;
    ToVariant(Text(u"34"), *held);
    reference.vt = VT_BYREF | VT_VARIANT;
    V_VARIANTREF(&reference) = held.Get();
    EXPECT_EQ(label_.PutVariant(L"BulletIndent", reference), S_OK);
    EXPECT_EQ(Indent(), 34);
    // A script's variable that refers to another variable.
    VARIANT outer = {};
    outer.vt = VT_BYREF | VT_VARIANT;
    V_VARIANTREF(&outer) = &reference;
    EXPECT_EQ(label_.PutVariant(L"BulletIndent", outer), S_OK);
    // A reference to itself, and null references.
    V_VARIANTREF(&outer) = &outer;
    EXPECT_EQ(label_.PutVariant(L"BulletIndent", outer), DISP_E_TYPEMISMATCH);
    for (const int type : {VT_VARIANT, VT_I2, VT_BSTR, VT_DECIMAL, VT_DISPATCH, VT_R8, VT_CY}) {
        reference.vt = static_cast<VARTYPE>(VT_BYREF | type);
        V_BYREF(&reference) = nullptr;
        EXPECT_TRUE(FAILED(label_.PutVariant(L"BulletIndent", reference))) << type;
    }
}

TEST_F(DispatchTest, RefusesWhatDoesNotConvertAndSaysWhich) {
    UINT wrong = 99;
    VARIANT variant = {};
    variant.vt = VT_I4;
    V_I4(&variant) = 40000;
    EXPECT_EQ(
        label_.Invoke(L"BulletIndent", DISPATCH_PROPERTYPUT, {variant}, nullptr, nullptr, &wrong),
        DISP_E_OVERFLOW);
    EXPECT_EQ(wrong, 0U);
    EXPECT_EQ(label_.Put(L"BulletIndent", Text(u"many")), DISP_E_TYPEMISMATCH);
    EXPECT_EQ(label_.Put(L"BulletIndent", Null{}), DISP_E_TYPEMISMATCH);
    EXPECT_EQ(label_.Put(L"BulletIndent", Missing{}), DISP_E_PARAMNOTOPTIONAL);
    variant.vt = VT_ERROR;
    V_ERROR(&variant) = E_FAIL;
    EXPECT_EQ(label_.PutVariant(L"BulletIndent", variant), DISP_E_TYPEMISMATCH);
    variant.vt = VT_ARRAY | VT_I2;
    V_ARRAY(&variant) = nullptr;
    EXPECT_EQ(label_.PutVariant(L"BulletIndent", variant), DISP_E_TYPEMISMATCH);
    variant.vt = VT_DISPATCH;
    V_DISPATCH(&variant) = nullptr;
    EXPECT_EQ(label_.PutVariant(L"BulletIndent", variant), DISP_E_TYPEMISMATCH);
    for (VARTYPE type = 0; type < 80; ++type) {
        if (type == VT_BSTR || type == VT_DISPATCH || type == VT_UNKNOWN) {
            continue;  // only types that hold no pointer
        }
        VARIANT odd = {};
        odd.vt = type;
        label_.PutVariant(L"BulletIndent", odd);  // any result, but no crash
    }
}

TEST_F(DispatchTest, AnObjectStandsForItsDefaultMember) {
    const Late other(Create<IDispatch>(u"VLabel"));
    EXPECT_EQ(other.Put(L"Caption", Text(u"from the other")), S_OK);
    VARIANT variant = {};
    variant.vt = VT_DISPATCH;
    V_DISPATCH(&variant) = other.Get().Get();
    EXPECT_EQ(label_.PutVariant(L"Caption", variant), S_OK);
    EXPECT_EQ(ToText(label_.Get(L"Caption")), u"from the other");
}

TEST_F(DispatchTest, CallsMethodsAsScriptsDo) {
    Variant result;
    Variant name;
    ToVariant(Text(u"WIDTH"), *name);
    VARIANT reference = {};
    reference.vt = VT_BYREF | VT_VARIANT;
    V_VARIANTREF(&reference) = name.Get();
    EXPECT_EQ(label_.Invoke(L"GetProperty", DISPATCH_METHOD | DISPATCH_PROPERTYGET, {reference},
                            result.Get()),
              S_OK);
    EXPECT_EQ(result->vt, VT_R4);
    EXPECT_GT(V_R4(result.Get()), 0.0F);
    EXPECT_EQ(label_.Invoke(L"GetProperty", DISPATCH_METHOD, {}), DISP_E_PARAMNOTOPTIONAL);
    EXPECT_EQ(label_.Invoke(L"GetProperty", DISPATCH_METHOD, {*name, *name}), DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(label_.Invoke(L"Refresh", DISPATCH_METHOD, {*name}), DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(label_.Invoke(L"Refresh", DISPATCH_METHOD, {}), S_OK);
    EXPECT_EQ(label_.Invoke(L"Refresh", DISPATCH_PROPERTYGET, {}), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(label_.Invoke(L"Refresh", DISPATCH_PROPERTYPUT, {*name}), DISP_E_MEMBERNOTFOUND);
}

TEST_F(DispatchTest, TakesNamedArguments) {
    Variant name;
    ToVariant(Text(u"height"), *name);
    DISPID parameter = 0;
    DISPPARAMS parameters = {name.Get(), &parameter, 1, 1};
    Variant result;
    const DISPID member = label_.Identifier(L"GetProperty");
    EXPECT_EQ(label_->Invoke(member, IID_NULL, 0, DISPATCH_METHOD, &parameters, result.Get(),
                             nullptr, nullptr),
              S_OK);
    EXPECT_EQ(result->vt, VT_R4);
    UINT wrong = 99;
    parameter = 5;
    EXPECT_EQ(
        label_->Invoke(member, IID_NULL, 0, DISPATCH_METHOD, &parameters, nullptr, nullptr, &wrong),
        DISP_E_PARAMNOTFOUND);
    EXPECT_EQ(wrong, 0U);
}

TEST_F(DispatchTest, AssignsAnIndexedProperty) {
    const Late list(Create<IDispatch>(u"VOptList"));
    EXPECT_EQ(list.Put(L"Contents", Text(u"a;A|b;B")), S_OK);
    Variant index;
    ToVariant(std::int16_t{1}, *index);
    Variant caption;
    ToVariant(Text(u"Second"), *caption);
    EXPECT_EQ(list.Invoke(L"ItemCaption", DISPATCH_PROPERTYPUT, {*caption, *index}), S_OK);
    EXPECT_EQ(list.Invoke(L"ItemCaption", DISPATCH_PROPERTYPUT, {*caption}),
              DISP_E_PARAMNOTOPTIONAL);
    EXPECT_EQ(list.Invoke(L"ItemCaption", DISPATCH_PROPERTYGET, {*index}), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(list.Put(L"Value", Text(u"x")), DISP_E_MEMBERNOTFOUND);
}

TEST_F(DispatchTest, AnswersBadCallsWithAResult) {
    DISPPARAMS none = {};
    EXPECT_EQ(
        label_->Invoke(0, IID_NULL, 0, DISPATCH_PROPERTYGET, nullptr, nullptr, nullptr, nullptr),
        E_POINTER);
    EXPECT_EQ(
        label_->Invoke(0, IID_IDispatch, 0, DISPATCH_PROPERTYGET, &none, nullptr, nullptr, nullptr),
        DISP_E_UNKNOWNINTERFACE);
    EXPECT_EQ(
        label_->Invoke(12345, IID_NULL, 0, DISPATCH_PROPERTYGET, &none, nullptr, nullptr, nullptr),
        DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(label_->Invoke(0, IID_NULL, 0, 0, &none, nullptr, nullptr, nullptr), E_INVALIDARG);
    DISPPARAMS holes = {nullptr, nullptr, 2, 0};
    EXPECT_EQ(
        label_->Invoke(0, IID_NULL, 0, DISPATCH_PROPERTYPUT, &holes, nullptr, nullptr, nullptr),
        E_INVALIDARG);
    DISPPARAMS tooManyNames = {nullptr, nullptr, 0, 1};
    EXPECT_EQ(label_->Invoke(0, IID_NULL, 0, DISPATCH_PROPERTYPUT, &tooManyNames, nullptr, nullptr,
                             nullptr),
              E_INVALIDARG);
    EXPECT_EQ(
        label_->Invoke(0, IID_NULL, 0, DISPATCH_PROPERTYPUT, &none, nullptr, nullptr, nullptr),
        DISP_E_PARAMNOTOPTIONAL);
}

TEST_F(DispatchTest, KeepsTheFontThatAClientSet) {
    FONTDESC description = {};
    std::wstring name = L"Arial";
    description.cbSizeofstruct = sizeof description;
    description.lpstrName = name.data();
    description.cySize.int64 = 120000;
    description.sWeight = FW_NORMAL;
    ComPtr<IDispatch> font;
    ASSERT_EQ(OleCreateFontIndirect(&description, IID_IFontDisp,
                                    reinterpret_cast<void**>(font.GetAddressOf())),
              S_OK);
    VARIANT variant = {};
    variant.vt = VT_DISPATCH;
    V_DISPATCH(&variant) = font.Get();
    EXPECT_EQ(label_.Invoke(L"Font", DISPATCH_PROPERTYPUTREF, {variant}), S_OK);
    Variant result;
    EXPECT_EQ(label_.Invoke(L"Font", DISPATCH_PROPERTYGET, {}, result.Get()), S_OK);
    EXPECT_EQ(result->vt, VT_DISPATCH);
    EXPECT_EQ(V_DISPATCH(result.Get()), font.Get());
    EXPECT_EQ(Late(font).Put(L"Bold", true), S_OK);
    // An object that is not a font, and a property that takes no object.
    V_DISPATCH(&variant) = label_.Get().Get();
    EXPECT_EQ(label_.Invoke(L"Font", DISPATCH_PROPERTYPUTREF, {variant}), DISP_E_TYPEMISMATCH);
    EXPECT_EQ(label_.Invoke(L"Caption", DISPATCH_PROPERTYPUTREF, {variant}), DISP_E_MEMBERNOTFOUND);
    // Nothing and a number.
    V_DISPATCH(&variant) = nullptr;
    EXPECT_EQ(label_.Invoke(L"Font", DISPATCH_PROPERTYPUTREF, {variant}), DISP_E_TYPEMISMATCH);
    variant.vt = VT_I4;
    EXPECT_EQ(label_.Invoke(L"Font", DISPATCH_PROPERTYPUTREF, {variant}), DISP_E_TYPEMISMATCH);
    EXPECT_EQ(label_.Invoke(L"Font", DISPATCH_PROPERTYGET, {}, result.Get()), S_OK);
    EXPECT_EQ(V_DISPATCH(result.Get()), font.Get());
}

TEST_F(DispatchTest, AnotherObjectsErrorsAreCarriedOver) {
    DispatchObject object(label_.Get().Get());
    EXPECT_EQ(object.Get(u"Caption"), Value(Text(u"VLabel")));
    EXPECT_FALSE(object.FindMember(u"Nothing"));
    const auto numberOf = [](auto&& body) {
        try {
            body();
        } catch (const RuntimeError& error) {
            return error.Number();
        }
        return 0;
    };
    EXPECT_EQ(numberOf([&] { object.Get(u"Nothing"); }), 438);
    EXPECT_EQ(numberOf([&] { object.Let(u"BulletIndent", Text(u"x")); }), 13);
    EXPECT_EQ(numberOf([&] { object.Let(u"BulletIndent", 1.0e6); }), 6);
    EXPECT_TRUE(object.IsSame(DispatchObject(label_.Get().Get())));
    EXPECT_FALSE(object.IsSame(DispatchObject(Create<IDispatch>(u"VLabel").Get())));
}

}  // namespace
}  // namespace lumenkit::ole
