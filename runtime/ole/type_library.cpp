#include "runtime/ole/type_library.h"

#include "runtime/ole/identifiers.h"
#include "runtime/ole/module_file.h"
#include "runtime/ole/result.h"
#include "runtime/win32/wide_text.h"

namespace lumenkit::ole {

ComPtr<ITypeLib> OwnTypeLibrary() {
    ComPtr<ITypeLib> library;
    Check(LoadTypeLibEx(win32::AsWide(ModulePath().c_str()), REGKIND_NONE, &library));
    return library;
}

ComPtr<ITypeInfo> DescriptionOf(const UniqueIdentifier& identifier) {
    ComPtr<ITypeInfo> information;
    Check(OwnTypeLibrary()->GetTypeInfoOfGuid(GuidOf(identifier), &information));
    return information;
}

}  // namespace lumenkit::ole
