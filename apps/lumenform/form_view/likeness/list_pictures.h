#pragma once

#include <QPixmap>
#include <map>

#include "apps/lumenform/form_view/block_reader.h"

namespace lumenkit::lumenform {

/// The pictures of an image list of the same form, by number and by key. A picture is read when it
/// is first asked for.
class ListPictures {
 public:
    /// `control` names its image list in the property ImageList.
    explicit ListPictures(const BlockReader& control);

    /// Returns the picture that an item names in `number` or else in `key`. Null if there is none.
    QPixmap Of(const BlockReader& item, TextView number, TextView key);

 private:
    QPixmap Read(std::size_t index);

    std::vector<BlockReader> images_;
    std::map<Text, std::size_t> keys_;  // in lower case
    std::map<std::size_t, QPixmap> read_;
};

}  // namespace lumenkit::lumenform
