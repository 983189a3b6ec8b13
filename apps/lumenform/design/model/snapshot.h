#pragma once

#include <memory>
#include <string>
#include <vector>

#include "forms/document.h"
#include "forms/encoding.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// The state of a document at one moment, in the bytes that would have been saved.
class Snapshot {
 public:
    /// Shares equal bytes with `earlier`, which may be null. Throws FormError as Document::Write
    /// does.
    Snapshot(const forms::Document& document, std::vector<Text> selected, const Snapshot* earlier);

    /// The same document with another selection.
    Snapshot(const Snapshot& other, std::vector<Text> selected);

    bool HoldsTheSameAs(const Snapshot& other) const;
    forms::FormBytes Bytes() const { return {*form_, *companion_}; }
    const forms::Encoding& Encoding() const { return encoding_; }
    /// The names of the selected controls or menus.
    const std::vector<Text>& Selected() const { return selected_; }

 private:
    forms::Encoding encoding_;
    std::shared_ptr<const std::string> form_;
    std::shared_ptr<const std::string> companion_;  // large if it has pictures
    std::vector<Text> selected_;
};

using SharedSnapshot = std::shared_ptr<const Snapshot>;

}  // namespace lumenkit::lumenform
