#include "apps/lumenform/design/window/form_tab.h"

#include <QApplication>
#include <QFileInfo>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "apps/lumenform/design/code/mention_message.h"
#include "apps/lumenform/design/window/difference_dialog.h"
#include "apps/lumenform/design/window/form_dialogs.h"
#include "forms/file.h"
#include "forms/form_error.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

QString ExtensionFor(TextView className) {
    const auto is = [&](TextView name) { return SameText(className, name, Compare::IgnoreCase); };
    return is(u"VB.UserControl")    ? QStringLiteral(".ctl")
           : is(u"VB.PropertyPage") ? QStringLiteral(".pag")
           : is(u"VB.UserDocument") ? QStringLiteral(".dob")
                                    : QStringLiteral(".frm");
}

}  // namespace

FormTab::FormTab(const Setup& setup, forms::Document document, FormFile file, QWidget* parent)
    : QWidget(parent),
      setup_(setup),
      file_(std::move(file)),
      copy_(setup.recovery),
      keeping_(new QTimer(this)),
      bar_(new ChangedBar),
      pages_(new QStackedWidget),
      mentions_(new MentionBar),
      bench_(std::make_unique<Workbench>(setup.context, setup.messages, std::move(document))),
      lost_(std::make_unique<LostNames>(bench_->GetDesign())),
      code_(new CodePage(bench_->GetDesign())) {
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(bar_);
    column->addWidget(pages_, 1);
    column->addWidget(mentions_);
    pages_->addWidget(bench_.get());
    pages_->addWidget(code_);
    connect(lost_.get(), &LostNames::Changed, this, &FormTab::FollowLostNames);
    connect(mentions_, &MentionBar::Dismissed, this, [this] {
        lost_->Dismiss();
        TakeFocus();
    });
    connect(mentions_, &MentionBar::CodeWanted, this, [this] { OpenCode(lost_->Names()); });
    connect(bar_, &ChangedBar::ReloadWanted, this, &FormTab::Reload);
    connect(bar_, &ChangedBar::KeepMineWanted, this, &FormTab::KeepMine);
    connect(bar_, &ChangedBar::DifferenceWanted, this, &FormTab::Compare);
    constexpr int pause = 2000;  // milliseconds
    keeping_->setSingleShot(true);
    keeping_->setInterval(pause);
    connect(keeping_, &QTimer::timeout, this, qOverload<>(&FormTab::KeepCopy));
    FormDesign& design = bench_->GetDesign();
    connect(&design.History(), &QUndoStack::cleanChanged, this, &FormTab::FollowChanges);
    connect(&design, &FormDesign::Edited, this, &FormTab::FollowChanges);
    connect(&design, &FormDesign::Edited, this, [this] { Q_EMIT Told({}); });
    connect(bench_.get(), &Workbench::Refused, this, &FormTab::Told);
    connect(&bench_->GetCanvas(), &Canvas::MenuRequested, this, &FormTab::MenuRequested);
}

// Destroying the history emits signals.
FormTab::~FormTab() {
    lost_.reset();
    delete code_;
    bench_->GetDesign().History().disconnect(this);
    bench_->GetDesign().disconnect(this);
}

QString FormTab::Name() const {
    const forms::Block& form = bench_->GetDesign().Document().Root();
    return file_.HasPath() ? QFileInfo(file_.Path()).fileName()
                           : qt::ToQString(form.Name()) + ExtensionFor(form.ClassName());
}

bool FormTab::IsChanged() const {
    return !bench_->GetDesign().History().isClean();
}

void FormTab::FollowChanges() {
    const bool isChanged = IsChanged();
    if (isChanged && !keeping_->isActive()) {
        keeping_->start();
    }
    if (!isChanged) {
        keeping_->stop();
        copy_.Remove();
    }
    Q_EMIT StateChanged();
}

void FormTab::KeepCopy() {
    keeping_->stop();
    if (IsChanged() && !copy_.Write(bench_->GetDesign().Document(), file_.Path()) &&
        !setup_.recovery.isEmpty()) {
        Q_EMIT Told(tr("No copy of the unsaved changes can be kept in %1").arg(setup_.recovery));
    }
}

void FormTab::KeepCopy(const RecoveredWork& work) {
    copy_.Date(work.time);
    KeepCopy();
}

bool FormTab::Save() {
    if (!bench_->FinishEditing()) {
        return false;
    }
    if (!file_.HasPath()) {
        return SaveAs();
    }
    if (!IsFileInDoubt()) {
        return SaveTo(file_.Path());
    }
    for (;;) {
        switch (AskAboutChange(*this, file_.Path())) {
            case ChangeAnswer::Reload:
                Reload();
                return false;
            case ChangeAnswer::KeepMine:
                KeepMine();
                return SaveTo(file_.Path());
            case ChangeAnswer::ShowDifference:
                Compare();
                break;
            case ChangeAnswer::Cancel:
                return false;
        }
    }
}

bool FormTab::SaveAs() {
    if (!bench_->FinishEditing()) {
        return false;
    }
    const QString proposed = file_.HasPath() ? file_.Path() : Name();
    const QString path = AskForPlaceToSave(*this, proposed);
    if (!path.isEmpty() && file_.HasPath() && IsSameFile(path, file_.Path())) {
        return Save();  // asks again if another program has changed the file
    }
    // The dialog has asked about a file that is there already.
    return !path.isEmpty() && SaveTo(path, QFileInfo::exists(path) ? forms::Replacing::Confirmed
                                                                   : forms::Replacing::Known);
}

bool FormTab::SaveTo(const QString& path, forms::Replacing replacing) {
    if (setup_.refusesName && setup_.refusesName(*this, path)) {
        const QString why = tr("%1 is open in another tab.").arg(QFileInfo(path).fileName());
        return OffersSaveAs(*this, why) && SaveAs();
    }
    try {
        file_.SaveAs(bench_->GetDesign(), path, replacing);
    } catch (const forms::FormError& error) {
        return OffersSaveAs(*this, QString::fromUtf8(error.what())) && SaveAs();
    }
    isOlderThanFile_ = false;
    bar_->hide();
    Q_EMIT Saved(path);
    Q_EMIT StateChanged();
    Q_EMIT Told(tr("Saved %1").arg(path));
    return true;
}

bool FormTab::MayLeave() {
    if (!bench_->FinishEditing()) {
        return false;
    }
    LookAtDisk();
    if (!IsChanged()) {
        return true;
    }
    switch (AskWhetherToSave(*this, Name())) {
        case SaveAnswer::Save:
            return Save();
        case SaveAnswer::Discard:
            return true;
        case SaveAnswer::Cancel:
            break;
    }
    return false;
}

void FormTab::Run(bool on) {
    if (on && run_ == nullptr && bench_->FinishEditing()) {
        BeginRun();
    }
    if (!on && run_ != nullptr) {
        run_.reset();
        pages_->setCurrentWidget(bench_.get());
        LookAtDisk();
        TakeFocus();
    }
    Q_EMIT StateChanged();
}

void FormTab::BeginRun() {
    bench_->Try([this] {
        run_ = std::make_unique<RunPage>(setup_.context, bench_->GetDesign().Document());
    });
    if (run_ != nullptr) {
        bar_->hide();
        connect(
            run_.get(), &RunPage::BackWanted, this, [this] { Run(false); }, Qt::QueuedConnection);
        pages_->addWidget(run_.get());
        pages_->setCurrentWidget(run_.get());
        run_->View().FocusFirst();
    }
}

void FormTab::ShowCode() {
    const std::vector<Text> menus = bench_->GetOutline().SelectedMenus();
    OpenCode(menus.empty() ? NamesOfSelection(bench_->GetDesign()) : menus);
}

void FormTab::OpenCode(const std::vector<Text>& names) {
    if (run_ == nullptr && (ShowsCode() || bench_->FinishEditing())) {
        pages_->setCurrentWidget(code_);
        code_->GoTo(names);
        TakeFocus();
        Q_EMIT StateChanged();
    }
}

void FormTab::ShowForm() {
    if (ShowsCode()) {
        pages_->setCurrentWidget(bench_.get());
        TakeFocus();
        Q_EMIT StateChanged();
    }
}

void FormTab::FollowLostNames() {
    mentions_->Show(lost_->Names().empty()
                        ? QString()
                        : MentionMessage(lost_->Outline(), lost_->Names(), lost_->FormName()));
}

bool FormTab::IsFileInDoubt() const {
    return isOlderThanFile_ || file_.WasChangedByOthers(bench_->GetDesign());
}

void FormTab::DoubtFile() {
    isOlderThanFile_ = true;
    LookAtDisk();
}

// Without its file, the form is unsaved work.
void FormTab::LookAtDisk() {
    if (file_.IsGone()) {
        bench_->GetDesign().History().resetClean();
        bar_->ShowGone(Name());
    } else if (run_ == nullptr && IsFileInDoubt()) {
        bar_->Show(file_.ChangedName(bench_->GetDesign()));
    } else {
        bar_->hide();
    }
}

void FormTab::Reload() {
    FormDesign& design = bench_->GetDesign();
    try {
        // A file in UTF-8 is recognised; another one may not be what this version is written in.
        design.Reload(forms::Load(PathOf(file_.Path()), design.Document().CompanionCodePage()));
    } catch (const forms::FormError& error) {
        Warn(*this, tr("%1 cannot be opened.").arg(Name()), QString::fromUtf8(error.what()));
        return;
    }
    file_.AcceptChangesByOthers(design);  // also for the version that Undo brings back
    isOlderThanFile_ = false;
    bar_->hide();
    TakeFocus();
    Q_EMIT Told(tr("Read again. Undo brings your version back."));
}

void FormTab::KeepMine() {
    FormDesign& design = bench_->GetDesign();
    file_.AcceptChangesByOthers(design);
    design.History().resetClean();  // the file is not this version
    isOlderThanFile_ = false;
    bar_->hide();
    TakeFocus();
}

void FormTab::Compare() {
    try {
        ShowDifference(*this, bench_->GetDesign().Document(), file_.Path());
    } catch (const forms::FormError& error) {
        Warn(*this, tr("%1 cannot be opened.").arg(Name()), QString::fromUtf8(error.what()));
    }
}

// Areas have no focus proxies: Tab would not reach the other widgets in them.
std::vector<FormTab::Part> FormTab::Parts() const {
    std::vector<Part> parts;
    const auto addBar = [&](QWidget& bar) {
        for (QPushButton* const button : bar.findChildren<QPushButton*>()) {
            if (button->isVisible()) {
                parts.push_back({&bar, button});
                return;
            }
        }
    };
    addBar(*bar_);
    if (ShowsCode()) {
        parts.push_back({&code_->Procedures(), &code_->Procedures()});
        parts.push_back({code_->Code().parentWidget(), &code_->Code()});
    } else {
        parts.push_back({&bench_->GetToolbox(), &bench_->GetToolbox().List()});
        parts.push_back({&bench_->GetCanvas(), &bench_->GetCanvas().GetGlass()});
        if (bench_->GetOutline().isVisible()) {
            parts.push_back({&bench_->GetOutline(), &bench_->GetOutline().Tree()});
        }
        parts.push_back({&bench_->Properties(), &bench_->Properties().Table()});
    }
    addBar(*mentions_);
    return parts;
}

void FormTab::MoveFocus(bool next) {
    const std::vector<Part> parts = Parts();
    const QWidget* const focus = QApplication::focusWidget();
    const auto here = std::ranges::find_if(parts, [focus](const Part& part) {
        return part.area == focus || (focus != nullptr && part.area->isAncestorOf(focus));
    });
    const std::size_t at = here == parts.end() ? 0 : static_cast<std::size_t>(here - parts.begin());
    const std::size_t step = next ? 1 : parts.size() - 1;
    parts[(at + step) % parts.size()].stop->setFocus(Qt::TabFocusReason);
}

void FormTab::TakeFocus() {
    if (ShowsCode()) {
        code_->Code().setFocus();
    } else if (run_ == nullptr) {
        bench_->GetCanvas().GetGlass().setFocus();
    }
}

}  // namespace lumenkit::lumenform
