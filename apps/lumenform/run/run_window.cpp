#include "apps/lumenform/run/run_window.h"

#include <QAction>
#include <QDockWidget>
#include <QMenuBar>
#include <QScreen>
#include <QScrollArea>

#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

// Scrolls the form only if the screen is too small for it.
class FormArea final : public QScrollArea {
 public:
    explicit FormArea(QWidget* form) {
        setFrameStyle(QFrame::NoFrame);
        setWidget(form);
        setFocusPolicy(Qt::NoFocus);
    }
    QSize sizeHint() const override { return widget()->sizeHint(); }
};

}  // namespace

RunWindow::RunWindow(const qt::Context& context, forms::Document& document)
    : view_(new FormView(context, document, Mode::Run)), log_(new EventLog) {
    setCentralWidget(new FormArea(view_));
    const QString caption = qt::ToQString(view_->Caption());
    setWindowTitle(caption.isEmpty() ? qt::ToQString(document.Root().Name()) : caption);
    setWindowIcon(view_->windowIcon());
    AddLog();
    resize(sizeHint().boundedTo(screen()->availableSize()));
    view_->OnRaised([this](const ControlEvent& event) { log_->Add(event); });
}

// Only controls that are shown take the focus.
void RunWindow::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    if (focusWidget() == nullptr) {
        view_->FocusFirst();
    }
}

void RunWindow::AddLog() {
    auto* const dock = new QDockWidget(tr("Events"), this);
    dock->setObjectName(QStringLiteral("events"));
    dock->setWidget(log_);
    addDockWidget(Qt::BottomDockWidgetArea, dock);
    AddMenus(*dock);
}

// The menus of the program. A form with menus of its own has the only menu bar, as in its program.
void RunWindow::AddMenus(QDockWidget& dock) {
    QMenu* const file = menuBar()->addMenu(tr("&File"));
    QAction* const close = file->addAction(tr("&Close"), this, &QWidget::close);
    close->setShortcut(Qt::CTRL | Qt::Key_Q);
    QMenu* const view = menuBar()->addMenu(tr("&View"));
    QAction* const shown = dock.toggleViewAction();
    shown->setText(tr("&Event log"));
    shown->setShortcut(Qt::Key_F12);
    view->addAction(shown);
    view->addAction(tr("&Clear the log"), log_, &QTreeWidget::clear);
    // The keys are there without a menu bar, too.
    addActions({close, shown});
    menuBar()->setVisible(view_->findChild<QMenuBar*>() == nullptr);
}

}  // namespace lumenkit::lumenform
