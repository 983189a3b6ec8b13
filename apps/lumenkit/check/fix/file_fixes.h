// Mends the findings of a file.
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "apps/lumenkit/check/finding.h"
#include "apps/lumenkit/check/fix/caption_fixer.h"
#include "forms/block.h"
#include "forms/document.h"
#include "forms/property.h"
#include "frame/class_table.h"
#include "frame/text.h"

namespace lumenkit::check {

/// Returns those of a file's findings that are to be mended.
using FindingFilter = std::function<Findings(Findings)>;

struct FixOptions {
    FixScope scope = FixScope::Safe;
    FindingFilter select = [](Findings all) { return all; };
};

/// A text in the companion before and after its mending.
struct CompanionChange {
    Finding first;  ///< the first finding that was mended in it
    Text before;
    Text after;
};

/// Mends the properties of the controls of a form.
class FormFixer {
 public:
    /// The document must outlive the fixer.
    FormFixer(const forms::Document& document, const ClassTable& classes, FixOptions options);

    /// Edits the document. Returns the findings that were mended. The places of those that follow
    /// from another mending are approximate.
    Findings Fix();

    /// Brings back the texts that were in the companion and were mended, so that the document
    /// refers to the same records as before. Returns the changes.
    std::vector<CompanionChange> TakeBackCompanionTexts();

 private:
    // A property of a control, by the line that it was read from.
    struct Slot {
        forms::Block* block;
        const ClassDescriptor* type;
        forms::Property* property;
        forms::Property first;  // as it was read, but with its present name
    };

    void AddSlots(forms::Block& block);
    Findings Check() const;
    Findings FixOnce();
    Findings FixSlot(Slot& slot, const Findings& findings) const;
    Findings FixCaption(const Slot& slot, const Findings& findings) const;
    bool FixProperty(Slot& slot, const Finding& finding) const;

    const forms::Document& document_;
    const ClassTable& classes_;
    FixOptions options_;
    std::map<std::size_t, Slot> slots_;
    std::map<std::size_t, Finding> firstFixed_;  // by line
};

struct FixedCaption {
    Text caption;
    Findings fixed;
};

/// Mends a caption that is the whole text of the file `name`.
FixedCaption FixCaptionFile(const std::string& name, TextView caption, const ClassTable& classes,
                            const FixOptions& options);

}  // namespace lumenkit::check
