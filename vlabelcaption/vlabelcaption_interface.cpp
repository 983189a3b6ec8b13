// The automation interface of VLabelCaption, which has no members.
#include <array>
#include <memory>

#include "vlabelcaption/page_layout.h"
#include "vlabelcaption/vlabelcaption.h"

namespace lumenkit {

namespace {

std::unique_ptr<PropertyPage> Create(const PageHost& host) {
    return std::make_unique<VLabelCaption>(host);
}

constexpr std::array fields = {
    PageField{u"Caption", u"txtCaption"},
    PageField{u"BulletPrefix", u"txtBulletPrefix"},
    PageField{u"BulletIndent", u"txtBulletIndent"},
    PageField{u"WordWrap", u"chkWordWrap"},
};

}  // namespace

constexpr InterfaceTable vlabelCaptionInterface = {
    .name = u"_VLabelCaption",
    .members = {},
    .uniqueIdentifier = "57c9cbe6-cffd-4e2c-88e1-0d229685cf41",
};
constexpr ClassDescriptor vlabelCaptionClass = {
    .name = u"VLabelCaption",
    .kind = ClassKind::PropertyPage,
    .interfaceTable = &vlabelCaptionInterface,
    .createPage = &Create,
    .pageWidth = page_layout::pageWidth,
    .pageHeight = page_layout::pageHeight,
    .pageTitle = u"Caption",
    .pageFields = fields,
    .uniqueIdentifier = "4f28929c-658c-4d68-82e8-15be7b4e7328",
};

}  // namespace lumenkit
