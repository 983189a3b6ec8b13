// What a component consists of: its classes, as data, with the functions that create them.
#pragma once

#include <cstdint>
#include <memory>
#include <span>

#include "frame/automation/interface_table.h"
#include "frame/control.h"
#include "frame/text.h"

namespace lumenkit {

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
};

/// The project descriptor: what the server's entries hand to a control runtime.
struct ClassTable {
    TextView libraryName;  ///< "lumenkit"
    std::span<const ClassDescriptor> classes;

    /// The class with this programmatic identifier, "library.class", without regard to case; null
    /// when there is none.
    const ClassDescriptor* Find(TextView programmaticIdentifier) const;
};

}  // namespace lumenkit
