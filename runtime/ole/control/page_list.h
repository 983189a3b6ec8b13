#pragma once

#include "runtime/ole/control/control_core.h"
#include "runtime/ole/objects/facet.h"

namespace lumenkit::ole {

class PageList final : public Facet<ISpecifyPropertyPages> {
 public:
    explicit PageList(ControlCore& core) : Facet(core.Controlling()), core_(core) {}

    HRESULT STDMETHODCALLTYPE GetPages(CAUUID* pages) override;

 private:
    ControlCore& core_;
};

}  // namespace lumenkit::ole
