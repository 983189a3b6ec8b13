// The module's own type library, a resource of its file.
#pragma once

#include "frame/unique_identifier.h"
#include "runtime/ole/values/ole_header.h"

namespace lumenkit::ole {

/// Raises a ComError if the module has none.
ComPtr<ITypeLib> OwnTypeLibrary();

/// Returns the description of an interface or class in the library.
ComPtr<ITypeInfo> DescriptionOf(const UniqueIdentifier& identifier);

}  // namespace lumenkit::ole
