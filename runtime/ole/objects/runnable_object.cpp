#include "runtime/ole/objects/runnable_object.h"

#include "runtime/ole/module/identifiers.h"
#include "runtime/ole/values/result.h"

namespace lumenkit::ole {

HRESULT RunnableObject::GetRunningClass(CLSID* classId) {
    return Guarded([&] { Checked(classId) = GuidOf(type_.uniqueIdentifier); });
}

}  // namespace lumenkit::ole
