#pragma once

#include <QWidget>
#include <memory>

#include "apps/lumenform/form_view/form_view.h"
#include "apps/lumenform/run/event_log.h"
#include "forms/document.h"
#include "runtime/qt/context.h"

namespace lumenkit::lumenform {

/// Runs a copy of a form inside the designer. It never changes the design.
class RunPage final : public QWidget {
    Q_OBJECT

 public:
    /// Throws FormError as FormView does. The context must outlive the page.
    RunPage(const qt::Context& context, const forms::Document& design, QWidget* parent = nullptr);
    ~RunPage() override;
    RunPage(const RunPage&) = delete;
    RunPage& operator=(const RunPage&) = delete;

    FormView& View() const { return *view_; }
    EventLog& Log() const { return *log_; }

 Q_SIGNALS:
    void BackWanted();

 private:
    QWidget* MakeBanner() const;

    forms::Document document_;
    FormView* view_;
    EventLog* log_;
};

}  // namespace lumenkit::lumenform
