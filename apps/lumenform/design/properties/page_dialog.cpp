#include "apps/lumenform/design/properties/page_dialog.h"

#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QShowEvent>
#include <QVBoxLayout>
#include <utility>

#include "apps/lumenform/design/model/refusal.h"
#include "apps/lumenform/design/properties/encoding_offer.h"
#include "forms/form_error.h"
#include "frame/runtime_error.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

// Refers to a control by name: the design sometimes replaces the widget, but the page keeps its
// selection.
class NamedControl final : public Object {
 public:
    NamedControl(const FormDesign& design, Text name) : design_(design), name_(std::move(name)) {}

    std::optional<std::int32_t> FindMember(TextView name) const override {
        return Control().FindMember(name);
    }
    Value Invoke(std::int32_t identifier, InvokeKind kind, std::span<Value> arguments) override {
        return Control().Invoke(identifier, kind, arguments);
    }

 private:
    Object& Control() const {
        const LiveControl* control = design_.View().Find(name_);
        if (control == nullptr || control->Hosted() == nullptr) {
            Raise(ErrorNumber::ObjectNotSet);
        }
        return control->Hosted()->Automation();
    }

    const FormDesign& design_;
    Text name_;
};

// The page edits the first control only.
QString TitleOf(const ClassDescriptor& page, const std::vector<Text>& controls) {
    return qt::ToQString(controls.front()) + QStringLiteral(": ") + qt::ToQString(page.pageTitle);
}

}  // namespace

PageDialog::PageDialog(FormDesign& design, ControlMessages& messages, const ClassDescriptor& page,
                       const std::vector<Text>& controls, QWidget* parent)
    : QDialog(parent),
      design_(design),
      messages_(messages),
      context_{.classes = design.Context().classes,
               .application = design.Context().application,
               .interaction = messages,
               .errors =
                   [this](const RuntimeError& error) {
                       notice_->Say(qt::ToQString(error.Description()));
                   }},
      title_(qt::ToQString(page.pageTitle)),
      control_(qt::ToQString(controls.front())),
      notice_(new Notice(this)),
      buttons_(new QDialogButtonBox(
          QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Apply, this)),
      page_(new qt::HostedPage(context_, page)),
      scrolled_(new QScrollArea(this)) {
    scrolled_->setWidget(page_);  // owns the page from here on
    setWindowTitle(TitleOf(page, controls));
    setWindowModality(Qt::WindowModal);
    LayOut();
    QPushButton* const apply = buttons_->button(QDialogButtonBox::Apply);
    connect(buttons_, &QDialogButtonBox::accepted, this, &PageDialog::accept);
    connect(buttons_, &QDialogButtonBox::rejected, this, [this] { QDialog::reject(); });
    connect(apply, &QPushButton::clicked, this, &PageDialog::Apply);
    new EncodingOffer(
        design, *notice_, [] { return Text(); }, [this] { Apply(); });
    page_->OnChanged([apply](bool changed) { apply->setEnabled(changed); });
    page_->OnEdited([this] { notice_->Say({}); });  // it is about the former values
    std::vector<ObjectRef> selection;
    selection.reserve(controls.size());
    for (const Text& name : controls) {
        selection.push_back(std::make_shared<NamedControl>(design, name));
    }
    page_->Select(std::move(selection));
    page_->SetChanged(false);  // the initial values are no change
    apply->setEnabled(false);
    FocusPage();
}

// A page that is larger than the window is scrolled, and one that is smaller grows.
void PageDialog::LayOut() {
    scrolled_->setWidgetResizable(true);
    scrolled_->setFrameShape(QFrame::NoFrame);
    scrolled_->setFocusPolicy(Qt::NoFocus);
    QSizePolicy room = notice_->sizePolicy();
    room.setRetainSizeWhenHidden(true);  // so that a notice does not move the buttons
    notice_->setSizePolicy(room);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(scrolled_, 1);
    layout->addWidget(notice_);
    layout->addWidget(buttons_);
}

// Opens with the whole page. A scroll area proposes less, and the fonts are known only now.
void PageDialog::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!event->spontaneous()) {
        layout()->activate();
        const QSize lacking = page_->minimumSize() - scrolled_->size();
        resize((size() + lacking.expandedTo({0, 0})).boundedTo(screen()->availableSize()));
    }
}

// Moves the focus into the page. A button with the focus would react to the first space that is
// typed.
void PageDialog::FocusPage() {
    for (QWidget* widget = page_->nextInFocusChain(); widget != page_;
         widget = widget->nextInFocusChain()) {
        if (page_->isAncestorOf(widget) && (widget->focusPolicy() & Qt::TabFocus) != 0) {
            widget->setFocus();
            return;
        }
    }
}

void PageDialog::ApplyPage() {
    const ControlMessages::Listener listener(messages_);
    page_->Apply();
    if (!listener.Heard().empty()) {
        throw RuntimeError(static_cast<std::int32_t>(ErrorNumber::InvalidPropertyValue),
                           listener.Heard().front());
    }
}

bool PageDialog::Apply() {
    if (!page_->Changed()) {
        return true;
    }
    bool isUnwritable = false;
    const QString refusal = RefusalOf([&] {
        try {
            design_.Edit(title_, [this] { ApplyPage(); });
        } catch (const forms::UnwritableText&) {
            isUnwritable = true;
            throw;
        }
    });
    notice_->Say(refusal, isUnwritable);
    if (!refusal.isEmpty()) {
        return false;
    }
    page_->SetChanged(false);
    return true;
}

void PageDialog::accept() {
    if (Apply()) {
        QDialog::accept();
    }
}

void PageDialog::reject() {
    if (!page_->Changed()) {
        QDialog::reject();
        return;
    }
    QMessageBox box(QMessageBox::Question, tr("Apply changes?"),
                    tr("Apply the changes to %1?").arg(control_),
                    QMessageBox::Apply | QMessageBox::Discard | QMessageBox::Cancel, this);
    box.setInformativeText(tr("Changes that are not applied are lost."));
    box.setDefaultButton(QMessageBox::Apply);
    switch (box.exec()) {
        case QMessageBox::Apply:
            accept();
            break;
        case QMessageBox::Discard:
            QDialog::reject();
            break;
        default:
            break;
    }
}

}  // namespace lumenkit::lumenform
