#include "runtime/ole/runnable_object.h"

#include "runtime/ole/identifiers.h"
#include "runtime/ole/result.h"

namespace lumenkit::ole {

HRESULT RunnableObject::GetRunningClass(CLSID* classId) {
    return Guarded([&] { Checked(classId) = GuidOf(type_.uniqueIdentifier); });
}

}  // namespace lumenkit::ole
