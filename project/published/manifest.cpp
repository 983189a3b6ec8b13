#include "project/published/manifest.h"

#include <cstdint>
#include <string_view>

#include "frame/utf8.h"
#include "project/published/idl.h"

namespace lumenkit {

namespace {

// Marshalers of Windows that carry calls to a dual or a dispatch interface between threads.
constexpr std::string_view dualMarshaler = "{00020424-0000-0000-c000-000000000046}";
constexpr std::string_view dispatchMarshaler = "{00020420-0000-0000-c000-000000000046}";

std::string Braced(const UniqueIdentifier& identifier) {
    return "{" + ToString(identifier) + "}";
}

std::string Attribute(std::string_view name, std::string_view value) {
    std::string text = " ";
    text += name;
    text += "=\"";
    text += value;
    return text + "\"";
}

class ManifestWriter {
 public:
    ManifestWriter(const ClassTable& classes, const std::string& serverFile)
        : classes_(classes), serverFile_(serverFile) {}

    std::string Write() {
        text_ =
            "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
            "<!-- Generated from the interface tables by write_published. Edit the tables instead. "
            "-->\n"
            "<assembly xmlns=\"urn:schemas-microsoft-com:asm.v1\" manifestVersion=\"1.0\">\n";
        text_ +=
            "  <assemblyIdentity" + Attribute("type", "win32") +
            Attribute("name", ToUtf8(classes_.libraryName)) +
            Attribute("version", Version(classes_.majorVersion, classes_.minorVersion) + ".0.0") +
            "/>\n";
        text_ += "  <file" + Attribute("name", serverFile_) + ">\n";
        for (const ClassDescriptor& type : classes_.classes) {
            Class(type);
        }
        TypeLibrary(classes_.uniqueIdentifier, classes_.majorVersion, classes_.minorVersion);
        text_ += "  </file>\n";
        if (const EnumerationLibrary* library = classes_.enumerations) {
            // Not all loaders find a second type library in the server, so it is a separate file.
            text_ += "  <file" + Attribute("name", enumerationsTypeLibraryFile) + ">\n";
            TypeLibrary(library->uniqueIdentifier, library->majorVersion, library->minorVersion);
            text_ += "  </file>\n";
        }
        for (const ClassDescriptor& type : classes_.classes) {
            Interface(type.interfaceTable->name, type.interfaceTable->uniqueIdentifier,
                      dualMarshaler);
            if (type.eventTable != nullptr) {
                Interface(type.eventTable->name, type.eventTable->uniqueIdentifier,
                          dispatchMarshaler);
            }
        }
        return text_ + "</assembly>\n";
    }

 private:
    static std::string Version(std::uint16_t majorVersion, std::uint16_t minorVersion) {
        return std::to_string(majorVersion) + "." + std::to_string(minorVersion);
    }

    void Class(const ClassDescriptor& type) {
        text_ += "    <comClass" + Attribute("clsid", Braced(type.uniqueIdentifier)) +
                 Attribute("progid", ToUtf8(classes_.libraryName) + "." + ToUtf8(type.name)) +
                 Attribute("tlbid", Braced(classes_.uniqueIdentifier)) +
                 Attribute("threadingModel", "Apartment");
        if (type.kind == ClassKind::Control) {
            text_ += Attribute("miscStatus",
                               "recomposeonresize,cantlinkinside,insideout,activatewhenvisible,"
                               "setclientsitefirst");
        }
        text_ += "/>\n";
    }

    void TypeLibrary(const UniqueIdentifier& identifier, std::uint16_t majorVersion,
                     std::uint16_t minorVersion) {
        text_ += "    <typelib" + Attribute("tlbid", Braced(identifier)) +
                 Attribute("version", Version(majorVersion, minorVersion)) +
                 Attribute("helpdir", "") + "/>\n";
    }

    void Interface(TextView name, const UniqueIdentifier& identifier, std::string_view marshaler) {
        text_ += "  <comInterfaceExternalProxyStub" + Attribute("name", ToUtf8(name)) +
                 Attribute("iid", Braced(identifier)) +
                 Attribute("tlbid", Braced(classes_.uniqueIdentifier)) +
                 Attribute("proxyStubClsid32", marshaler) + "/>\n";
    }

    const ClassTable& classes_;
    const std::string& serverFile_;
    std::string text_;
};

}  // namespace

std::string WriteManifest(const ClassTable& classes, const std::string& serverFile) {
    return ManifestWriter(classes, serverFile).Write();
}

}  // namespace lumenkit
