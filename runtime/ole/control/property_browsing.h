#pragma once

#include "runtime/ole/control/control_core.h"
#include "runtime/ole/objects/facet.h"

namespace lumenkit::ole {

/// Serves property browsers: names the members of enumerations and the page of a property.
class PropertyBrowsing final : public HeldFacet<IPerPropertyBrowsing> {
 public:
    explicit PropertyBrowsing(ControlCore& core)
        : HeldFacet(core.Controlling(), core.GetLife()), core_(core) {}

    HRESULT STDMETHODCALLTYPE GetDisplayString(DISPID property, BSTR* text) override;
    HRESULT STDMETHODCALLTYPE MapPropertyToPage(DISPID property, CLSID* page) override;
    HRESULT STDMETHODCALLTYPE GetPredefinedStrings(DISPID property, CALPOLESTR* texts,
                                                   CADWORD* cookies) override;
    HRESULT STDMETHODCALLTYPE GetPredefinedValue(DISPID property, DWORD cookie,
                                                 VARIANT* value) override;

 private:
    /// Returns the enumeration whose members the property takes, or null for other properties.
    /// Raises a ComError if `property` is not a property.
    const EnumerationTable* EnumerationOf(DISPID property) const;

    ControlCore& core_;
};

}  // namespace lumenkit::ole
