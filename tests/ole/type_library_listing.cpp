#include "tests/ole/type_library_listing.h"

#include <array>
#include <cstdio>
#include <memory>
#include <stdexcept>
#include <utility>
#include <vector>

#include <windows.h>
#include <wrl/client.h>

namespace lumenkit {

namespace {

using Microsoft::WRL::ComPtr;

void Check(HRESULT result, const char* what) {
    if (FAILED(result)) {
        std::array<char, 16> code = {};
        std::snprintf(code.data(), code.size(), "%08lx", static_cast<unsigned long>(result));
        throw std::runtime_error(std::string(what) + " fails with " + code.data());
    }
}

std::string ToUtf8(const wchar_t* text, UINT length) {
    std::string bytes(3 * static_cast<std::size_t>(length), '\0');
    const int written =
        length == 0 ? 0
                    : WideCharToMultiByte(CP_UTF8, 0, text, static_cast<int>(length), bytes.data(),
                                          static_cast<int>(bytes.size()), nullptr, nullptr);
    bytes.resize(static_cast<std::size_t>(written));
    return bytes;
}

/// A string of the platform, freed when it is destroyed.
class Name {
 public:
    Name() = default;
    Name(const Name&) = delete;
    Name& operator=(const Name&) = delete;
    ~Name() { SysFreeString(text_); }
    BSTR* operator&() { return &text_; }
    std::string Utf8() const { return text_ == nullptr ? "" : ToUtf8(text_, SysStringLen(text_)); }

 private:
    BSTR text_ = nullptr;
};

std::string Written(const GUID& identifier) {
    std::array<wchar_t, 40> text = {};
    const int length = StringFromGUID2(identifier, text.data(), static_cast<int>(text.size()));
    return ToUtf8(text.data(), static_cast<UINT>(length - 1));
}

struct Flag {
    unsigned bit;
    const char* name;
};

std::string Written(unsigned flags, const std::vector<Flag>& names) {
    std::string text;
    for (const auto& [bit, name] : names) {
        if ((flags & bit) != 0) {
            text += text.empty() ? name : std::string(" ") + name;
            flags &= ~bit;
        }
    }
    if (flags != 0) {
        text += (text.empty() ? "" : " ") + std::to_string(flags);
    }
    return text.empty() ? "none" : text;
}

std::string LibraryFlags(unsigned flags) {
    return Written(flags, {{LIBFLAG_FRESTRICTED, "restricted"},
                           {LIBFLAG_FCONTROL, "control"},
                           {LIBFLAG_FHIDDEN, "hidden"},
                           {LIBFLAG_FHASDISKIMAGE, "hasdiskimage"}});
}

std::string TypeFlags(unsigned flags) {
    return Written(flags, {{TYPEFLAG_FAPPOBJECT, "appobject"},
                           {TYPEFLAG_FCANCREATE, "cancreate"},
                           {TYPEFLAG_FLICENSED, "licensed"},
                           {TYPEFLAG_FPREDECLID, "predeclid"},
                           {TYPEFLAG_FHIDDEN, "hidden"},
                           {TYPEFLAG_FCONTROL, "control"},
                           {TYPEFLAG_FDUAL, "dual"},
                           {TYPEFLAG_FNONEXTENSIBLE, "nonextensible"},
                           {TYPEFLAG_FOLEAUTOMATION, "oleautomation"},
                           {TYPEFLAG_FRESTRICTED, "restricted"},
                           {TYPEFLAG_FAGGREGATABLE, "aggregatable"},
                           {TYPEFLAG_FREPLACEABLE, "replaceable"},
                           {TYPEFLAG_FDISPATCHABLE, "dispatchable"},
                           {TYPEFLAG_FREVERSEBIND, "reversebind"},
                           {TYPEFLAG_FPROXY, "proxy"}});
}

std::string FunctionFlags(unsigned flags) {
    return Written(flags, {{FUNCFLAG_FRESTRICTED, "restricted"},
                           {FUNCFLAG_FSOURCE, "source"},
                           {FUNCFLAG_FBINDABLE, "bindable"},
                           {FUNCFLAG_FREQUESTEDIT, "requestedit"},
                           {FUNCFLAG_FDISPLAYBIND, "displaybind"},
                           {FUNCFLAG_FDEFAULTBIND, "defaultbind"},
                           {FUNCFLAG_FHIDDEN, "hidden"},
                           {FUNCFLAG_FUSESGETLASTERROR, "usesgetlasterror"},
                           {FUNCFLAG_FDEFAULTCOLLELEM, "defaultcollelem"},
                           {FUNCFLAG_FUIDEFAULT, "uidefault"},
                           {FUNCFLAG_FNONBROWSABLE, "nonbrowsable"},
                           {FUNCFLAG_FREPLACEABLE, "replaceable"},
                           {FUNCFLAG_FIMMEDIATEBIND, "immediatebind"}});
}

std::string ParameterFlags(unsigned flags) {
    return Written(flags, {{PARAMFLAG_FIN, "in"},
                           {PARAMFLAG_FOUT, "out"},
                           {PARAMFLAG_FLCID, "lcid"},
                           {PARAMFLAG_FRETVAL, "retval"},
                           {PARAMFLAG_FOPT, "optional"},
                           {PARAMFLAG_FHASDEFAULT, "default"},
                           {PARAMFLAG_FHASCUSTDATA, "custom"}});
}

std::string ImplementedFlags(int flags) {
    return Written(static_cast<unsigned>(flags), {{IMPLTYPEFLAG_FDEFAULT, "default"},
                                                  {IMPLTYPEFLAG_FSOURCE, "source"},
                                                  {IMPLTYPEFLAG_FRESTRICTED, "restricted"},
                                                  {IMPLTYPEFLAG_FDEFAULTVTABLE, "defaultvtable"}});
}

std::string KindName(TYPEKIND kind) {
    constexpr std::array names = {"enum",     "record",  "module", "interface",
                                  "dispatch", "coclass", "alias",  "union"};
    return names.at(static_cast<std::size_t>(kind));
}

std::string InvokeName(INVOKEKIND kind) {
    switch (kind) {
        case INVOKE_FUNC:
            return "method";
        case INVOKE_PROPERTYGET:
            return "propget";
        case INVOKE_PROPERTYPUT:
            return "propput";
        case INVOKE_PROPERTYPUTREF:
            return "propputref";
    }
    return "?";
}

/// Lists one type description.
class TypeListing {
 public:
    TypeListing(ITypeInfo& info, std::string& text) : info_(info), text_(text) {
        Check(info.GetTypeAttr(&attributes_), "GetTypeAttr");
    }
    TypeListing(const TypeListing&) = delete;
    TypeListing& operator=(const TypeListing&) = delete;
    ~TypeListing() { info_.ReleaseTypeAttr(attributes_); }

    void List(const std::string& heading) {
        Name name;
        Name help;
        Check(info_.GetDocumentation(MEMBERID_NIL, &name, &help, nullptr, nullptr),
              "GetDocumentation");
        text_ += heading + KindName(attributes_->typekind) + " " + name.Utf8() + "\n";
        Line(1, "identifier " + Written(attributes_->guid));
        Line(1, "version " + std::to_string(attributes_->wMajorVerNum) + "." +
                    std::to_string(attributes_->wMinorVerNum));
        Line(1, "flags " + TypeFlags(attributes_->wTypeFlags));
        Help(1, help);
        if (attributes_->typekind == TKIND_ALIAS) {
            Line(1, "stands for " + TypeName(attributes_->tdescAlias));
        }
        for (UINT i = 0; i < attributes_->cImplTypes; ++i) {
            Implemented(i);
        }
        for (UINT i = 0; i < attributes_->cVars; ++i) {
            Variable(i);
        }
        for (UINT i = 0; i < attributes_->cFuncs && Function(i); ++i) {
        }
        ListOtherView();
    }

 private:
    void Line(int depth, const std::string& line) {
        text_ += std::string(2 * static_cast<std::size_t>(depth), ' ') + line + "\n";
    }

    void Help(int depth, const Name& help) {
        if (!help.Utf8().empty()) {
            Line(depth, "help \"" + help.Utf8() + "\"");
        }
    }

    bool IsDispatchViewOfDual() const {
        return attributes_->typekind == TKIND_DISPATCH &&
               (attributes_->wTypeFlags & TYPEFLAG_FDUAL) != 0;
    }

    void ListOtherView() {
        if (!IsDispatchViewOfDual()) {
            return;
        }
        HREFTYPE reference = 0;
        Check(info_.GetRefTypeOfImplType(static_cast<UINT>(-1), &reference),
              "GetRefTypeOfImplType");
        ComPtr<ITypeInfo> other;
        Check(info_.GetRefTypeInfo(reference, &other), "GetRefTypeInfo");
        TypeListing(*other.Get(), text_).List("  as ");
    }

    void Implemented(UINT index) {
        HREFTYPE reference = 0;
        int flags = 0;
        Check(info_.GetRefTypeOfImplType(index, &reference), "GetRefTypeOfImplType");
        Check(info_.GetImplTypeFlags(index, &flags), "GetImplTypeFlags");
        Line(1, "implements " + ReferredName(reference) + ": " + ImplementedFlags(flags));
    }

    void Variable(UINT index) {
        VARDESC* description = nullptr;
        Check(info_.GetVarDesc(index, &description), "GetVarDesc");
        Name name;
        Name help;
        const HRESULT result =
            info_.GetDocumentation(description->memid, &name, &help, nullptr, nullptr);
        if (SUCCEEDED(result) && description->varkind == VAR_CONST) {
            Line(1, "constant " + name.Utf8() + " = " +
                        std::to_string(V_I4(description->lpvarValue)) + " (" +
                        TypeName(description->elemdescVar.tdesc) + ")");
        } else {
            Line(1, "variable " + name.Utf8());
        }
        Help(2, help);
        info_.ReleaseVarDesc(description);
        Check(result, "GetDocumentation");
    }

    /// Returns false if there is no such function. The dispatch view of a dual interface counts the
    /// seven functions of IDispatch, but some platforms do not include them in it.
    bool Function(UINT index) {
        FUNCDESC* found = nullptr;
        const HRESULT result = info_.GetFuncDesc(index, &found);
        if (result == TYPE_E_ELEMENTNOTFOUND && IsDispatchViewOfDual()) {
            return false;
        }
        Check(result, "GetFuncDesc");
        const auto release = [this](FUNCDESC* description) { info_.ReleaseFuncDesc(description); };
        const std::unique_ptr<FUNCDESC, decltype(release)> description(found, release);
        if ((description->wFuncFlags & FUNCFLAG_FRESTRICTED) == 0) {
            Function(*description);
        }
        return true;
    }

    void Function(const FUNCDESC& description) {
        Name help;
        Check(info_.GetDocumentation(description.memid, nullptr, &help, nullptr, nullptr),
              "GetDocumentation");
        std::vector<std::string> names = Names(description);
        std::string line = std::to_string(description.memid) + " " +
                           InvokeName(description.invkind) + " " + names.front() + "(";
        for (std::size_t i = 1; i < names.size(); ++i) {
            const ELEMDESC& parameter = description.lprgelemdescParam[i - 1];
            line += std::string(i == 1 ? "[" : ", [") +
                    ParameterFlags(parameter.paramdesc.wParamFlags) + "] " +
                    TypeName(parameter.tdesc) + (names[i].empty() ? "" : " ") + names[i];
        }
        Line(1, line + "): " + TypeName(description.elemdescFunc.tdesc));
        if (description.wFuncFlags != 0) {
            Line(2, "flags " + FunctionFlags(description.wFuncFlags));
        }
        if (description.funckind == FUNC_PUREVIRTUAL) {
            Line(2, "slot " +
                        std::to_string(static_cast<std::size_t>(description.oVft) / sizeof(void*)));
        }
        if (description.cParamsOpt != 0) {
            Line(2, "optional parameters " + std::to_string(description.cParamsOpt));
        }
        Help(2, help);
    }

    /// Returns the name of the function, then those of its parameters. The value assigned to a
    /// property has none.
    std::vector<std::string> Names(const FUNCDESC& description) {
        const auto count = static_cast<UINT>(description.cParams) + 1;
        std::vector<BSTR> texts(count, nullptr);
        UINT named = 0;
        Check(info_.GetNames(description.memid, texts.data(), count, &named), "GetNames");
        std::vector<std::string> names;
        for (const BSTR text : texts) {
            names.push_back(text == nullptr ? "" : ToUtf8(text, SysStringLen(text)));
            SysFreeString(text);
        }
        if ((description.invkind & (INVOKE_PROPERTYPUT | INVOKE_PROPERTYPUTREF)) != 0) {
            names.back().clear();
        }
        return names;
    }

    /// Returns the name of a type, with the name of its library if that is another one.
    std::string ReferredName(HREFTYPE reference) const {
        ComPtr<ITypeInfo> referred;
        Check(info_.GetRefTypeInfo(reference, &referred), "GetRefTypeInfo");
        Name name;
        Check(referred->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr),
              "GetDocumentation");
        return LibraryPrefix(*referred.Get()) + name.Utf8();
    }

    std::string LibraryPrefix(ITypeInfo& referred) const {
        const std::string own = LibraryName(info_);
        const std::string other = LibraryName(referred);
        return own == other ? "" : other + ".";
    }

    static std::string LibraryName(ITypeInfo& info) {
        ComPtr<ITypeLib> library;
        UINT index = 0;
        Check(info.GetContainingTypeLib(&library, &index), "GetContainingTypeLib");
        Name name;
        Check(library->GetDocumentation(-1, &name, nullptr, nullptr, nullptr), "GetDocumentation");
        return name.Utf8();
    }

    std::string TypeName(const TYPEDESC& type) const {
        switch (type.vt) {
            case VT_PTR:
                return TypeName(*type.lptdesc) + "*";
            case VT_USERDEFINED:
                return ReferredName(type.hreftype);
            case VT_I2:
                return "short";
            case VT_I4:
                return "long";
            case VT_UI4:
                return "unsigned long";
            case VT_R4:
                return "float";
            case VT_R8:
                return "double";
            case VT_BOOL:
                return "boolean";
            case VT_BSTR:
                return "string";
            case VT_VARIANT:
                return "variant";
            case VT_DISPATCH:
                return "IDispatch*";
            case VT_UNKNOWN:
                return "IUnknown*";
            case VT_HRESULT:
                return "HRESULT";
            case VT_VOID:
                return "void";
            case VT_INT:
                return "int";
            default:
                return "type " + std::to_string(type.vt);
        }
    }

    ITypeInfo& info_;
    std::string& text_;
    TYPEATTR* attributes_ = nullptr;
};

void ListLibraryAttributes(ITypeLib& library, std::string& text) {
    Name name;
    Name help;
    Check(library.GetDocumentation(-1, &name, &help, nullptr, nullptr), "GetDocumentation");
    TLIBATTR* attributes = nullptr;
    Check(library.GetLibAttr(&attributes), "GetLibAttr");
    text += "library " + name.Utf8() + "\n  identifier " + Written(attributes->guid) +
            "\n  version " + std::to_string(attributes->wMajorVerNum) + "." +
            std::to_string(attributes->wMinorVerNum) + "\n  locale " +
            std::to_string(attributes->lcid) + "\n  flags " + LibraryFlags(attributes->wLibFlags) +
            "\n  help \"" + help.Utf8() + "\"\n";
    library.ReleaseTLibAttr(attributes);
}

}  // namespace

std::string ListTypeLibrary(const std::wstring& file) {
    ComPtr<ITypeLib> library;
    Check(LoadTypeLibEx(file.c_str(), REGKIND_NONE, &library), "LoadTypeLibEx");
    std::string text;
    ListLibraryAttributes(*library.Get(), text);
    for (UINT i = 0; i < library->GetTypeInfoCount(); ++i) {
        ComPtr<ITypeInfo> info;
        Check(library->GetTypeInfo(i, &info), "GetTypeInfo");
        text += "\n";
        TypeListing(*info.Get(), text).List(std::to_string(i + 1) + " ");
    }
    return text;
}

}  // namespace lumenkit
