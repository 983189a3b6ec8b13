// A caption that is being mended, with the labels that show it.
#pragma once

#include <string>
#include <vector>

#include "apps/lumenkit/check/finding.h"
#include "apps/lumenkit/check/fix/drawn_control.h"
#include "forms/block.h"
#include "forms/document.h"
#include "forms/property.h"
#include "frame/class_table.h"
#include "frame/text.h"

namespace lumenkit::check {

/// The constructors' arguments must outlive the holders.
class CaptionHolder {
 public:
    virtual ~CaptionHolder() = default;

    virtual Text Get() const = 0;
    virtual void Set(TextView caption) = 0;
    /// The name of the property in findings.
    virtual std::string Property() const = 0;
    /// All findings about the label.
    virtual Findings Check() const = 0;
    /// What the label shows without its caption as a property.
    virtual DrawnControl Drawn() const = 0;
};

/// The saved caption of a label on a form. It stays where it is stored: in the form or in the
/// companion. The caption that was read brings back the line as it was read.
class SavedCaption final : public CaptionHolder {
 public:
    /// `first` is the property as it was read.
    SavedCaption(const forms::Document& document, forms::Block& block, const ClassDescriptor& type,
                 forms::Property& property, const forms::Property& first);

    Text Get() const override { return document_.TextOf(property_); }
    void Set(TextView caption) override;
    std::string Property() const override;
    Findings Check() const override;
    DrawnControl Drawn() const override;

 private:
    const forms::Document& document_;
    forms::Block& block_;
    const ClassDescriptor& type_;
    forms::Property& property_;
    const forms::Property& first_;
    const Text firstText_;
};

/// A caption without a form. Any label may show it, so it is drawn in several: a wide one, a narrow
/// one that wraps words, and one with bold text and bullets.
class LooseCaption final : public CaptionHolder {
 public:
    LooseCaption(TextView caption, const ClassTable& classes);

    Text Get() const override { return caption_; }
    void Set(TextView caption) override;
    std::string Property() const override { return "Caption"; }
    Findings Check() const override;
    DrawnControl Drawn() const override;

 private:
    Text caption_;
    forms::Document document_;
    std::vector<forms::Block*> labels_;
    const ClassDescriptor& type_;
};

}  // namespace lumenkit::check
