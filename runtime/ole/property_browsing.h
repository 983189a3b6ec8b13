#pragma once

#include "runtime/ole/control_core.h"
#include "runtime/ole/held_facet.h"

namespace lumenkit::ole {

/// Helps a property browser: the members of enumerations by name, the page of a property.
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
    /// The enumeration whose members the property takes; null for other properties. Raises a
    /// ComError for what is no property.
    const EnumerationTable* EnumerationOf(DISPID property) const;

    ControlCore& core_;
};

}  // namespace lumenkit::ole
