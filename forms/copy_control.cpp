#include "forms/copy_control.h"

#include <memory>
#include <variant>

#include "forms/literal.h"
#include "forms/property.h"

namespace lumenkit::forms {

namespace {

// One copy operation between two documents.
class Copying {
 public:
    Copying(const Document& from, Document& to) : from_(from), to_(to) {}

    // The recursion is as deep as the blocks are nested, which the parser limits.
    void CopyInto(Block& copy, const Block& original) {
        for (const Block::Item& item : original.Items()) {
            if (const auto* property = std::get_if<std::unique_ptr<Property>>(&item)) {
                CopyProperty(copy, **property);
            } else if (const auto* inner = std::get_if<std::unique_ptr<Block>>(&item)) {
                CopyBlock(copy, **inner);
            }
        }
    }

 private:
    void CopyBlock(Block& copy, const Block& inner) {
        CopyInto(inner.Kind() == BlockKind::Group
                     ? copy.Group(inner.Name(), inner.ClassName())
                     : copy.AddControl(inner.ClassName(), inner.Name()),
                 inner);
    }

    void CopyProperty(Block& copy, const Property& original) {
        if (copy.FindProperty(original.Name()) != nullptr) {
            return;  // of several properties with the same name, the first one counts
        }
        const auto* reference = std::get_if<Reference>(&original.Literal());
        const bool isLost = reference != nullptr && !reference->marked && from_.IsLost(*reference);
        if (isLost && &from_ != &to_) {
            return;
        }
        Property& property = copy.Set(original.Name(), CopiedLiteral(original));
        // A Boolean writes its own comment.
        const bool isBoolean = std::holds_alternative<bool>(original.Literal());
        if (!original.Comment().empty() && !isBoolean) {
            property.AddComment(original.Comment());
        }
    }

    Literal CopiedLiteral(const Property& property) {
        const auto* reference = std::get_if<Reference>(&property.Literal());
        if (reference == nullptr || &from_ == &to_) {
            return property.Literal();
        }
        if (reference->marked) {
            return from_.IsLost(*reference) ? Literal(Text())
                                            : CompanionText{from_.TextOf(property)};
        }
        return to_.AddRecord(from_.RecordOf(property));
    }

    const Document& from_;
    Document& to_;
};

}  // namespace

Block& CopyControl(const Document& from, const Block& control, Document& to, Block& parent,
                   TextView name) {
    Block& copy = parent.AddControl(control.ClassName(), name);
    try {
        Copying(from, to).CopyInto(copy, control);
    } catch (...) {
        parent.RemoveControl(copy);
        throw;
    }
    return copy;
}

}  // namespace lumenkit::forms
