// Calls every member of the three interfaces as a compiled program does: through the vtable, with
// the header that the interface compiler makes from the definitions.
#include <limits>

#include <gmock/gmock.h>
#include <lumenkit.h>
#include <olectl.h>

#include "tests/ole/clients/support/boxes.h"
#include "tests/ole/clients/support/com.h"

namespace lumenkit::clients {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr OLE_COLOR windowBackground = 0x80000005;
constexpr OLE_COLOR windowText = 0x80000008;
constexpr OLE_COLOR buttonText = 0x80000012;
constexpr HRESULT overflow = static_cast<HRESULT>(0x800A0006);
constexpr HRESULT typeMismatch = static_cast<HRESULT>(0x800A000D);

template <typename Interface, typename T>
T Got(const ComPtr<Interface>& object, HRESULT (STDMETHODCALLTYPE Interface::*get)(T*)) {
    T value = {};
    EXPECT_EQ((object.Get()->*get)(&value), S_OK);
    return value;
}

template <typename Interface>
std::wstring Got(const ComPtr<Interface>& object,
                 HRESULT (STDMETHODCALLTYPE Interface::*get)(BSTR*)) {
    Text value;
    EXPECT_EQ((object.Get()->*get)(value.Out()), S_OK);
    return value.Read();
}

// Assigns a value and reads the property again.
template <typename Interface, typename T>
T After(const ComPtr<Interface>& object, HRESULT (STDMETHODCALLTYPE Interface::*put)(T),
        HRESULT (STDMETHODCALLTYPE Interface::*get)(T*), T value) {
    EXPECT_EQ((object.Get()->*put)(value), S_OK);
    return Got(object, get);
}

template <typename Interface>
std::wstring After(const ComPtr<Interface>& object,
                   HRESULT (STDMETHODCALLTYPE Interface::*put)(BSTR),
                   HRESULT (STDMETHODCALLTYPE Interface::*get)(BSTR*), const wchar_t* value) {
    EXPECT_EQ((object.Get()->*put)(Text(value).Get()), S_OK);
    return Got(object, get);
}

template <typename Interface>
ComPtr<Font> FontOf(const ComPtr<Interface>& object) {
    ComPtr<Font> font;
    EXPECT_EQ(object->get_Font(&font), S_OK);
    return font;
}

// Sets the object's font to the font of the other object, which both then share. Then sets an
// object that is not a font, which is refused with an error description.
template <typename Interface, typename Other>
void CheckFont(const ComPtr<Interface>& object, const ComPtr<Other>& other) {
    const ComPtr<Font> font = FontOf(other);
    ASSERT_NE(font, nullptr);
    EXPECT_EQ(object->putref_Font(font.Get()), S_OK);
    EXPECT_EQ(Put(*font.Get(), L"Name", Variant(L"Courier New")), S_OK);
    EXPECT_EQ(TextOf(*FontOf(object).Get(), L"Name"), L"Courier New");

    SetErrorInfo(0, nullptr);
    EXPECT_EQ(object->putref_Font(reinterpret_cast<Font*>(other.Get())), typeMismatch);
    ComPtr<IErrorInfo> error;
    ASSERT_EQ(GetErrorInfo(0, &error), S_OK);
    Text source;
    Text description;
    GUID raisedBy = {};
    EXPECT_EQ(error->GetSource(source.Out()), S_OK);
    EXPECT_EQ(error->GetDescription(description.Out()), S_OK);
    EXPECT_EQ(error->GetGUID(&raisedBy), S_OK);
    EXPECT_EQ(source.Read(), L"lumenkit");
    EXPECT_EQ(description.Read(), L"Type mismatch");
    EXPECT_EQ(raisedBy, __uuidof(Interface));
    EXPECT_EQ(object->get_Font(nullptr), E_POINTER);
    EXPECT_EQ(object->putref_Font(nullptr), typeMismatch);

    ComPtr<ISupportErrorInfo> support;
    ASSERT_EQ(object.As(&support), S_OK);
    EXPECT_EQ(support->InterfaceSupportsErrorInfo(__uuidof(Interface)), S_OK);
}

class VtableClient : public OleTest {
 protected:
    ~VtableClient() override { EXPECT_THAT(boxes_.Errors(), IsEmpty()); }

    std::vector<std::wstring> Errors() { return boxes_.Errors(); }

    BoxCloser boxes_;
};

using L = _VLabel;

void ExpectDefaults(const ComPtr<_VLabel>& label) {
    EXPECT_EQ(Got(label, &L::get_BackColor), windowBackground);
    EXPECT_EQ(Got(label, &L::get_ForeColor), buttonText);
    EXPECT_EQ(Got(label, &L::get_Enabled), VARIANT_TRUE);
    EXPECT_EQ(Got(label, &L::get_BorderStyle), 0);
    EXPECT_EQ(Got(label, &L::get_FontTransparent), VARIANT_TRUE);
    EXPECT_EQ(Got(label, &L::get_MousePointer), 0);
    EXPECT_EQ(Got(label, &L::get_Caption), L"VLabel");
    EXPECT_EQ(Got(label, &L::get_WordWrap), VARIANT_FALSE);
    EXPECT_EQ(Got(label, &L::get_BulletIndent), 0);
    EXPECT_EQ(Got(label, &L::get_BulletPrefix), L"");
    EXPECT_EQ(Got(label, &L::get_AutoSize), VARIANT_FALSE);
    EXPECT_EQ(Got(label, &L::get_BackStyle), 0);
}

void ExpectChanges(const ComPtr<_VLabel>& label) {
    EXPECT_EQ(After(label, &L::put_BackColor, &L::get_BackColor, OLE_COLOR(0xFF00FF)), 0xFF00FFU);
    EXPECT_EQ(After(label, &L::put_ForeColor, &L::get_ForeColor, windowText), windowText);
    EXPECT_EQ(After(label, &L::put_Enabled, &L::get_Enabled, VARIANT_FALSE), VARIANT_FALSE);
    EXPECT_EQ(After(label, &L::put_BorderStyle, &L::get_BorderStyle, short(1)), 1);
    EXPECT_EQ(After(label, &L::put_FontTransparent, &L::get_FontTransparent, VARIANT_FALSE),
              VARIANT_FALSE);
    EXPECT_EQ(After(label, &L::put_MousePointer, &L::get_MousePointer, short(11)), 11);
    EXPECT_EQ(After(label, &L::put_Caption, &L::get_Caption, L"a|CR|\x263A"), L"a|CR|\x263A");
    EXPECT_EQ(After(label, &L::put_WordWrap, &L::get_WordWrap, VARIANT_TRUE), VARIANT_TRUE);
    EXPECT_EQ(After(label, &L::put_BulletIndent, &L::get_BulletIndent, short(-32768)), -32768);
    EXPECT_EQ(After(label, &L::put_BulletPrefix, &L::get_BulletPrefix, L"* "), L"* ");
    EXPECT_EQ(After(label, &L::put_AutoSize, &L::get_AutoSize, VARIANT_TRUE), VARIANT_TRUE);
    EXPECT_EQ(After(label, &L::put_BackStyle, &L::get_BackStyle, short(1)), 1);
}

void ExpectMethods(const ComPtr<_VLabel>& label) {
    EXPECT_EQ(label->Refresh(), S_OK);
    EXPECT_EQ(label->SetIdealSize(), S_OK);

    Text name(L"WIDTH");
    BSTR nameByReference = name.Get();
    Variant width;
    EXPECT_EQ(label->GetProperty(&nameByReference, &width), S_OK);
    EXPECT_EQ(VariantChangeType(&width, &width, 0, VT_R8), S_OK);
    EXPECT_GT(width.dblVal, 0);
    Text other(L"Caption");
    nameByReference = other.Get();
    Variant nothing(1L);
    EXPECT_EQ(label->GetProperty(&nameByReference, &nothing), S_OK);
    EXPECT_EQ(nothing.vt, VT_EMPTY);

    Text tested(L"tested");
    BSTR testedByReference = tested.Get();
    EXPECT_EQ(label->Test(&testedByReference), S_OK);
    EXPECT_EQ(Got(label, &L::get_Caption), L"tested");
    EXPECT_EQ(testedByReference, tested.Get());
}

void ExpectNullsRefused(const ComPtr<_VLabel>& label) {
    // A null string is the empty text.
    EXPECT_EQ(label->put_Caption(nullptr), S_OK);
    EXPECT_EQ(Got(label, &L::get_Caption), L"");
    EXPECT_EQ(label->get_Caption(nullptr), E_POINTER);
    EXPECT_EQ(label->get_BackColor(nullptr), E_POINTER);
    EXPECT_EQ(label->get_WordWrap(nullptr), E_POINTER);
    Text name(L"Caption");
    BSTR nameByReference = name.Get();
    Variant nothing(1L);
    EXPECT_EQ(label->GetProperty(nullptr, &nothing), E_POINTER);
    EXPECT_EQ(label->GetProperty(&nameByReference, nullptr), E_POINTER);
    EXPECT_EQ(label->Test(nullptr), E_POINTER);
}

TEST_F(VtableClient, CallsAllOfALabel) {
    const ComPtr<_VLabel> label = Create<_VLabel>(L"lumenkit.VLabel");
    ExpectDefaults(label);
    ExpectChanges(label);
    ExpectMethods(label);
    CheckFont(label, Create<_VMemo>(L"lumenkit.VMemo"));
    ExpectNullsRefused(label);
}

TEST_F(VtableClient, ShowsWhatALabelRefuses) {
    const ComPtr<_VLabel> label = Create<_VLabel>(L"lumenkit.VLabel");
    EXPECT_EQ(label->put_BorderStyle(2), S_OK);
    EXPECT_THAT(Errors(), ElementsAre(L"VLABEL pLetBorderStyle 380"));
    EXPECT_EQ(Got(label, &_VLabel::get_BorderStyle), 0);
}

TEST_F(VtableClient, CallsAllOfAMemo) {
    const ComPtr<_VMemo> memo = Create<_VMemo>(L"lumenkit.VMemo");
    using M = _VMemo;
    EXPECT_EQ(Got(memo, &M::get_Text), L"VMemo\r\n");
    EXPECT_EQ(Got(memo, &M::get_ForeColor), windowText);
    EXPECT_EQ(Got(memo, &M::get_Enabled), VARIANT_TRUE);
    EXPECT_EQ(Got(memo, &M::get_FontName), L"Courier");
    EXPECT_EQ(Got(memo, &M::get_FontSize), 9.75F);
    EXPECT_EQ(Got(memo, &M::get_Locked), VARIANT_FALSE);
    EXPECT_EQ(Got(memo, &M::get_MousePointer), 0);
    EXPECT_EQ(Got(memo, &M::get_ScrollBars), 0);
    EXPECT_EQ(Got(memo, &M::get_MaxCharsPerLine), 0);
    EXPECT_EQ(Got(memo, &M::get_MaxLines), 0);

    EXPECT_EQ(After(memo, &M::put_ForeColor, &M::get_ForeColor, OLE_COLOR(255)), 255U);
    EXPECT_EQ(After(memo, &M::put_Enabled, &M::get_Enabled, VARIANT_FALSE), VARIANT_FALSE);
    EXPECT_EQ(After(memo, &M::put_CausesValidation, &M::get_CausesValidation, VARIANT_FALSE),
              VARIANT_TRUE);
    EXPECT_EQ(After(memo, &M::put_FontName, &M::get_FontName, L"Arial"), L"Arial");
    // Within a pixel, because the screen has only certain sizes.
    EXPECT_NEAR(After(memo, &M::put_FontSize, &M::get_FontSize, 18.0F), 18.0F, 0.75F);
    EXPECT_EQ(After(memo, &M::put_Locked, &M::get_Locked, VARIANT_TRUE), VARIANT_TRUE);
    EXPECT_EQ(memo->put_MaxLength(70000), S_OK);
    EXPECT_EQ(Got(memo, &M::get_MaxLength), 0);
    EXPECT_THAT(Errors(), ElementsAre(L"VMEMO pGetMaxLength 438"));
    EXPECT_EQ(After(memo, &M::put_MousePointer, &M::get_MousePointer, MousePointers(3)), 3);
    EXPECT_EQ(After(memo, &M::put_ScrollBars, &M::get_ScrollBars, ScrollBarChoices(2)), 2);
    EXPECT_EQ(After(memo, &M::put_Text, &M::get_Text, L"two\r\nlines"), L"two\r\nlines");
    EXPECT_EQ(After(memo, &M::put_MaxCharsPerLine, &M::get_MaxCharsPerLine, short(2)), 2);
    EXPECT_EQ(After(memo, &M::put_MaxLines, &M::get_MaxLines, short(1)), 1);
    EXPECT_EQ(After(memo, &M::put_Text, &M::get_Text, L"abc"), L"ab");
    EXPECT_EQ(memo->put_PageWidth(0.0F), S_OK);
    EXPECT_EQ(Got(memo, &M::get_MaxCharsPerLine), 0);
    EXPECT_EQ(memo->put_PageWidth(30000.0F), S_OK);
    EXPECT_GT(Got(memo, &M::get_MaxCharsPerLine), 10);
    EXPECT_EQ(memo->Refresh(), S_OK);
    EXPECT_EQ(memo->TestMessage(), S_OK);
    EXPECT_THAT(Errors(), ElementsAre(L"VMEMO TestMessage 11"));
    // An argument that is not a number does not reach the control.
    EXPECT_EQ(memo->put_PageWidth(std::numeric_limits<float>::quiet_NaN()), overflow);
    int outside = 4;
    EXPECT_EQ(memo->put_ScrollBars(static_cast<ScrollBarChoices>(outside)), S_OK);
    EXPECT_THAT(Errors(), ElementsAre(L"VMEMO pLetScrollBars 340"));
    EXPECT_EQ(Got(memo, &M::get_ScrollBars), 2);

    CheckFont(memo, Create<_VLabel>(L"lumenkit.VLabel"));
    EXPECT_EQ(memo->get_Text(nullptr), E_POINTER);
    EXPECT_EQ(memo->get_FontSize(nullptr), E_POINTER);
    EXPECT_EQ(memo->get_MaxLength(nullptr), E_POINTER);
}

TEST_F(VtableClient, CallsAllOfAnOptionList) {
    const ComPtr<_VOptList> list = Create<_VOptList>(L"lumenkit.VOptList");
    using O = _VOptList;
    EXPECT_EQ(Got(list, &O::get_Enabled), VARIANT_TRUE);
    EXPECT_EQ(Got(list, &O::get_BorderStyle), 1);
    EXPECT_EQ(Got(list, &O::get_Caption), L"Caption");
    EXPECT_EQ(Got(list, &O::get_Contents), L"0;Item 0");
    EXPECT_EQ(Got(list, &O::get_ItemAlignment), 0);
    EXPECT_EQ(Got(list, &O::get_ItemFontBold), VARIANT_FALSE);
    EXPECT_EQ(Got(list, &O::get_ItemFontItalic), VARIANT_FALSE);
    EXPECT_NE(Got(list, &O::get_ItemFontName), L"");
    EXPECT_GT(Got(list, &O::get_ItemFontSize), 0.0F);
    EXPECT_EQ(Got(list, &O::get_ItemForeColor), buttonText);
    EXPECT_EQ(Got(list, &O::get_ListIndex), -1);
    EXPECT_EQ(Got(list, &O::get_Text), L"");
    EXPECT_EQ(Got(list, &O::get_Value), L"");

    EXPECT_EQ(After(list, &O::put_Enabled, &O::get_Enabled, VARIANT_FALSE), VARIANT_FALSE);
    EXPECT_EQ(After(list, &O::put_BorderStyle, &O::get_BorderStyle, short(0)), 0);
    EXPECT_EQ(After(list, &O::put_Caption, &O::get_Caption, L"Pick"), L"Pick");
    EXPECT_EQ(After(list, &O::put_Contents, &O::get_Contents, L"1;One|2;Two"), L"1;One|2;Two");
    EXPECT_EQ(After(list, &O::put_ListIndex, &O::get_ListIndex, short(1)), 1);
    EXPECT_EQ(Got(list, &O::get_Value), L"2");
    EXPECT_EQ(After(list, &O::put_Text, &O::get_Text, L"1"), L"1");
    EXPECT_EQ(After(list, &O::put_ListIndex, &O::get_ListIndex, short(2)), -1);
    EXPECT_EQ(list->put_ItemCaption(0, Text(L"Uno").Get()), S_OK);
    EXPECT_EQ(list->put_ItemCaption(9, Text(L"nobody").Get()), S_OK);
    EXPECT_EQ(Got(list, &O::get_Contents), L"1;One|2;Two");
    EXPECT_EQ(list->Refresh(), S_OK);
    EXPECT_THAT(boxes_.Errors(), IsEmpty());

    CheckFont(list, Create<_VLabel>(L"lumenkit.VLabel"));
    EXPECT_EQ(list->get_Value(nullptr), E_POINTER);
    EXPECT_EQ(list->get_ListIndex(nullptr), E_POINTER);
}

TEST_F(VtableClient, IsShownWhatBelongsToTheDesigner) {
    const ComPtr<_VOptList> list = Create<_VOptList>(L"lumenkit.VOptList");
    EXPECT_EQ(list->put_ItemAlignment(1), S_OK);
    EXPECT_EQ(list->put_ItemFontBold(VARIANT_TRUE), S_OK);
    EXPECT_EQ(list->put_ItemFontItalic(VARIANT_TRUE), S_OK);
    EXPECT_EQ(list->put_ItemFontName(Text(L"Arial").Get()), S_OK);
    EXPECT_EQ(list->put_ItemFontSize(24), S_OK);
    EXPECT_EQ(list->put_ItemForeColor(0), S_OK);
    EXPECT_THAT(Errors(),
                ElementsAre(L"VOPTLIST pLetItemAlignment 382", L"VOPTLIST pLetItemFontBold 382",
                            L"VOPTLIST pLetItemFontItalic 382", L"VOPTLIST pLetItemFontName 382",
                            L"VOPTLIST pLetItemFontSize 382", L"VOPTLIST pLetItemForeColor 382"));
    EXPECT_EQ(list->put_LeftMargin(100), S_OK);
    EXPECT_EQ(list->put_Spacing(100), S_OK);
    EXPECT_EQ(list->put_TopMargin(100), S_OK);
    EXPECT_THAT(Errors(), ElementsAre(L"VOPTLIST pLetLeftMargin 382", L"VOPTLIST pLetSpacing 382",
                                      L"VOPTLIST pLetTopMargin 382"));
    float length = 1;
    EXPECT_EQ(list->get_LeftMargin(&length), S_OK);
    EXPECT_EQ(length, 0);
    EXPECT_EQ(list->get_Spacing(&length), S_OK);
    EXPECT_EQ(list->get_TopMargin(&length), S_OK);
    EXPECT_THAT(Errors(), ElementsAre(L"VOPTLIST pGetLeftMargin 393", L"VOPTLIST pGetSpacing 393",
                                      L"VOPTLIST pGetTopMargin 393"));
}

TEST_F(VtableClient, AsksThePageForItsInterface) {
    const ComPtr<_VLabelCaption> page = Create<_VLabelCaption>(L"lumenkit.VLabelCaption");
    ASSERT_NE(page, nullptr);
    UINT count = 0;
    EXPECT_EQ(page->GetTypeInfoCount(&count), S_OK);
    EXPECT_EQ(count, 1U);
}

}  // namespace

}  // namespace lumenkit::clients
