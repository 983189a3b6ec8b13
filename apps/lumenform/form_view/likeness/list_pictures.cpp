#include "apps/lumenform/form_view/likeness/list_pictures.h"

#include <vector>

#include "apps/lumenform/form_view/companion_records.h"
#include "apps/lumenform/form_view/likeness/item_groups.h"
#include "forms/controls.h"

namespace lumenkit::lumenform {

namespace {

forms::Block* FindControl(const forms::Document& document, TextView name) {
    for (forms::Block* control : forms::AllControls(document.Root())) {
        if (SameText(forms::NameInCode(*control), name, Compare::IgnoreCase)) {
            return control;
        }
    }
    return nullptr;
}

}  // namespace

ListPictures::ListPictures(const BlockReader& control) {
    const Text name = control.String(u"ImageList");
    forms::Block* const list = name.empty() ? nullptr : FindControl(control.Document(), name);
    if (list == nullptr) {
        return;
    }
    images_ = NumberedGroups(BlockReader(control.Document(), *list), u"Images", u"ListImage");
    for (std::size_t index = 0; index < images_.size(); ++index) {
        if (const Text key = images_[index].String(u"Key"); !key.empty()) {
            keys_.emplace(LCase(key), index);
        }
    }
}

QPixmap ListPictures::Of(const BlockReader& item, TextView number, TextView key) {
    const std::int32_t wanted = item.Whole(number, 0);
    if (wanted > 0) {
        return Read(static_cast<std::size_t>(wanted) - 1);
    }
    const auto found = keys_.find(LCase(item.String(key)));
    return found == keys_.end() ? QPixmap() : Read(found->second);
}

QPixmap ListPictures::Read(std::size_t index) {
    if (index >= images_.size()) {
        return {};
    }
    const auto known = read_.find(index);
    if (known != read_.end()) {
        return known->second;
    }
    return read_.emplace(index, PictureIn(images_[index].Record(u"Picture"))).first->second;
}

}  // namespace lumenkit::lumenform
