#include "runtime/ole/page_list.h"

#include "runtime/ole/identifiers.h"
#include "runtime/ole/property_page_of.h"
#include "runtime/ole/result.h"
#include "runtime/ole/task_memory.h"

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
