// The module's own type library, a resource of its file.
#pragma once

#include "frame/unique_identifier.h"
#include "runtime/ole/ole_header.h"

namespace lumenkit::ole {

/// Raises a ComError when the module has none.
ComPtr<ITypeLib> OwnTypeLibrary();

/// The description of an interface or class in it.
ComPtr<ITypeInfo> DescriptionOf(const UniqueIdentifier& identifier);

}  // namespace lumenkit::ole
