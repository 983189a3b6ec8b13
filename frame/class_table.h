// Describes a component as data: its classes and the functions that create them.
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

/// A hidden second name for a class's default interface, for clients that were built with that
/// name.
struct InterfaceAlias {
    TextView name;  ///< empty when the class has no alias
    UniqueIdentifier uniqueIdentifier;
};

/// Where a property page edits a property of the selected control.
struct PageField {
    TextView property;
    TextView constituent;
};

enum class ClassKind { Control, PropertyPage };

struct ClassDescriptor {
    TextView name;  ///< "VLabel"
    ClassKind kind = ClassKind::Control;
    const InterfaceTable* interfaceTable = nullptr;  ///< never null
    const EventTable* eventTable = nullptr;          ///< null when the class raises no events
    /// Set for a control. The host must outlive the control that is created.
    std::unique_ptr<Control> (*createControl)(const ControlHost& host) = nullptr;
    /// Set for a property page. The host must outlive the page that is created.
    std::unique_ptr<PropertyPage> (*createPage)(const PageHost& host) = nullptr;
    /// Size of a property page, in twips.
    float pageWidth = 0;
    float pageHeight = 0;
    TextView pageTitle = {};                     ///< caption of the page's tab in the host
    std::span<const PageField> pageFields = {};  ///< the properties that the page edits
    UniqueIdentifier uniqueIdentifier = {};      ///< null when the class is not published
    InterfaceAlias alias = {};
    /// Number of the bitmap resource that a designer's toolbox shows for the class; 0 for none.
    std::uint16_t toolboxBitmap = 0;
    /// Name of the property page that edits a control, a class of the same table; empty for none.
    TextView propertyPage = {};
    std::span<const TextView> pageProperties = {};  ///< names of the properties that the page edits
};

/// The project descriptor, which the server's entry points pass to a control runtime.
struct ClassTable {
    TextView libraryName;  ///< "lumenkit"
    std::span<const ClassDescriptor> classes;
    // The type library that publishes the classes.
    UniqueIdentifier uniqueIdentifier = {};
    std::uint16_t majorVersion = 0;
    std::uint16_t minorVersion = 0;
    std::uint32_t locale = 0;  ///< the platform's language number: 1033 is English
    TextView help = {};
    /// The type library of the enumerations that the interfaces use; null when they use none.
    const EnumerationLibrary* enumerations = nullptr;

    /// Returns the class with this programmatic identifier, "library.class", compared without
    /// regard to case; null when there is none.
    const ClassDescriptor* Find(TextView programmaticIdentifier) const;
};

}  // namespace lumenkit
