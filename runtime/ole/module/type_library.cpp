#include "runtime/ole/module/type_library.h"

#include "runtime/ole/module/identifiers.h"
#include "runtime/ole/module/module_file.h"
#include "runtime/ole/values/result.h"

namespace lumenkit::ole {

ComPtr<ITypeLib> OwnTypeLibrary() {
    ComPtr<ITypeLib> library;
    Check(LoadTypeLibEx(OwnPath().c_str(), REGKIND_NONE, &library));
    return library;
}

ComPtr<ITypeInfo> DescriptionOf(const UniqueIdentifier& identifier) {
    ComPtr<ITypeInfo> information;
    Check(OwnTypeLibrary()->GetTypeInfoOfGuid(GuidOf(identifier), &information));
    return information;
}

}  // namespace lumenkit::ole
