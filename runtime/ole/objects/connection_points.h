#pragma once

#include "runtime/ole/objects/connection_point.h"
#include "runtime/ole/objects/facet.h"

namespace lumenkit::ole {

/// The outgoing interfaces of a control: its events and its property notifications.
class ConnectionPoints final : public Facet<IConnectionPointContainer> {
 public:
    ConnectionPoints(IUnknown& controlling, REFIID eventInterface)
        : Facet(controlling),
          events_(*this, eventInterface, IID_IDispatch),
          properties_(*this, IID_IPropertyNotifySink) {}

    ConnectionPoint& Events() { return events_; }
    ConnectionPoint& Properties() { return properties_; }

    HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints** points) override;
    HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID interfaceId,
                                                  IConnectionPoint** point) override;

 private:
    ConnectionPoint events_;
    ConnectionPoint properties_;
};

}  // namespace lumenkit::ole
