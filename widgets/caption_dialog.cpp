#include <QDialogButtonBox>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QShowEvent>
#include <QVBoxLayout>

#include <lumenkit/widgets/caption_dialog.h>

#include "frame/runtime_error.h"
#include "runtime/qt/hosted_page.h"
#include "runtime/qt/qt_text.h"
#include "widgets/core/control_core.h"
#include "widgets/core/core_of.h"
#include "widgets/core/counted_messages.h"
#include "widgets/core/program.h"

namespace lumenkit::widgets {

namespace {

constexpr TextView pageClass = u"lumenkit.VLabelCaption";

}  // namespace

class CaptionDialog::Private {
 public:
    Private()
        : context{.classes = Program().classes,
                  .application = Program().application,
                  .interaction = messages,
                  .errors = [this](const RuntimeError& error) { Report(error); }},
          page(new qt::HostedPage(context, *context.classes.Find(pageClass))) {}

    void Report(const RuntimeError& error) {
        messages.MsgBox(error.Description(), host::MessageStyle::Critical, std::nullopt);
    }

    // Moves the focus into the page. A button with the focus would react to the first space that is
    // typed.
    void FocusPage() const {
        for (QWidget* part = page->nextInFocusChain(); part != page;
             part = part->nextInFocusChain()) {
            if (page->isAncestorOf(part) && (part->focusPolicy() & Qt::TabFocus) != 0) {
                part->setFocus();
                return;
            }
        }
    }

    QPointer<VLabel> label;
    CountedMessages messages{Program().interaction};
    qt::Context context;
    qt::HostedPage* page;
    QScrollArea* scrolled = nullptr;
    QDialogButtonBox* buttons = nullptr;
};

CaptionDialog::CaptionDialog(VLabel& label, QWidget* parent)
    : QDialog(parent), d_(std::make_unique<Private>()) {
    d_->label = &label;
    d_->scrolled = new QScrollArea;
    d_->scrolled->setWidget(d_->page);
    d_->scrolled->setWidgetResizable(true);
    d_->scrolled->setFrameShape(QFrame::NoFrame);
    d_->scrolled->setFocusPolicy(Qt::NoFocus);
    d_->buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel |
                                       QDialogButtonBox::Apply);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(d_->scrolled, 1);
    layout->addWidget(d_->buttons);
    setWindowTitle(qt::ToQString(d_->context.classes.Find(pageClass)->pageTitle));
    QPushButton* const apply = d_->buttons->button(QDialogButtonBox::Apply);
    connect(apply, &QPushButton::clicked, this, &CaptionDialog::apply);
    connect(d_->buttons, &QDialogButtonBox::accepted, this, &CaptionDialog::accept);
    connect(d_->buttons, &QDialogButtonBox::rejected, this, &CaptionDialog::reject);
    connect(&label, &QObject::destroyed, this, &CaptionDialog::reject);
    d_->page->OnChanged([apply](bool changed) { apply->setEnabled(changed); });
    ControlCore& core = CoreOf(label);
    core.Start();
    try {
        d_->page->Select({core.Live().SharedAutomation()});
    } catch (const RuntimeError& error) {
        d_->Report(error);
    }
    d_->page->SetChanged(false);  // the initial values are no change
    apply->setEnabled(false);
    d_->FocusPage();
}

CaptionDialog::~CaptionDialog() = default;

bool CaptionDialog::isChanged() const {
    return d_->page->Changed();
}

bool CaptionDialog::apply() {
    if (!isChanged() || d_->label == nullptr) {
        return true;
    }
    const int before = d_->messages.Count();
    try {
        d_->page->Apply();
    } catch (const RuntimeError& error) {
        d_->Report(error);
    }
    if (d_->messages.Count() != before) {
        return false;
    }
    d_->page->SetChanged(false);
    return true;
}

void CaptionDialog::accept() {
    if (apply()) {
        QDialog::accept();
    }
}

// Opens with the whole page. A scroll area proposes less, and the fonts are known only now.
void CaptionDialog::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!event->spontaneous()) {
        layout()->activate();
        const QSize lacking = d_->page->minimumSize() - d_->scrolled->size();
        resize((size() + lacking.expandedTo({0, 0})).boundedTo(screen()->availableSize()));
    }
}

}  // namespace lumenkit::widgets
