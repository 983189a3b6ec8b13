// The platform's ScriptControl: it gets objects by name, and code is added to it and run.
#include <initializer_list>
#include <vector>

#include <gmock/gmock.h>

#include "tests/ole/clients/support/com.h"

namespace lumenkit::clients {

namespace {

HRESULT CallWith(IDispatch& object, const wchar_t* name, std::vector<VARIANT> arguments,
                 VARIANT* result = nullptr) {
    DISPPARAMS parameters = {arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
    return object.Invoke(NumberOf(object, name), IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD,
                         &parameters, result, nullptr, nullptr);
}

class ScriptControl : public OleTest {
 protected:
    void SetUp() override {
        ASSERT_NE(control_, nullptr);
        ASSERT_EQ(Put(*control_.Get(), L"Language", Variant(L"VBScript")), S_OK);
    }
    void Add(const wchar_t* name, const ComPtr<IDispatch>& object) {
        const Variant asName(name);
        const Variant asObject(object.Get());
        const Variant members(0L);
        EXPECT_EQ(CallWith(*control_.Get(), L"AddObject", {members, asObject, asName}), S_OK);
    }
    std::wstring Eval(const wchar_t* expression) {
        const Variant asText(expression);
        Variant result;
        EXPECT_EQ(CallWith(*control_.Get(), L"Eval", {asText}, &result), S_OK) << expression;
        EXPECT_EQ(VariantChangeType(&result, &result, VARIANT_ALPHABOOL, VT_BSTR), S_OK);
        return result.Read();
    }

    ComPtr<IDispatch> control_ = Create(L"MSScriptControl.ScriptControl");
};

TEST_F(ScriptControl, EvaluatesWhatTheControlsAreAskedFor) {
    const ComPtr<IDispatch> memo = Create(L"lumenkit.VMemo");
    const ComPtr<IDispatch> list = Create(L"lumenkit.VOptList");
    Add(L"memo", memo);
    Add(L"list", list);
    EXPECT_EQ(Eval(L"Len(memo.Text)"), L"7");
    EXPECT_EQ(Eval(L"list.Contents & list.ListIndex"), L"0;Item 0-1");
    const Variant code(
        L"Function Choose(contents, number)\n"
        L"    list.Contents = contents\n"
        L"    list.ListIndex = number\n"
        L"    memo.Text = list & \"!\"\n"
        L"    Choose = list.Value\n"
        L"End Function\n");
    ASSERT_EQ(CallWith(*control_.Get(), L"AddCode", {code}), S_OK);

    SAFEARRAY* arguments = SafeArrayCreateVector(VT_VARIANT, 0, 2);
    const Variant contents(L"1;One|2;Two");
    const Variant number(1L);
    LONG index = 0;
    ASSERT_EQ(SafeArrayPutElement(arguments, &index, const_cast<Variant*>(&contents)), S_OK);
    index = 1;
    ASSERT_EQ(SafeArrayPutElement(arguments, &index, const_cast<Variant*>(&number)), S_OK);
    VARIANT array = {};
    array.vt = VT_ARRAY | VT_VARIANT | VT_BYREF;
    array.pparray = &arguments;
    const Variant procedure(L"Choose");
    Variant chosen;
    EXPECT_EQ(CallWith(*control_.Get(), L"Run", {array, procedure}, &chosen), S_OK);
    SafeArrayDestroy(arguments);
    EXPECT_EQ(chosen.Read(), L"2");
    EXPECT_EQ(TextOf(*memo.Get(), L"Text"), L"2!");
    EXPECT_EQ(TextOf(*list.Get(), L"ListIndex"), L"1");
}

TEST_F(ScriptControl, TellsOfMistakes) {
    Add(L"label", Create(L"lumenkit.VLabel"));
    const Variant wrong(L"label.BulletIndent = \"many\"");
    EXPECT_TRUE(FAILED(CallWith(*control_.Get(), L"ExecuteStatement", {wrong})));
    const Variant right(L"label.BulletIndent = 120");
    EXPECT_EQ(CallWith(*control_.Get(), L"ExecuteStatement", {right}), S_OK);
    EXPECT_EQ(Eval(L"label.BulletIndent"), L"120");
}

}  // namespace

}  // namespace lumenkit::clients
