// A form file whose controls live on the scripted container.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "forms/block.h"
#include "forms/block_keeper.h"
#include "forms/document.h"
#include "frame/class_table.h"
#include "frame/host/property_bag.h"
#include "frame/text.h"
#include "runtime/memory/form.h"
#include "runtime/memory/placed_control.h"

namespace lumenkit::cli {

/// Puts into the file what its controls hold, and leaves what they held from the start as it is
/// written: a form of which nothing was changed is saved as the same bytes, whoever wrote it.
class LoadedForm {
 public:
    struct Living {
        std::string id;
        std::unique_ptr<memory::PlacedControl> control;
    };

    /// Throws BadRequest for two controls of one name. What `classes` refers to must outlive the
    /// loaded form.
    LoadedForm(forms::Document document, const ClassTable& classes);

    /// The names of the controls that are of one of the classes, "VMemo1" or "VMemo1(2)", in the
    /// order of the file.
    std::vector<std::string> Ids() const;

    /// Has these controls come to life with what the file saves for them. The caller keeps them;
    /// they must outlive every call of Update. Raises 13 and 6 for a place, size, Tag or visibility
    /// that does not convert, 380 for a negative size. Call it once.
    std::vector<Living> Start(memory::Form& form, bool userMode);

    /// Writes into the document what the controls hold now.
    void Update();

    const forms::Document& Document() const { return document_; }

 private:
    struct Found {
        forms::Block& block;
        const ClassDescriptor& type;
        Text name;
    };
    struct Saved {
        memory::PlacedControl& control;
        forms::BlockKeeper keeper;
    };

    static std::unique_ptr<memory::PlacedControl> Start(const Found& found, host::PropertyBag& bag,
                                                        memory::Form& form, bool userMode);

    forms::Document document_;
    std::vector<Found> found_;
    std::vector<Saved> saved_;
};

}  // namespace lumenkit::cli
