// Constituents of the memory runtime that record the use of the caption page's caption box and
// preview.
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "frame/host/constituents.h"
#include "frame/numbers.h"
#include "frame/utf8.h"
#include "tests/support/edited_double.h"

namespace lumenkit::testing {

using Notes = std::vector<std::string>;

/// Records the uses of an object: "find Caption", "let 0 String .", "get -512".
class TappedObject final : public Object {
 public:
    TappedObject(Object& object, Notes& notes) : object_(object), notes_(notes) {}

    std::optional<std::int32_t> FindMember(TextView name) const override {
        notes_.push_back("find " + ToUtf8(name));
        return object_.FindMember(name);
    }
    Value Invoke(std::int32_t identifier, InvokeKind kind, std::span<Value> arguments) override {
        const bool assigns = kind == InvokeKind::Let || kind == InvokeKind::Set;
        notes_.push_back((assigns ? "let " : "get ") + std::to_string(identifier) +
                         (assigns ? " " + TypedText(arguments.back()) : ""));
        return object_.Invoke(identifier, kind, arguments);
    }

 private:
    Object& object_;
    Notes& notes_;
};

/// Records the uses of an embedded control: "move 0 0 3000 1500", and see TappedObject.
class TappedControl final : public host::EmbeddedControl {
 public:
    TappedControl(std::unique_ptr<host::EmbeddedControl> control, Notes& notes)
        : control_(std::move(control)), notes_(notes), object_(control_->Automation(), notes) {}

    host::Placement Place() const override { return control_->Place(); }
    void Move(const host::Placement& placement) override {
        std::string note = "move";
        for (const float number :
             {placement.left, placement.top, placement.width, placement.height}) {
            note += " " + ToUtf8(NumberText(number));
        }
        notes_.push_back(note);
        control_->Move(placement);
    }
    bool Visible() const override { return control_->Visible(); }
    void SetVisible(bool visible) override { control_->SetVisible(visible); }
    bool Enabled() const override { return control_->Enabled(); }
    void SetEnabled(bool enabled) override { control_->SetEnabled(enabled); }
    void Refresh() override { control_->Refresh(); }
    Object& Automation() override { return object_; }

 private:
    std::unique_ptr<host::EmbeddedControl> control_;
    Notes& notes_;
    TappedObject object_;
};

class TappedConstituents final : public host::Constituents {
 public:
    explicit TappedConstituents(host::Constituents& parts) : parts_(parts) {}

    /// Returns the object that receives the caption box's events.
    host::TextBoxEvents& CaptionEvents() { return *captionEvents_; }
    /// Returns the uses of the preview since the last call.
    Notes TakePreviewNotes() { return std::exchange(previewNotes_, {}); }

    std::unique_ptr<host::TextBox> AddTextBox(const host::TextBoxDesign& design,
                                              host::TextBoxEvents& events) override {
        if (design.name == u"txtCaption") {
            captionEvents_ = &events;
        }
        return parts_.AddTextBox(design, events);
    }
    std::unique_ptr<host::OptionButtons> AddOptionButtons(
        const host::OptionButtonDesign& design, host::Frame& frame,
        host::OptionButtonEvents& events) override {
        return parts_.AddOptionButtons(design, frame, events);
    }
    std::unique_ptr<host::Frame> AddFrame(const host::CaptionDesign& design) override {
        return parts_.AddFrame(design);
    }
    std::unique_ptr<host::Label> AddLabel(const host::CaptionDesign& design) override {
        return parts_.AddLabel(design);
    }
    std::unique_ptr<host::CheckBox> AddCheckBox(const host::CaptionDesign& design,
                                                host::ClickEvents& events) override {
        return parts_.AddCheckBox(design, events);
    }
    std::unique_ptr<host::CommandButton> AddCommandButton(const host::CaptionDesign& design,
                                                          host::ClickEvents& events) override {
        return parts_.AddCommandButton(design, events);
    }
    std::unique_ptr<host::PictureBox> AddPictureBox(const host::Design& design) override {
        return parts_.AddPictureBox(design);
    }
    std::unique_ptr<host::ScrollBar> AddScrollBar(const host::Design& design,
                                                  host::Orientation orientation,
                                                  host::ScrollBarEvents& events) override {
        return parts_.AddScrollBar(design, orientation, events);
    }
    std::unique_ptr<host::EmbeddedControl> AddControl(const host::Design& design,
                                                      TextView programmaticIdentifier) override {
        return std::make_unique<TappedControl>(parts_.AddControl(design, programmaticIdentifier),
                                               previewNotes_);
    }

 private:
    host::Constituents& parts_;
    host::TextBoxEvents* captionEvents_ = nullptr;
    Notes previewNotes_;
};

}  // namespace lumenkit::testing
