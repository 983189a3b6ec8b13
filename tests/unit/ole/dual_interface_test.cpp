#include "runtime/ole/objects/dual_interface.h"

#include <bit>

#include "tests/unit/ole/ole_test.h"

namespace lumenkit::ole {
namespace {

// Calls an entry of an object's vtable, as a program does that was compiled with the interface.
template <typename... Arguments>
HRESULT Call(IDispatch* object, std::size_t entry, Arguments... arguments) {
    using Function = HRESULT(STDMETHODCALLTYPE*)(IDispatch*, Arguments...);
    const auto* const functions = *std::bit_cast<void* const* const*>(object);
    return std::bit_cast<Function>(functions[entry])(object, arguments...);
}

class DualInterfaceTest : public OleTest {
 protected:
    static ComPtr<IDispatch> CreateDual(TextView name) {
        const IID own = GuidOf(lumenkitClasses.Find(Text(u"lumenkit.") + Text(name))
                                   ->interfaceTable->uniqueIdentifier);
        ComPtr<IDispatch> dual;
        EXPECT_EQ(Create(name)->QueryInterface(own, reinterpret_cast<void**>(dual.GetAddressOf())),
                  S_OK);
        return dual;
    }
};

TEST_F(DualInterfaceTest, EveryMemberOfEveryClassCanBeCalled) {
    for (const ClassDescriptor& type : lumenkitClasses.classes) {
        const std::vector<Slot> slots = SlotsOf(*type.interfaceTable);
        EXPECT_LE(slots.size(), DualInterface::largestTable);
        for (const Slot& slot : slots) {
            EXPECT_TRUE(slot.IsCallable()) << ::testing::PrintToString(slot.member->name);
            EXPECT_LE(slot.WordCount(), DualInterface::mostWords);
        }
    }
}

TEST_F(DualInterfaceTest, ReadsAndAssignsALabel) {
    const ComPtr<IDispatch> label = CreateDual(u"VLabel");
    LONG color = 0;
    EXPECT_EQ(Call(label.Get(), 8, LONG{0x112233}), S_OK);
    EXPECT_EQ(Call(label.Get(), 7, &color), S_OK);
    EXPECT_EQ(color, 0x112233);
    VARIANT_BOOL enabled = VARIANT_TRUE;
    EXPECT_EQ(Call(label.Get(), 12, VARIANT_BOOL{VARIANT_FALSE}), S_OK);
    EXPECT_EQ(Call(label.Get(), 11, &enabled), S_OK);
    EXPECT_EQ(enabled, VARIANT_FALSE);
    BasicString caption;
    EXPECT_EQ(Call(label.Get(), 22, BasicString(u"from a program").Get()), S_OK);
    EXPECT_EQ(Call(label.Get(), 21, caption.Out()), S_OK);
    EXPECT_EQ(caption.AsText(), u"from a program");
    EXPECT_EQ(Call(label.Get(), 25), S_OK);
    SHORT indent = 0;
    EXPECT_EQ(Call(label.Get(), 27, SHORT{-5}), S_OK);
    EXPECT_EQ(Call(label.Get(), 26, &indent), S_OK);
    EXPECT_EQ(indent, -5);
    ComPtr<IDispatch> font;
    EXPECT_EQ(Call(label.Get(), 13, font.GetAddressOf()), S_OK);
    ASSERT_NE(font, nullptr);
    EXPECT_EQ(Call(label.Get(), 14, font.Get()), S_OK);
}

TEST_F(DualInterfaceTest, CallsMethodsWithReferences) {
    const ComPtr<IDispatch> label = CreateDual(u"VLabel");
    BSTR name = SysAllocString(L"width");
    Variant result;
    EXPECT_EQ(Call(label.Get(), 35, &name, result.Get()), S_OK);
    EXPECT_EQ(result->vt, VT_R4);
    EXPECT_EQ(Call(label.Get(), 36, &name), S_OK);
    BasicString caption;
    EXPECT_EQ(Call(label.Get(), 21, caption.Out()), S_OK);
    EXPECT_EQ(caption.AsText(), u"width");
    SysFreeString(name);
}

TEST_F(DualInterfaceTest, TakesSinglesAndIndices) {
    const ComPtr<IDispatch> list = CreateDual(u"VOptList");
    float size = 0;
    EXPECT_EQ(Call(list.Get(), 17, BasicString(u"a;A|b;B").Get()), S_OK);
    EXPECT_EQ(Call(list.Get(), 20, SHORT{1}, BasicString(u"Second").Get()), S_OK);
    EXPECT_EQ(Call(list.Get(), 27, &size), S_OK);
    EXPECT_EQ(size, 8.25F);
    const ComPtr<IDispatch> memo = CreateDual(u"VMemo");
    // The font of the text box decides how many characters fit into the page width.
    std::size_t pageWidth = 0;
    const std::vector<Slot> slots =
        SlotsOf(*lumenkitClasses.Find(u"lumenkit.VMemo")->interfaceTable);
    SHORT perLine = 0;
    std::size_t maxCharsPerLine = 0;
    for (std::size_t index = 0; index < slots.size(); ++index) {
        if (slots[index].member->name == u"PageWidth") {
            pageWidth = index + 7;
        } else if (slots[index].member->name == u"MaxCharsPerLine" &&
                   slots[index].kind == InvokeKind::Get) {
            maxCharsPerLine = index + 7;
        }
    }
    EXPECT_EQ(Call(memo.Get(), pageWidth, 5000.0F), S_OK);
    EXPECT_EQ(Call(memo.Get(), maxCharsPerLine, &perLine), S_OK);
    EXPECT_GT(perLine, 10);
}

TEST_F(DualInterfaceTest, RefusesNullPointers) {
    for (const TextView name : {u"VLabel", u"VMemo", u"VOptList"}) {
        const ComPtr<IDispatch> dual = CreateDual(name);
        const std::vector<Slot> slots =
            SlotsOf(*lumenkitClasses.Find(Text(u"lumenkit.") + Text(name))->interfaceTable);
        for (std::size_t index = 0; index < slots.size(); ++index) {
            if (slots[index].kind == InvokeKind::Get) {
                EXPECT_EQ(Call(dual.Get(), index + 7, static_cast<void*>(nullptr)), E_POINTER);
            }
        }
    }
    const ComPtr<IDispatch> label = CreateDual(u"VLabel");
    Variant result;
    EXPECT_EQ(Call(label.Get(), 35, static_cast<BSTR*>(nullptr), result.Get()), E_POINTER);
    EXPECT_EQ(Call(label.Get(), 36, static_cast<BSTR*>(nullptr)), E_POINTER);
}

TEST_F(DualInterfaceTest, ErrorsCarryInformation) {
    const ComPtr<IDispatch> label = CreateDual(u"VLabel");
    const IID own =
        GuidOf(lumenkitClasses.Find(u"lumenkit.VLabel")->interfaceTable->uniqueIdentifier);
    ComPtr<ISupportErrorInfo> support;
    ASSERT_EQ(label.As(&support), S_OK);
    EXPECT_EQ(support->InterfaceSupportsErrorInfo(own), S_OK);
    EXPECT_EQ(support->InterfaceSupportsErrorInfo(IID_IOleObject), S_FALSE);
    // An object that is not a font.
    SetErrorInfo(0, nullptr);
    EXPECT_EQ(Call(label.Get(), 14, label.Get()), static_cast<HRESULT>(0x800A000D));
    ComPtr<IErrorInfo> information;
    ASSERT_EQ(GetErrorInfo(0, &information), S_OK);
    BasicString description;
    BasicString source;
    GUID interfaceId = {};
    EXPECT_EQ(information->GetDescription(description.Out()), S_OK);
    EXPECT_EQ(information->GetSource(source.Out()), S_OK);
    EXPECT_EQ(information->GetGUID(&interfaceId), S_OK);
    EXPECT_EQ(description.AsText(), u"Type mismatch");
    EXPECT_EQ(source.AsText(), u"lumenkit");
    EXPECT_EQ(interfaceId, own);
}

}  // namespace
}  // namespace lumenkit::ole
