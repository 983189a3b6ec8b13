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
#include "frame/runtime_error.h"
#include "frame/text.h"
#include "runtime/qt/font.h"

namespace lumenkit::lumenform {

/// Reads the properties of a block, converted to their types. A value that does not convert counts
/// as missing and leaves a warning in the document. Document and block must outlive the reader.
class BlockReader {
 public:
    BlockReader(const forms::Document& document, forms::Block& block)
        : document_(document), block_(block) {}

    bool Has(TextView name) const { return block_.FindProperty(name) != nullptr; }
    float Number(TextView name, float otherwise) const;
    std::int32_t Whole(TextView name, std::int32_t otherwise) const;
    /// Returns a choice from 0 to `count` - 1, or `otherwise` for any other number.
    std::int32_t Choice(TextView name, std::int32_t count, std::int32_t otherwise) const;
    bool Flag(TextView name, bool otherwise) const;
    Text String(TextView name, TextView otherwise = {}) const;
    Color ColorOf(TextView name, Color otherwise) const;
    /// Returns the font in the group Font, or null if there is no such group.
    std::shared_ptr<qt::Font> Font() const;
    /// Returns the record in the companion file that the property refers to, valid as long as the
    /// document. Empty if the property is missing or is no reference.
    std::string_view Record(TextView name) const;

    const forms::Document& Document() const { return document_; }
    forms::Block& Block() const { return block_; }

 private:
    template <typename T>
    T Read(TextView name, const Value& otherwise, T (*convert)(const Value&)) const;

    const forms::Document& document_;
    forms::Block& block_;
};

/// Creates a font of this runtime from a form's description. Raises 380 for an invalid size.
std::shared_ptr<qt::Font> MakeFont(const forms::FontDescription& description);

/// Returns the property bag of a control, with fonts of this runtime. See forms::FormBag.
forms::FormBag BagOf(const forms::Document& document, forms::Block& block);

/// Adds a warning to the document about a property or group whose reading raised an error.
void WarnAbout(const forms::Document& document, const forms::Block& block, TextView name,
               const RuntimeError& error);

/// Throws a FormError at `place` for an error of the runtime.
[[noreturn]] void Refuse(const forms::Document& document, forms::Position place, TextView what,
                         TextView why);

}  // namespace lumenkit::lumenform
