#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "forms/block.h"
#include "forms/document.h"
#include "forms/font_description.h"
#include "forms/form_bag.h"
#include "frame/automation/value.h"
#include "frame/color.h"
#include "frame/text.h"
#include "runtime/qt/font.h"

namespace lumenkit::form {

/// What a block says of its control, as the type that the property has. A value that does not
/// convert is a FormError with its place. Document and block must outlive the reader.
class BlockReader {
 public:
    BlockReader(const forms::Document& document, forms::Block& block)
        : document_(document), block_(block) {}

    bool Has(TextView name) const { return block_.FindProperty(name) != nullptr; }
    float Number(TextView name, float otherwise) const;
    std::int32_t Whole(TextView name, std::int32_t otherwise) const;
    /// One of `count` numbered choices, from 0; a number that is none of them counts as
    /// `otherwise`.
    std::int32_t Choice(TextView name, std::int32_t count, std::int32_t otherwise) const;
    bool Flag(TextView name, bool otherwise) const;
    Text String(TextView name, TextView otherwise = {}) const;
    Color ColorOf(TextView name, Color otherwise) const;
    /// The group Font; null where there is none.
    std::shared_ptr<qt::Font> Font() const;
    /// The companion's record behind a property, valid as long as the document; empty where the
    /// property is absent or no reference.
    std::string_view Record(TextView name) const;

    const forms::Document& Document() const { return document_; }
    forms::Block& Block() const { return block_; }

 private:
    template <typename T>
    T Read(TextView name, const Value& otherwise, T (*convert)(const Value&)) const;

    const forms::Document& document_;
    forms::Block& block_;
};

/// A font of this runtime as a form describes it. Raises 380 for a size that no font has.
std::shared_ptr<qt::Font> MakeFont(const forms::FontDescription& description);

/// The property bag of a control, with fonts of this runtime; see forms::FormBag.
forms::FormBag BagOf(const forms::Document& document, forms::Block& block);

/// The error of the runtime as one of the form, at `place`.
[[noreturn]] void Refuse(const forms::Document& document, forms::Position place, TextView what,
                         TextView why);

}  // namespace lumenkit::form
