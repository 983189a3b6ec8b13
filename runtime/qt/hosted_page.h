#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "frame/class_table.h"
#include "frame/control.h"
#include "runtime/qt/accessible.h"
#include "runtime/qt/constituents.h"
#include "runtime/qt/context.h"
#include "runtime/qt/interaction.h"
#include "runtime/qt/screen.h"

namespace lumenkit::qt {

/// One property page. It has at least its designed size. In a larger one, the constituents whose
/// edges move grow or move with the page. Errors of the page's procedures reach the caller; errors
/// of its event handlers go to the context's sink.
class HostedPage final : public QWidget, public SelfDescribing, public ErrorReceiver {
 public:
    /// Creates the page and runs PropertyPage_Initialize. Raises 429 for a class that is not a
    /// page.
    HostedPage(const Context& context, const ClassDescriptor& type, QWidget* parent = nullptr);
    ~HostedPage() override { constituents_.Disconnect(); }
    HostedPage(const HostedPage&) = delete;
    HostedPage& operator=(const HostedPage&) = delete;

    /// Sets the controls that are selected in the designer and runs PropertyPage_SelectionChanged.
    /// The controls must live until the next selection.
    void Select(std::vector<ObjectRef> controls);
    /// Runs PropertyPage_ApplyChanges. Does not change the Changed flag.
    void Apply();

    /// Whether the page holds changes that have not been applied.
    bool Changed() const { return site_.changed; }
    void SetChanged(bool changed) { site_.SetChanged(changed); }
    /// Sets the function that is called whenever the flag takes another value.
    void OnChanged(std::function<void(bool)> listener) { site_.listener = std::move(listener); }

    /// Sets the function that is called whenever the page reports that the user changed a value,
    /// before the page does anything else with the value.
    void OnEdited(std::function<void()> listener) { site_.edited = std::move(listener); }

    QSize sizeHint() const override { return minimumSize(); }

    Object& Automation() { return page_->Automation(); }
    Constituents& Parts() { return constituents_; }
    const ErrorSink& Errors() const override { return context_.errors; }
    QAccessibleInterface* NewDescription() override {
        return std::make_unique<GroupDescription>(*this).release();
    }

 protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

 private:
    struct Site final : host::PropertyPageSite {
        bool Changed() const override { return changed; }
        void SetChanged(bool value) override;

        bool changed = false;
        std::function<void(bool)> listener;
        std::function<void()> edited;
    };
    struct Selection final : host::SelectedControls {
        std::int16_t Count() const override { return static_cast<std::int16_t>(controls.size()); }
        ObjectRef Item(std::int16_t index) override;

        std::vector<ObjectRef> controls;
    };

    const Context& context_;
    Site site_;
    Selection selection_;
    Screen screen_;
    Constituents constituents_;
    PageHost host_;
    std::unique_ptr<PropertyPage> page_;
};

}  // namespace lumenkit::qt
