// What a component consists of: its classes, as data, with the functions that create them.
#pragma once

#include <cstdint>
#include <memory>
#include <span>

#include "frame/automation/interface_table.h"
#include "frame/automation/runtime_enumerations.h"
#include "frame/control.h"
#include "frame/text.h"
#include "frame/unique_identifier.h"

namespace lumenkit {

/// Another name for a class's default interface, hidden, kept for clients that were built with it.
struct InterfaceAlias {
    TextView name;  ///< empty: the class has none
    UniqueIdentifier uniqueIdentifier;
};

enum class ClassKind { Control, PropertyPage };

struct ClassDescriptor {
    TextView name;  ///< "VLabel"
    ClassKind kind = ClassKind::Control;
    const InterfaceTable* interfaceTable = nullptr;  ///< never null
    const EventTable* eventTable = nullptr;          ///< null where the class raises no events
    /// Set for a control. The host must outlive what is made.
    std::unique_ptr<Control> (*createControl)(const ControlHost& host) = nullptr;
    /// Set for a property page.
    std::unique_ptr<PropertyPage> (*createPage)(const PageHost& host) = nullptr;
    /// How large a property page is laid out, in twips.
    float pageWidth = 0;
    float pageHeight = 0;
    TextView pageTitle = {};                 ///< of a property page, for the host's tabs
    UniqueIdentifier uniqueIdentifier = {};  ///< null where the class is not published
    InterfaceAlias alias = {};
    /// Number of the bitmap resource that stands for the class in a designer's toolbox; 0: none.
    std::uint16_t toolboxBitmap = 0;
    /// The property page that edits a control: the name of a class of the same table; empty: none.
    TextView propertyPage = {};
    std::span<const TextView> pageProperties = {};  ///< the names of those that it edits
};

/// The project descriptor: what the server's entries hand to a control runtime.
struct ClassTable {
    TextView libraryName;  ///< "lumenkit"
    std::span<const ClassDescriptor> classes;
    // Of the type library that publishes the classes.
    UniqueIdentifier uniqueIdentifier = {};
    std::uint16_t majorVersion = 0;
    std::uint16_t minorVersion = 0;
    std::uint32_t locale = 0;  ///< the platform's number of a language: 1033 is English
    TextView help = {};
    /// The type library beside it, whose enumerations its interfaces use; null where they use none.
    const EnumerationLibrary* enumerations = nullptr;

    /// The class with this programmatic identifier, "library.class", without regard to case; null
    /// when there is none.
    const ClassDescriptor* Find(TextView programmaticIdentifier) const;
};

}  // namespace lumenkit
