// A form file whose controls are on the scripted container.
#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "forms/block.h"
#include "forms/block_keeper.h"
#include "forms/document.h"
#include "frame/class_table.h"
#include "frame/host/property_bag.h"
#include "frame/text.h"
#include "runtime/memory/form.h"
#include "runtime/memory/hosted_control.h"

namespace lumenkit::cli {

/// Saves the controls of a form file into the file. Properties that have not changed keep their
/// bytes: an unchanged form is saved as the same bytes, whichever program wrote it.
class LoadedForm {
 public:
    struct Living {
        std::string id;
        std::unique_ptr<memory::HostedControl> control;
    };

    /// The objects that `classes` refers to must outlive the loaded form.
    LoadedForm(forms::Document document, const ClassTable& classes);

    /// The names of the controls whose class is known, such as "VMemo1" or "VMemo1(2)", in the
    /// order of the file. A name that an earlier control has, without regard to case, gets a
    /// number: "vmemo1#2".
    std::vector<std::string> Ids() const;

    /// Creates these controls from their saved properties. The caller owns them, and they must
    /// outlive every call of Update or be dropped. Call it once.
    std::vector<Living> Start(memory::Form& form, bool userMode);

    /// Whether it has this control: started and not dropped.
    bool Has(const std::string& id) const { return places_.contains(id); }
    /// Returns the control and the controls inside it, in the order of the file.
    std::vector<std::string> Within(const std::string& id) const;
    /// Takes the control and the controls inside it from the form. The caller can end them.
    void Drop(const std::string& id);

    /// Writes the present property values of the controls into the document, without the controls
    /// that were dropped.
    void Update();

    const forms::Document& Document() const { return document_; }

 private:
    struct Found {
        forms::Block& block;
        const ClassDescriptor& type;
        Text name;
    };
    struct Saved {
        memory::HostedControl& control;
        forms::BlockKeeper keeper;
    };
    using Place = std::size_t;  // among the controls that were found

    static std::unique_ptr<memory::HostedControl> Start(const Found& found, host::PropertyBag& bag,
                                                        memory::Form& form, bool userMode);

    forms::Document document_;
    std::vector<Found> found_;
    std::map<Place, Saved> saved_;
    std::unordered_map<std::string, Place> places_;    // of the saved controls, by their ids
    std::unordered_set<const forms::Block*> dropped_;  // which the document still has
};

}  // namespace lumenkit::cli
