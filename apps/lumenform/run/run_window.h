#pragma once

#include <QMainWindow>

#include "apps/lumenform/form_view/form_view.h"
#include "apps/lumenform/run/event_log.h"
#include "forms/document.h"
#include "runtime/qt/context.h"

namespace lumenkit::lumenform {

/// Shows a form in run mode at its size, with the log of its events below.
class RunWindow final : public QMainWindow {
    Q_OBJECT

 public:
    /// Throws FormError as FormView does. Context and document must outlive the window.
    RunWindow(const qt::Context& context, forms::Document& document);

    FormView& View() const { return *view_; }
    EventLog& Log() const { return *log_; }

 protected:
    void showEvent(QShowEvent* event) override;

 private:
    void AddLog();
    void AddMenus(QDockWidget& dock);

    FormView* view_;
    EventLog* log_;
};

}  // namespace lumenkit::lumenform
