#include "vlabelcaption/vlabelcaption_interface.h"

#include <memory>

#include "vlabelcaption/vlabelcaption.h"

namespace lumenkit {

namespace {

std::unique_ptr<PropertyPage> Create(const PageHost& host) {
    return std::make_unique<VLabelCaption>(host);
}

}  // namespace

constexpr InterfaceTable vlabelCaptionInterface = {u"_VLabelCaption", {}};
constexpr ClassDescriptor vlabelCaptionClass = {
    .name = u"VLabelCaption",
    .kind = ClassKind::PropertyPage,
    .interfaceTable = &vlabelCaptionInterface,
    .createPage = &Create,
};

}  // namespace lumenkit
