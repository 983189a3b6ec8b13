#include "tests/ole/container/extender.h"

#include <array>

#include "frame/automation/member_binding.h"
#include "runtime/ole/objects/dispatch.h"
#include "tests/ole/container/site.h"

namespace lumenkit::container {

namespace {

// The members, bound to the members of the site.
constexpr std::array moveParameters = {
    Parameter{u"Left", ValueType::Variant, false},
    Parameter{u"Top", ValueType::Variant, false},
    Parameter{u"Width", ValueType::Variant, false},
    Parameter{u"Height", ValueType::Variant, false},
};

constexpr std::array members = {
    ReadOnlyProperty<&Site::Name>(1, u"Name", u""),
    Property<&Site::Tag, &Site::SetTag>(2, u"Tag", u""),
    ReadOnlyProperty<&Site::Left>(3, u"Left", u""),
    ReadOnlyProperty<&Site::Top>(4, u"Top", u""),
    ReadOnlyProperty<&Site::Width>(5, u"Width", u""),
    ReadOnlyProperty<&Site::Height>(6, u"Height", u""),
    ReadOnlyProperty<&Site::Visible>(7, u"Visible", u""),
    Method<&Site::Move>(8, u"Move", u"", moveParameters),
};

constexpr InterfaceTable table = {.name = u"Extender", .members = members};

}  // namespace

Extender::Extender(Site& site) : Counted(IID_IDispatch), members_(table, &site) {}

HRESULT Extender::GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID /*locale*/,
                                DISPID* found) {
    return ole::FindIdentifiers(table, iid, names, count, found);
}

HRESULT Extender::Invoke(DISPID identifier, REFIID /*iid*/, LCID /*locale*/, WORD flags,
                         DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                         UINT* wrong) {
    return ole::InvokeMember(table, members_,
                             {identifier, flags, parameters, result, exception, wrong});
}

}  // namespace lumenkit::container
