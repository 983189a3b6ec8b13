// The type libraries as clients see them. The golden listing shows changes for review. The tables
// here hold the facts that must not change.
#include <filesystem>
#include <fstream>
#include <map>
#include <ostream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <windows.h>
#include <wrl/client.h>

#include "tests/ole/type_library_listing.h"

namespace lumenkit {

namespace {

using Microsoft::WRL::ComPtr;

const std::filesystem::path built = LUMENKIT_BINARY_DIR;

std::string Golden() {
    std::ifstream stream(
        std::filesystem::path(LUMENKIT_SOURCE_DIR) / "tests" / "golden" / "type_library.txt",
        std::ios::binary);
    if (!stream) {
        throw std::runtime_error("cannot read the golden listing");
    }
    std::ostringstream text;
    text << stream.rdbuf();
    return text.str();
}

TEST(TypeLibrary, IsTheReviewedOne) {
    EXPECT_EQ(ListTypeLibrary(built / "lumenkit.tlb") + "\n" +
                  ListTypeLibrary(built / "lumenkit_runtime.tlb"),
              Golden());
}

#ifdef LUMENKIT_SERVER
TEST(TypeLibrary, LiesInTheServer) {
    EXPECT_EQ(ListTypeLibrary(built / "lumenkit.ocx") + "\n" +
                  ListTypeLibrary((built / "lumenkit.ocx").wstring() + L"\\2"),
              Golden());
}
#endif

constexpr long userProperty = 1745027072;
constexpr long userMethod = 1610809344;

/// One member or event: the information that all its functions give to a client.
struct Fact {
    long identifier;
    std::string name;
    std::string access;
    std::string type;
    std::string help;

    bool operator==(const Fact&) const = default;
};

std::ostream& operator<<(std::ostream& stream, const Fact& fact) {
    return stream << "{" << fact.identifier << ", " << fact.name << ", " << fact.access << ", "
                  << fact.type << ", \"" << fact.help << "\"}";
}

/// Returns ASCII text. The names and help strings of the library contain no other characters.
std::string TakeText(BSTR text) {
    std::string taken;
    for (UINT i = 0; i < SysStringLen(text); ++i) {
        EXPECT_LT(text[i], 128);
        taken += static_cast<char>(text[i]);
    }
    SysFreeString(text);
    return taken;
}

void Require(HRESULT result) {
    if (FAILED(result)) {
        throw std::runtime_error("the platform refuses: " + std::to_string(result));
    }
}

std::string NameOf(ITypeInfo& info) {
    BSTR name = nullptr;
    Require(info.GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr));
    return TakeText(name);
}

std::string TypeName(ITypeInfo& info, const TYPEDESC& type) {
    static const std::map<VARTYPE, std::string> names = {
        {VT_I2, "integer"},  {VT_I4, "long"},         {VT_R4, "single"}, {VT_BOOL, "boolean"},
        {VT_BSTR, "string"}, {VT_VARIANT, "variant"}, {VT_VOID, ""}};
    if (type.vt == VT_PTR) {
        return "*" + TypeName(info, *type.lptdesc);
    }
    if (type.vt == VT_USERDEFINED) {
        ComPtr<ITypeInfo> referred;
        Require(info.GetRefTypeInfo(type.hreftype, &referred));
        return NameOf(*referred.Get());
    }
    return names.at(type.vt);
}

void AddFunction(ITypeInfo& info, const FUNCDESC& function, std::vector<Fact>& facts) {
    BSTR name = nullptr;
    BSTR help = nullptr;
    Require(info.GetDocumentation(function.memid, &name, &help, nullptr, nullptr));
    Fact fact = {.identifier = function.memid,
                 .name = TakeText(name),
                 .access = {},
                 .type = TypeName(info, function.elemdescFunc.tdesc),
                 .help = TakeText(help)};
    const bool assigns = (function.invkind & (INVOKE_PROPERTYPUT | INVOKE_PROPERTYPUTREF)) != 0;
    const int arguments = function.cParams - (assigns ? 1 : 0);
    if (assigns) {
        fact.type = TypeName(info, function.lprgelemdescParam[arguments].tdesc);
    }
    fact.access = function.invkind == INVOKE_FUNC          ? "call"
                  : function.invkind == INVOKE_PROPERTYGET ? "get"
                  : function.invkind == INVOKE_PROPERTYPUT ? "let"
                                                           : "set";
    std::vector<BSTR> names(static_cast<std::size_t>(function.cParams) + 1, nullptr);
    UINT named = 0;
    Require(info.GetNames(function.memid, names.data(), static_cast<UINT>(names.size()), &named));
    for (std::size_t i = 0; i < names.size(); ++i) {
        const std::string parameter = TakeText(names[i]);
        if (i > 0 && i <= static_cast<std::size_t>(arguments)) {
            fact.access +=
                " " + parameter + ":" + TypeName(info, function.lprgelemdescParam[i - 1].tdesc);
        }
    }
    for (const auto& [flag, flagName] :
         std::map<WORD, std::string>{{FUNCFLAG_FBINDABLE, "bindable"},
                                     {FUNCFLAG_FREQUESTEDIT, "requestedit"},
                                     {FUNCFLAG_FDEFAULTBIND, "defaultbind"},
                                     {FUNCFLAG_FNONBROWSABLE, "nonbrowsable"},
                                     {FUNCFLAG_FHIDDEN, "hidden"}}) {
        if ((function.wFuncFlags & flag) != 0) {
            fact.access += " " + flagName;
        }
    }
    if (!facts.empty() && facts.back().identifier == fact.identifier) {
        EXPECT_EQ(facts.back().name, fact.name);
        EXPECT_EQ(facts.back().type, fact.type);
        EXPECT_EQ(facts.back().help, fact.help);
        facts.back().access += "/" + fact.access;
        return;
    }
    facts.push_back(fact);
}

class TypeLibraryFacts : public ::testing::Test {
 protected:
    TypeLibraryFacts() {
        Require(LoadTypeLibEx((built / "lumenkit.tlb").c_str(), REGKIND_NONE, &library_));
    }

    ComPtr<ITypeInfo> Find(const std::wstring& name) {
        for (UINT i = 0; i < library_->GetTypeInfoCount(); ++i) {
            ComPtr<ITypeInfo> info;
            Require(library_->GetTypeInfo(i, &info));
            const std::string found = NameOf(*info.Get());
            if (std::wstring(found.begin(), found.end()) == name) {
                return info;
            }
        }
        throw std::runtime_error("no such type");
    }

    std::vector<Fact> FactsOf(const std::wstring& name) {
        const ComPtr<ITypeInfo> info = Find(name);
        std::vector<Fact> facts;
        FUNCDESC* function = nullptr;
        for (UINT i = 0; SUCCEEDED(info->GetFuncDesc(i, &function)); ++i) {
            if ((function->wFuncFlags & FUNCFLAG_FRESTRICTED) == 0) {
                AddFunction(*info.Get(), *function, facts);
            }
            info->ReleaseFuncDesc(function);
        }
        return facts;
    }

    /// Returns "kind flags", then "name:flags" for each interface that the class implements.
    std::string Shape(const std::wstring& name) {
        const ComPtr<ITypeInfo> info = Find(name);
        TYPEATTR* attributes = nullptr;
        Require(info->GetTypeAttr(&attributes));
        const TYPEKIND kind = attributes->typekind;
        std::string shape = kind == TKIND_COCLASS    ? "class"
                            : kind == TKIND_ALIAS    ? "alias"
                            : kind == TKIND_DISPATCH ? "dispatch"
                                                     : "?";
        for (const auto& [flag, flagName] :
             std::map<WORD, std::string>{{TYPEFLAG_FCANCREATE, "cancreate"},
                                         {TYPEFLAG_FHIDDEN, "hidden"},
                                         {TYPEFLAG_FCONTROL, "control"},
                                         {TYPEFLAG_FDUAL, "dual"}}) {
            if ((attributes->wTypeFlags & flag) != 0) {
                shape += " " + flagName;
            }
        }
        for (UINT i = 0; kind == TKIND_COCLASS && i < attributes->cImplTypes; ++i) {
            HREFTYPE reference = 0;
            int flags = 0;
            ComPtr<ITypeInfo> implemented;
            Require(info->GetRefTypeOfImplType(i, &reference));
            Require(info->GetImplTypeFlags(i, &flags));
            Require(info->GetRefTypeInfo(reference, &implemented));
            shape += ", " + NameOf(*implemented.Get()) + ":" + std::to_string(flags);
        }
        info->ReleaseTypeAttr(attributes);
        return shape;
    }

    ComPtr<ITypeLib> library_;
};

constexpr const char* foreColorHelp =
    "Returns/sets the foreground color used to display text and graphics in an object.";
constexpr const char* enabledHelp =
    "Returns/sets a value that determines whether an object can respond to user-generated events.";
constexpr const char* fontHelp = "Returns a Font object.";
constexpr const char* borderStyleHelp = "Returns/sets the border style for an object.";
constexpr const char* mousePointerHelp =
    "Returns/sets the type of mouse pointer displayed when over part of an object.";
constexpr const char* refreshHelp = "Forces a complete repaint of a object.";
constexpr const char* fontNameHelp =
    "Specifies the name of the font that appears in each row for the given level.";
constexpr const char* fontSizeHelp =
    "Specifies the size (in points) of the font that appears in each row for the given level.";

TEST_F(TypeLibraryFacts, Library) {
    BSTR name = nullptr;
    BSTR help = nullptr;
    Require(library_->GetDocumentation(-1, &name, &help, nullptr, nullptr));
    EXPECT_EQ(TakeText(name), "lumenkit");
    EXPECT_EQ(TakeText(help), "lumenkit");
    TLIBATTR* attributes = nullptr;
    Require(library_->GetLibAttr(&attributes));
    EXPECT_EQ(attributes->lcid, 1033U);
    EXPECT_EQ(attributes->wMajorVerNum, 7);
    EXPECT_EQ(attributes->wMinorVerNum, 1);
    EXPECT_NE(attributes->wLibFlags & LIBFLAG_FCONTROL, 0);
    library_->ReleaseTLibAttr(attributes);
}

TEST_F(TypeLibraryFacts, TwelveDescriptions) {
    EXPECT_EQ(library_->GetTypeInfoCount(), 12U);
    for (const wchar_t* name : {L"_VLabel", L"_VMemo", L"_VOptList", L"_VLabelCaption"}) {
        EXPECT_EQ(Shape(name), "dispatch hidden dual");
    }
    for (const wchar_t* name : {L"__VLabel", L"__VMemo", L"__VOptList"}) {
        EXPECT_EQ(Shape(name), "dispatch hidden");
    }
    // The flag 1 marks the default interface, 3 the default source.
    EXPECT_EQ(Shape(L"VLabel"), "class cancreate control, _VLabel:1, __VLabel:3");
    EXPECT_EQ(Shape(L"VMemo"), "class cancreate control, _VMemo:1, __VMemo:3");
    EXPECT_EQ(Shape(L"VOptList"), "class cancreate control, _VOptList:1, __VOptList:3");
    EXPECT_EQ(Shape(L"VLabelCaption"), "class cancreate, _VLabelCaption:1");
    EXPECT_EQ(Shape(L"VMemo___v0"), "alias hidden");
}

TEST_F(TypeLibraryFacts, VLabel) {
    EXPECT_THAT(
        FactsOf(L"_VLabel"),
        ::testing::ElementsAreArray(std::vector<Fact>{
            {-501, "BackColor", "get/let", "OLE_COLOR",
             "Returns/sets the background color used to display text and graphics in an object."},
            {-513, "ForeColor", "get/let", "OLE_COLOR", foreColorHelp},
            {-514, "Enabled", "get/let", "boolean", enabledHelp},
            {-512, "Font", "get/set", "*Font", fontHelp},
            {userProperty + 7, "BorderStyle", "get/let", "integer", borderStyleHelp},
            {userProperty + 6, "FontTransparent", "get/let", "boolean",
             "Returns/sets a value that determines whether background text/graphics on a Form, "
             "Printer or PictureBox are displayed."},
            {userProperty + 5, "MousePointer", "get/let", "integer", mousePointerHelp},
            {0, "Caption", "get/let", "string",
             "Text to interpret and display (Quillon compatible)"},
            {userProperty + 4, "WordWrap", "get/let", "boolean",
             "Wrap words at right border (when Left horizontal aligned)"},
            {userMethod + 20, "Refresh", "call", "", refreshHelp},
            {userProperty + 3, "BulletIndent", "get/let", "integer",
             "Indent (in twips) of text for bulleted text lines"},
            {userProperty + 2, "BulletPrefix", "get/let", "string",
             "String that signifies the start of a bullet (for example, \"* \")"},
            {userMethod + 29, "SetIdealSize", "call", "", ""},
            {userProperty + 1, "AutoSize", "get/let", "boolean",
             "Use the SetIdealSize method when you want it to resize in this way"},
            {userProperty + 0, "BackStyle", "get/let", "integer",
             "0=normal, 1=inherit the BackColor of this control's container"},
            {userMethod + 32, "GetProperty", "call PropertyName:*string", "variant", ""},
            {userMethod + 33, "Test", "call CaptionToVerify:*string", "", ""},
        }));
}

TEST_F(TypeLibraryFacts, VMemo) {
    EXPECT_THAT(
        FactsOf(L"_VMemo"),
        ::testing::ElementsAreArray(std::vector<Fact>{
            {userProperty + 10, "ForeColor", "get/let", "OLE_COLOR", foreColorHelp},
            {-514, "Enabled", "get/let", "boolean", enabledHelp},
            {-512, "Font", "get/set", "*Font", fontHelp},
            {userMethod + 11, "Refresh", "call", "", refreshHelp},
            {userProperty + 9, "CausesValidation", "get/let", "boolean",
             "Returns/sets whether validation occurs on the control which lost focus."},
            {userProperty + 8, "FontName", "get/let", "string", fontNameHelp},
            {userProperty + 7, "FontSize", "get/let", "single", fontSizeHelp},
            {userProperty + 6, "Locked", "get/let", "boolean",
             "Determines whether a control can be edited."},
            {userProperty + 5, "MaxLength", "get/let", "long",
             "Returns/sets the maximum number of characters that can be entered in a control."},
            {userProperty + 4, "MousePointer", "get/let", "MousePointers", mousePointerHelp},
            {userProperty + 3, "ScrollBars", "get/let", "ScrollBarChoices", ""},
            {0, "Text", "get bindable requestedit defaultbind/let bindable requestedit defaultbind",
             "string", "Returns/sets the text contained in the control."},
            {userProperty + 2, "MaxCharsPerLine", "get/let", "integer",
             "Maximum number of characters allowed on any line"},
            {userProperty + 1, "MaxLines", "get/let", "integer", "Maximum number of lines allowed"},
            {userProperty + 0, "PageWidth", "let", "single", ""},
            {userMethod + 27, "TestMessage", "call", "", ""},
        }));
}

TEST_F(TypeLibraryFacts, VOptList) {
    EXPECT_THAT(
        FactsOf(L"_VOptList"),
        ::testing::ElementsAreArray(std::vector<Fact>{
            {-514, "Enabled", "get/let", "boolean", enabledHelp},
            {-512, "Font", "get/set", "*Font", fontHelp},
            {userProperty + 14, "BorderStyle", "get/let", "integer", borderStyleHelp},
            {userMethod + 15, "Refresh", "call", "", refreshHelp},
            {userProperty + 13, "Caption", "get/let", "string",
             "Returns/sets the text displayed in an object's title bar or below an object's icon."},
            {userProperty + 12, "Contents", "get/let", "string",
             "Value1;Caption1|Value2;Caption2  ... etc"},
            {userProperty + 11, "ItemAlignment", "get/let", "integer",
             "Returns/sets the alignment of a CheckBox or OptionButton, or a control's text."},
            {userProperty + 10, "ItemCaption", "let Index:integer", "string", ""},
            {userProperty + 9, "ItemFontBold", "get/let", "boolean",
             "Returns/sets bold font styles."},
            {userProperty + 8, "ItemFontItalic", "get/let", "boolean",
             "Returns/sets italic font styles."},
            {userProperty + 7, "ItemFontName", "get/let", "string", fontNameHelp},
            {userProperty + 6, "ItemFontSize", "get/let", "single", fontSizeHelp},
            {userProperty + 5, "ItemForeColor", "get/let", "OLE_COLOR", foreColorHelp},
            {userProperty + 4, "LeftMargin", "get/let", "single",
             "Left offset of option buttons in twips"},
            {userProperty + 3, "ListIndex", "get/let", "integer",
             "Index (0-based) of currently selected item (-1 = none)"},
            {userProperty + 2, "Spacing", "get/let", "single",
             "Vertical spacing/height of option buttons in twips"},
            {userProperty + 1, "TopMargin", "get/let", "single",
             "Top offset of option buttons in twips"},
            {0, "Text",
             "get bindable requestedit defaultbind nonbrowsable/"
             "let bindable requestedit defaultbind nonbrowsable",
             "string", ""},
            {userProperty + 0, "Value", "get", "string", ""},
        }));
}

TEST_F(TypeLibraryFacts, VLabelCaptionHasNoMembersOfItsOwn) {
    EXPECT_THAT(FactsOf(L"_VLabelCaption"), ::testing::IsEmpty());
}

constexpr const char* clickHelp =
    "Occurs when the user presses and then releases a mouse button over an object.";
constexpr const char* dblClickHelp =
    "Occurs when the user presses and releases a mouse button and then presses and releases it "
    "again over an object.";
constexpr const char* mouseDownHelp =
    "Occurs when the user presses the mouse button while an object has the focus.";
constexpr const char* mouseMoveHelp = "Occurs when the user moves the mouse.";
constexpr const char* mouseUpHelp =
    "Occurs when the user releases the mouse button while an object has the focus.";
constexpr const char* mouseCall = "call Button:*integer Shift:*integer X:*single Y:*single";
constexpr const char* keyCall = "call KeyCode:*integer Shift:*integer";

TEST_F(TypeLibraryFacts, EventsOfVLabel) {
    EXPECT_THAT(FactsOf(L"__VLabel"), ::testing::ElementsAreArray(std::vector<Fact>{
                                          {1, "Click", "call", "", clickHelp},
                                          {2, "DblClick", "call", "", dblClickHelp},
                                          {3, "MouseDown", mouseCall, "", mouseDownHelp},
                                          {4, "MouseMove", mouseCall, "", mouseMoveHelp},
                                          {5, "MouseUp", mouseCall, "", mouseUpHelp},
                                      }));
}

TEST_F(TypeLibraryFacts, EventsOfVMemo) {
    EXPECT_THAT(
        FactsOf(L"__VMemo"),
        ::testing::ElementsAreArray(std::vector<Fact>{
            {1, "Click", "call", "", clickHelp},
            {2, "DblClick", "call", "", dblClickHelp},
            {3, "KeyDown", keyCall, "",
             "Occurs when the user presses a key while an object has the focus."},
            {4, "KeyPress", "call KeyAscii:*integer", "",
             "Occurs when the user presses and releases an ANSI key."},
            {5, "KeyUp", keyCall, "",
             "Occurs when the user releases a key while an object has the focus."},
            {6, "MouseDown", mouseCall, "", mouseDownHelp},
            {7, "MouseMove", mouseCall, "", mouseMoveHelp},
            {8, "MouseUp", mouseCall, "", mouseUpHelp},
            {9, "Change", "call", "", "Occurs when the contents of a control have changed."},
            {10, "Validate", "call Cancel:*boolean", "",
             "Occurs when a control loses focus to a control that causes validation."},
        }));
}

TEST_F(TypeLibraryFacts, EventsOfVOptList) {
    EXPECT_THAT(FactsOf(L"__VOptList"),
                ::testing::ElementsAreArray(std::vector<Fact>{{1, "Click", "call", "", ""}}));
}

}  // namespace

}  // namespace lumenkit
