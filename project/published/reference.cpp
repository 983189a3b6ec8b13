#include "project/published/reference.h"

#include <algorithm>
#include <stdexcept>
#include <string_view>
#include <vector>

#include "frame/utf8.h"
#include "project/published/idl_text.h"
#include "project/published/markdown.h"

namespace lumenkit {

namespace {

using markdown::Code;
using markdown::Head;
using markdown::Plain;
using markdown::Row;

class ReferenceWriter {
 public:
    ReferenceWriter(const ClassTable& classes, const ClassDescriptor& type)
        : classes_(classes), type_(type) {}

    std::string Write(const std::string& prose) {
        text_ +=
            "<!-- Generated from the interface tables by write_published. Edit the tables instead. "
            "-->\n";
        text_ += "# " + ToUtf8(type_.name) + " reference\n\n";
        text_ += "This page lists the interfaces of the class. [" + prose + "](../" + prose +
                 ") describes its behaviour.\n";
        Identity();
        Members();
        Events();
        Enumerations();
        return text_;
    }

 private:
    void Heading(std::string_view heading) {
        text_ += "\n## ";
        text_ += heading;
        text_ += "\n";
    }

    void Identity() {
        const std::string library = ToUtf8(classes_.libraryName);
        const bool isPage = type_.kind == ClassKind::PropertyPage;
        text_ += "\n" + Head({"", "name", "identifier"});
        text_ +=
            Row({isPage ? "property page" : "control", Code(library + "." + ToUtf8(type_.name)),
                 Code(ToString(type_.uniqueIdentifier))});
        text_ += Row({"interface", Code(ToUtf8(type_.interfaceTable->name)),
                      Code(ToString(type_.interfaceTable->uniqueIdentifier))});
        if (!type_.alias.name.empty()) {
            text_ += Row({"alias of the interface", Code(ToUtf8(type_.alias.name)),
                          Code(ToString(type_.alias.uniqueIdentifier))});
        }
        if (type_.eventTable != nullptr) {
            text_ += Row({"event interface", Code(ToUtf8(type_.eventTable->name)),
                          Code(ToString(type_.eventTable->uniqueIdentifier))});
        }
        text_ += Row({"type library",
                      Code(library) + " " + std::to_string(classes_.majorVersion) + "." +
                          std::to_string(classes_.minorVersion),
                      Code(ToString(classes_.uniqueIdentifier))});
        Page();
    }

    // Writes which properties the property page of the control edits.
    void Page() {
        if (type_.propertyPage.empty()) {
            return;
        }
        std::vector<std::string> edited;
        for (const TextView name : type_.pageProperties) {
            edited.push_back(Code(ToUtf8(name)));
        }
        text_ += "\nThe property page " + Code(ToUtf8(type_.propertyPage)) + " edits " +
                 idl::Listed(edited) + ".\n";
    }

    void Members() {
        Heading("Members");
        const std::span<const Member> members = type_.interfaceTable->members;
        if (members.empty()) {
            text_ += "The interface has no members except those of `IDispatch`.\n";
            return;
        }
        text_ +=
            "Integer is a 16-bit integer, Long a 32-bit integer and Single a 32-bit floating-point "
            "number. `get` reads the property, `let` assigns a value, `set` assigns an object.\n\n";
        text_ += Head({"member", "kind", "type", "identifier", "access", "flags", "help string"});
        for (const Member& member : members) {
            text_ += Row({Signature(member.name, member.parameters),
                          member.kind == MemberKind::Method ? "method" : "property",
                          Plain(FromUtf8(TypeName(member.type))), std::to_string(member.identifier),
                          Access(member), Flags(member), Plain(member.help)});
        }
    }

    void Events() {
        if (type_.eventTable == nullptr) {
            return;
        }
        Heading("Events");
        text_ += Head({"event", "identifier", "help string"});
        for (const Event& event : type_.eventTable->events) {
            text_ += Row({Signature(event.name, event.parameters), std::to_string(event.identifier),
                          Plain(event.help)});
        }
    }

    void Enumerations() {
        if (classes_.enumerations == nullptr) {
            return;
        }
        for (const EnumerationTable& enumeration : classes_.enumerations->enumerations) {
            const auto takesIt = [&enumeration](const Member& member) {
                return member.type == enumeration.type;
            };
            if (std::ranges::any_of(type_.interfaceTable->members, takesIt)) {
                Enumeration(enumeration);
            }
        }
    }

    void Enumeration(const EnumerationTable& enumeration) {
        Heading(ToUtf8(enumeration.name));
        text_ += Plain(enumeration.help) + ". This enumeration is defined in the type library " +
                 Code(ToUtf8(classes_.enumerations->name)) + ".\n\n";
        text_ += Head({"member", "value"});
        for (const EnumerationMember& member : enumeration.members) {
            text_ += Row({Code(ToUtf8(member.name)), std::to_string(member.value)});
        }
    }

    std::string Signature(TextView name, std::span<const Parameter> parameters) const {
        std::vector<std::string> written;
        for (const Parameter& parameter : parameters) {
            written.push_back((parameter.byReference ? "ByRef " : "ByVal ") +
                              ToUtf8(parameter.name) + " As " + TypeName(parameter.type));
        }
        const std::string list = parameters.empty() ? "" : "(" + idl::Listed(written) + ")";
        return Code(ToUtf8(name) + list);
    }

    std::string TypeName(ValueType type) const {
        return IsEnumeration(type) ? ToUtf8(classes_.enumerations->Find(type)->name)
                                   : Describe(type).name;
    }

    static std::string Access(const Member& member) {
        std::vector<std::string> access;
        if (member.read != nullptr) {
            access.emplace_back("get");
        }
        if (member.assign != nullptr) {
            access.emplace_back(member.assignment == Assignment::Set ? "set" : "let");
        }
        return idl::Listed(access);
    }

    static std::string Flags(const Member& member) {
        std::vector<std::string> flags;
        const auto add = [&flags](bool isSet, const char* flag) {
            if (isSet) {
                flags.emplace_back(flag);
            }
        };
        add(member.identifier == defaultMember, "default member");
        add(member.flags.bindable, "bindable");
        add(member.flags.requestsEdit, "requests edit");
        add(member.flags.defaultBind, "default bind");
        add(member.flags.hiddenFromBrowser, "hidden from property browsers");
        return idl::Listed(flags);
    }

    const ClassTable& classes_;
    const ClassDescriptor& type_;
    std::string text_;
};

}  // namespace

std::string WriteReference(const ClassTable& classes, const ReferencePage& page) {
    const auto found = std::ranges::find(classes.classes, page.className, &ClassDescriptor::name);
    if (found == classes.classes.end()) {
        throw std::invalid_argument("there is no class " + ToUtf8(page.className));
    }
    return ReferenceWriter(classes, *found).Write(page.prose);
}

}  // namespace lumenkit
