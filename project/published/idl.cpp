#include "project/published/idl.h"

#include <cstdint>
#include <string_view>
#include <vector>

#include "frame/utf8.h"
#include "project/published/idl_text.h"

// The output follows three rules:
// - A type library stores each name once, regardless of case, in the spelling of its first
//   occurrence. The parameter names that the writer adds therefore differ from all member names.
// - Types of other libraries are declared before their first use. The compiler replaces such a
//   declaration by a reference to the library that defines the identifier.
// - The first interface is a dual interface, before any event interface. Otherwise the compiler
//   (widl 10) writes a wrong identifier for the library.

namespace lumenkit {

namespace {

using idl::Attributes;

constexpr std::string_view indent = "    ";
constexpr std::string_view resultName = "result";
constexpr std::string_view newValueName = "newValue";

std::string Uuid(const UniqueIdentifier& identifier) {
    return "uuid(" + ToString(identifier) + ")";
}

std::string Version(int majorVersion, int minorVersion) {
    return "version(" + std::to_string(majorVersion) + "." + std::to_string(minorVersion) + ")";
}

std::string Locale(std::uint32_t number) {
    return "lcid(" + std::to_string(number) + ")";
}

std::string Name(TextView name) {
    return ToUtf8(name);
}

class ClassLibraryWriter {
 public:
    explicit ClassLibraryWriter(const ClassTable& classes) : classes_(classes) {}

    std::string Write() {
        Prelude();
        Line("");
        Line(Attributes()
                 .Add(Uuid(classes_.uniqueIdentifier))
                 .Add(Version(classes_.majorVersion, classes_.minorVersion))
                 .Add(Locale(classes_.locale))
                 .Add("control")
                 .AddHelp(classes_.help)
                 .Written());
        Line("library " + Name(classes_.libraryName) + " {");
        Line("importlib(\"stdole2.tlb\");");
        if (classes_.enumerations != nullptr) {
            Line("importlib(\"" + std::string(enumerationsTypeLibraryFile) + "\");");
        }
        for (const ClassDescriptor& type : classes_.classes) {
            Interface(*type.interfaceTable);
            Class(type);
            if (type.eventTable != nullptr) {
                Events(*type.eventTable);
            }
            Alias(type);
        }
        Line("}");
        return text_;
    }

 private:
    void Line(std::string_view line) {
        text_ += line;
        text_ += '\n';
    }

    void Prelude() {
        Line("// Generated from the interface tables by write_published. Edit the tables instead.");
        Line("import \"oaidl.idl\";");
        if (classes_.enumerations != nullptr) {
            Line("import \"" + std::string(enumerationsIdlFile) + "\";");
        }
        Line("");
        Line("// Types that stdole2.tlb defines.");
        Line("[uuid(bef6e003-a874-101a-8bba-00aa00300cab)]");
        Line("dispinterface Font {");
        Line("properties:");
        Line("methods:");
        Line("}");
        Line("typedef [uuid(66504301-be0f-101a-8bbb-00aa00300cab)] DWORD OLE_COLOR;");
    }

    std::string TypeName(ValueType type) const {
        return IsEnumeration(type) ? Name(classes_.enumerations->Find(type)->name)
                                   : Describe(type).definitionName;
    }

    std::string Written(const Parameter& parameter) const {
        return (parameter.byReference ? "[in, out] " : "[in] ") + TypeName(parameter.type) +
               (parameter.byReference ? "* " : " ") + Name(parameter.name);
    }

    std::vector<std::string> Written(std::span<const Parameter> parameters) const {
        std::vector<std::string> written;
        for (const Parameter& parameter : parameters) {
            written.push_back(Written(parameter));
        }
        return written;
    }

    void Interface(const InterfaceTable& table) {
        Line("");
        Line(Attributes()
                 .Add("odl")
                 .Add(Uuid(table.uniqueIdentifier))
                 .Add("hidden")
                 .Add("dual")
                 .Add("nonextensible")
                 .Add("oleautomation")
                 .Written());
        Line("interface " + Name(table.name) + " : IDispatch {");
        for (const Member& member : table.members) {
            if (member.kind == MemberKind::Method) {
                Function(member, "", Result(member));
            }
            if (member.read != nullptr) {
                Function(member, "propget", Result(member));
            }
            if (member.assign != nullptr) {
                Function(member, member.assignment == Assignment::Set ? "propputref" : "propput",
                         "[in] " + TypeName(member.type) + " " + std::string(newValueName));
            }
        }
        Line("}");
    }

    std::string Result(const Member& member) const {
        return member.type == ValueType::None
                   ? ""
                   : "[out, retval] " + TypeName(member.type) + "* " + std::string(resultName);
    }

    void Function(const Member& member, std::string_view kind, const std::string& lastParameter) {
        std::vector<std::string> parameters = Written(member.parameters);
        if (!lastParameter.empty()) {
            parameters.push_back(lastParameter);
        }
        const std::string attributes = Attributes()
                                           .Add("id(" + std::to_string(member.identifier) + ")")
                                           .AddIf(!kind.empty(), kind)
                                           .AddIf(member.flags.bindable, "bindable")
                                           .AddIf(member.flags.requestsEdit, "requestedit")
                                           .AddIf(member.flags.defaultBind, "defaultbind")
                                           .AddIf(member.flags.hiddenFromBrowser, "nonbrowsable")
                                           .AddHelp(member.help)
                                           .Written();
        Line(std::string(indent) + attributes);
        Line(std::string(indent) + "HRESULT " + Name(member.name) + "(" + idl::Listed(parameters) +
             ");");
    }

    void Class(const ClassDescriptor& type) {
        Line("");
        Line(Attributes()
                 .Add(Uuid(type.uniqueIdentifier))
                 .AddIf(type.kind == ClassKind::Control, "control")
                 .Written());
        Line("coclass " + Name(type.name) + " {");
        Line(std::string(indent) + "[default] interface " + Name(type.interfaceTable->name) + ";");
        if (type.eventTable != nullptr) {
            Line(std::string(indent) + "[default, source] dispinterface " +
                 Name(type.eventTable->name) + ";");
        }
        Line("}");
    }

    void Alias(const ClassDescriptor& type) {
        if (type.alias.name.empty()) {
            return;
        }
        Line("");
        Line("typedef " +
             Attributes()
                 .Add(Uuid(type.alias.uniqueIdentifier))
                 .Add("hidden")
                 .Add("public")
                 .Written() +
             " " + Name(type.interfaceTable->name) + " " + Name(type.alias.name) + ";");
    }

    void Events(const EventTable& table) {
        Line("");
        Line(Attributes()
                 .Add(Uuid(table.uniqueIdentifier))
                 .Add("hidden")

                 .Written());
        Line("dispinterface " + Name(table.name) + " {");
        Line("properties:");
        Line("methods:");
        for (const Event& event : table.events) {
            Line(std::string(indent) + Attributes()
                                           .Add("id(" + std::to_string(event.identifier) + ")")
                                           .AddHelp(event.help)
                                           .Written());
            Line(std::string(indent) + "void " + Name(event.name) + "(" +
                 idl::Listed(Written(event.parameters)) + ");");
        }
        Line("}");
    }

    const ClassTable& classes_;
    std::string text_;
};

}  // namespace

std::string WriteIdl(const ClassTable& classes) {
    return ClassLibraryWriter(classes).Write();
}

std::string WriteIdl(const EnumerationLibrary& library) {
    std::string text =
        "// Generated from the enumeration tables by write_published. Edit the tables instead.\n";
    text += Attributes()
                .Add(Uuid(library.uniqueIdentifier))
                .Add(Version(library.majorVersion, library.minorVersion))
                .Add(Locale(library.locale))
                .AddHelp(library.help)
                .Written();
    text += "\nlibrary " + Name(library.name) + " {\n";
    for (const EnumerationTable& enumeration : library.enumerations) {
        text += "\ntypedef " +
                Attributes()
                    .Add(Uuid(enumeration.uniqueIdentifier))
                    .AddHelp(enumeration.help)
                    .Written() +
                " enum " + Name(enumeration.name) + " {\n";
        for (const EnumerationMember& member : enumeration.members) {
            text += std::string(indent) + Name(member.name) + " = " + std::to_string(member.value) +
                    ",\n";
        }
        text += "} " + Name(enumeration.name) + ";\n";
    }
    return text + "}\n";
}

}  // namespace lumenkit
