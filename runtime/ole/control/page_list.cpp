#include "runtime/ole/control/page_list.h"

#include "runtime/ole/module/identifiers.h"
#include "runtime/ole/module/property_page_of.h"
#include "runtime/ole/values/result.h"
#include "runtime/ole/values/task_memory.h"

namespace lumenkit::ole {

HRESULT PageList::GetPages(CAUUID* pages) {
    return Guarded([&] {
        Checked(pages) = {};
        const ClassDescriptor* page = PropertyPageOf(core_.GetComponent().Classes(), core_.Type());
        if (page != nullptr) {
            pages->pElems = static_cast<GUID*>(NewTaskMemory(sizeof(GUID)));
            pages->pElems[0] = GuidOf(page->uniqueIdentifier);
            pages->cElems = 1;
        }
    });
}

}  // namespace lumenkit::ole
