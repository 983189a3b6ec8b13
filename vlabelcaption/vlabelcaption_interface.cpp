#include "vlabelcaption/vlabelcaption_interface.h"

#include <memory>

#include "vlabelcaption/page_layout.h"
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
    .pageWidth = page_layout::pageWidth,
    .pageHeight = page_layout::pageHeight,
};

}  // namespace lumenkit
