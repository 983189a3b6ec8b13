#include "apps/lumenkit/check/fix/caption_holder.h"

#include <algorithm>
#include <string_view>
#include <variant>

#include "apps/lumenkit/check/file_checks.h"
#include "forms/literal.h"
#include "frame/utf8.h"

namespace lumenkit::check {

namespace {

constexpr TextView captionName = u"Caption";

constexpr std::string_view labels =
    "VERSION 5.00\n"
    "Begin VB.Form F\n"
    "Begin lumenkit.VLabel Wide\n"
    "Width = 9000\n"
    "End\n"
    "Begin lumenkit.VLabel Narrow\n"
    "Width = 1500\n"
    "WordWrap = -1\n"
    "End\n"
    "Begin lumenkit.VLabel Bold\n"
    "BulletIndent = 300\n"
    "BulletPrefix = \"* \"\n"
    "BeginProperty Font\n"
    "Name = \"Arial\"\n"
    "Weight = 700\n"
    "EndProperty\n"
    "End\n"
    "End\n";

}  // namespace

SavedCaption::SavedCaption(const forms::Document& document, forms::Block& block,
                           const ClassDescriptor& type, forms::Property& property,
                           const forms::Property& first)
    : document_(document),
      block_(block),
      type_(type),
      property_(property),
      first_(first),
      firstText_(document.TextOf(first)) {}

void SavedCaption::Set(TextView caption) {
    forms::Property changed = first_;
    if (caption != firstText_) {
        const bool isInForm = std::holds_alternative<Text>(first_.Literal());
        changed.Replace(isInForm ? forms::Literal(Text(caption)) : forms::TextLiteral(caption));
    }
    block_.Replace(property_, std::move(changed));
}

std::string SavedCaption::Property() const {
    return ToUtf8(property_.Name());
}

Findings SavedCaption::Check() const {
    return CheckOneControl(document_, block_, type_);
}

DrawnControl SavedCaption::Drawn() const {
    return Draw(document_, block_, type_, {Text(captionName)});
}

LooseCaption::LooseCaption(TextView caption, const ClassTable& classes)
    : caption_(caption),
      document_(forms::Document::Parse("caption", labels, {})),
      labels_(document_.Root().Controls()),
      type_(*classes.Find(labels_.front()->ClassName())) {
    Set(caption);
}

void LooseCaption::Set(TextView caption) {
    caption_ = caption;
    for (forms::Block* const label : labels_) {
        label->Set(captionName, forms::CompanionText{caption_});
    }
}

Findings LooseCaption::Check() const {
    return CheckOneControl(document_, *labels_.front(), type_);
}

DrawnControl LooseCaption::Drawn() const {
    DrawnControl drawn;
    for (forms::Block* const label : labels_) {
        drawn += Draw(document_, *label, type_, {Text(captionName)});
    }
    return drawn;
}

}  // namespace lumenkit::check
