#include "apps/lumenform/design/window/form_commands.h"

#include <QApplication>
#include <QClipboard>
#include <QKeySequence>
#include <QList>
#include <QMimeData>
#include <array>

#include "apps/lumenform/design/canvas/selection.h"
#include "apps/lumenform/design/icons/icons.h"
#include "apps/lumenform/design/model/arrange.h"
#include "apps/lumenform/design/model/clipboard.h"
#include "apps/lumenform/design/model/containers.h"
#include "apps/lumenform/design/model/stacking.h"

namespace lumenkit::lumenform {

namespace {

void Copy(Workbench& bench) {
    QApplication::clipboard()->setMimeData(CopySelected(bench.GetDesign()).release());
}

void Cut(Workbench& bench) {
    Copy(bench);
    DeleteSelected(bench.GetDesign());
}

void PasteHere(Workbench& bench) {
    if (const QMimeData* data = QApplication::clipboard()->mimeData(); HoldsControls(data)) {
        Glass& glass = bench.GetCanvas().GetGlass();
        Paste(bench.GetDesign(), *data, glass.SeenPart());
        glass.ShowSelected();
    }
}

void Duplicate(Workbench& bench) {
    Glass& glass = bench.GetCanvas().GetGlass();
    DuplicateSelected(bench.GetDesign(), glass.SeenPart());
    glass.ShowSelected();
}

// Property pages have no menu bar.
bool CanHaveMenus(const FormDesign& design) {
    return !SameText(design.Document().Root().ClassName(), u"VB.PropertyPage", Compare::IgnoreCase);
}

void Reveal(Workbench& bench) {
    BringIntoView(bench.GetDesign());
    bench.GetCanvas().GetGlass().ShowSelected();
}

}  // namespace

FormCommands::FormCommands(QWidget& window)
    : QObject(&window),
      edit_(new QMenu(tr("&Edit"), &window)),
      format_(new QMenu(tr("F&ormat"), &window)) {
    FillEdit();
    FillFormat();
    connect(QApplication::clipboard(), &QClipboard::dataChanged, this, &FormCommands::Update);
    Update();
}

QAction* FormCommands::Add(QMenu& menu, const QString& icon, const QString& title,
                           const QKeySequence& keys, Needs needs,
                           const std::function<void(Workbench&)>& run) {
    QAction* const action = menu.addAction(ThemeIcon(icon), title, this, [this, run] {
        if (workbench_ != nullptr && workbench_->FinishEditing()) {
            workbench_->Try([&] { run(*workbench_); });
        }
    });
    action->setShortcut(keys);
    commands_.push_back({action, needs});
    return action;
}

void FormCommands::FillEdit() {
    AddHistoryCommands();
    edit_->addSeparator();
    AddClipboardCommands();
    edit_->addSeparator();
    caption_ = Add(*edit_, QStringLiteral("draw-text"), tr("Ca&ption…"), Qt::CTRL | Qt::Key_Return,
                   Needs::Page, [](Workbench& bench) { bench.Properties().EditWithPage(); });
    caption_->setToolTip(tr("Edit the caption with its markup and a live preview"));
    Add(*edit_, QStringLiteral("document-properties"), tr("P&roperties"), Qt::Key_F4, Needs::Form,
        [](Workbench& bench) { bench.Properties().Table().setFocus(); });
    QAction* const menus =
        Add(*edit_, QStringLiteral("application-menu"), tr("&Menus…"), Qt::CTRL | Qt::Key_E,
            Needs::Menus, [](Workbench& bench) { bench.EditMenus(); });
    menus->setToolTip(tr("Add, edit and rearrange the menus of the form"));
    tabOrder_ = Add(*edit_, QStringLiteral("format-list-ordered"), tr("Ta&b order"),
                    Qt::CTRL | Qt::Key_T, Needs::Form, [this](const Workbench& bench) {
                        bench.GetCanvas().SetTabOrderMode(tabOrder_->isChecked());
                    });
    tabOrder_->setCheckable(true);
    tabOrder_->setToolTip(tr("Click the controls in the tab order that they should have"));
}

// Qt's own actions for the history have no access keys.
void FormCommands::AddHistoryCommands() {
    undo_ = edit_->addAction(ThemeIcon(QStringLiteral("edit-undo")), tr("&Undo"));
    undo_->setIconText(tr("Undo"));
    undo_->setShortcut(QKeySequence::Undo);
    redo_ = edit_->addAction(ThemeIcon(QStringLiteral("edit-redo")), tr("R&edo"));
    redo_->setIconText(tr("Redo"));
    QList<QKeySequence> redoKeys = {QKeySequence(QKeySequence::Redo)};
    if (const QKeySequence usual(Qt::CTRL | Qt::Key_Y); !redoKeys.contains(usual)) {
        redoKeys.append(usual);  // the same keys twice would be ambiguous
    }
    redo_->setShortcuts(redoKeys);
    for (QAction* const action : {undo_, redo_}) {
        action->setEnabled(false);
    }
    connect(&history_, &QUndoGroup::canUndoChanged, undo_, &QAction::setEnabled);
    connect(&history_, &QUndoGroup::canRedoChanged, redo_, &QAction::setEnabled);
    connect(&history_, &QUndoGroup::undoTextChanged, undo_, [this](const QString& step) {
        undo_->setText(step.isEmpty() ? tr("&Undo") : tr("&Undo %1").arg(step));
    });
    connect(&history_, &QUndoGroup::redoTextChanged, redo_, [this](const QString& step) {
        redo_->setText(step.isEmpty() ? tr("R&edo") : tr("R&edo %1").arg(step));
    });
    FinishEditingBefore(*undo_, &QUndoGroup::undo);
    FinishEditingBefore(*redo_, &QUndoGroup::redo);
}

// Makes undo and redo finish the edit in progress first: it is the newest step of the history.
void FormCommands::FinishEditingBefore(const QAction& action, void (QUndoGroup::*step)()) {
    connect(&action, &QAction::triggered, this, [this, step] {
        if (workbench_ != nullptr && workbench_->FinishEditing()) {
            (history_.*step)();
        }
    });
}

void FormCommands::AddClipboardCommands() {
    Add(*edit_, QStringLiteral("edit-cut"), tr("Cu&t"), QKeySequence::Cut, Needs::Selection, Cut);
    Add(*edit_, QStringLiteral("edit-copy"), tr("&Copy"), QKeySequence::Copy, Needs::Selection,
        Copy);
    Add(*edit_, QStringLiteral("edit-paste"), tr("&Paste"), QKeySequence::Paste, Needs::Clipboard,
        PasteHere);
    Add(*edit_, QStringLiteral("edit-clone"), tr("Dup&licate"), Qt::CTRL | Qt::Key_D,
        Needs::Selection, Duplicate);
    Add(*edit_, QStringLiteral("edit-delete"), tr("&Delete"), QKeySequence::Delete, Needs::Object,
        [](Workbench& bench) { DeleteSelected(bench.GetDesign()); });
    Add(*edit_, QStringLiteral("edit-select-all"), tr("Select &all"), QKeySequence::SelectAll,
        Needs::Form, [](Workbench& bench) { SelectAll(bench.GetDesign()); });
}

void FormCommands::FillFormat() {
    AddAlignments();
    QMenu* const size =
        format_->addMenu(ThemeIcon(QStringLiteral("transform-scale")), tr("Make the same &size"));
    const auto addSize = [&](const QString& icon, const QString& title, Dimension dimension) {
        Add(*size, icon, title, {}, Needs::Two,
            [dimension](Workbench& bench) { MakeSameSize(bench.GetDesign(), dimension); });
    };
    addSize(QStringLiteral("zoom-fit-width"), tr("&Width"), Dimension::Width);
    addSize(QStringLiteral("zoom-fit-height"), tr("&Height"), Dimension::Height);
    addSize(QStringLiteral("zoom-fit-best"), tr("&Both"), Dimension::Both);
    QMenu* const center = format_->addMenu(ThemeIcon(QStringLiteral("align-vertical-center")),
                                           tr("&Center in the form"));
    QMenu* const space =
        format_->addMenu(ThemeIcon(QStringLiteral("distribute-horizontal")), tr("S&pace evenly"));
    struct Way {
        QString title;
        Qt::Orientation orientation;
        QString center;
        QString space;
    };
    const std::array ways{
        Way{tr("&Horizontally"), Qt::Horizontal, QStringLiteral("align-horizontal-center"),
            QStringLiteral("distribute-horizontal")},
        Way{tr("&Vertically"), Qt::Vertical, QStringLiteral("align-vertical-center"),
            QStringLiteral("distribute-vertical")}};
    for (const Way& each : ways) {
        const Qt::Orientation way = each.orientation;
        Add(*center, each.center, each.title, {}, Needs::Selection,
            [way](Workbench& bench) { CenterOnContainer(bench.GetDesign(), way); });
        Add(*space, each.space, each.title, {}, Needs::Three,
            [way](Workbench& bench) { SpaceEvenly(bench.GetDesign(), way); });
    }
    Add(*format_, QStringLiteral("grid-rectangular"), tr("Size to &grid"), {}, Needs::Selection,
        [](Workbench& bench) { SizeToGrid(bench.GetDesign(), bench.GetCanvas().GetGrid().step); });
    QAction* const reveal = Add(*format_, QStringLiteral("view-visible"), tr("Bring into &view"),
                                {}, Needs::OutOfView, Reveal);
    reveal->setToolTip(
        tr("Move the selected controls inside the form and their containers, or "
           "without a selection all controls that are out of view"));
    format_->addSeparator();
    AddOrderCommands();
}

void FormCommands::AddAlignments() {
    QMenu* const align =
        format_->addMenu(ThemeIcon(QStringLiteral("align-horizontal-left")), tr("&Align"));
    const auto add = [&](const QString& icon, const QString& title, Alignment alignment) {
        Add(*align, icon, title, {}, Needs::Two,
            [alignment](Workbench& bench) { Align(bench.GetDesign(), alignment); });
    };
    add(QStringLiteral("align-horizontal-left"), tr("&Lefts"), Alignment::Left);
    add(QStringLiteral("align-horizontal-center"), tr("&Centers"), Alignment::Center);
    add(QStringLiteral("align-horizontal-right"), tr("&Rights"), Alignment::Right);
    align->addSeparator();
    add(QStringLiteral("align-vertical-top"), tr("&Tops"), Alignment::Top);
    add(QStringLiteral("align-vertical-center"), tr("&Middles"), Alignment::Middle);
    add(QStringLiteral("align-vertical-bottom"), tr("&Bottoms"), Alignment::Bottom);
}

void FormCommands::AddOrderCommands() {
    Add(*format_, QStringLiteral("object-order-front"), tr("Bring to &front"), Qt::CTRL | Qt::Key_J,
        Needs::Selection, [](Workbench& bench) { BringToFront(bench.GetDesign()); });
    Add(*format_, QStringLiteral("object-order-back"), tr("Send to bac&k"), Qt::CTRL | Qt::Key_K,
        Needs::Selection, [](Workbench& bench) { SendToBack(bench.GetDesign()); });
}

void FormCommands::Follow(Workbench* workbench) {
    if (workbench_ != nullptr) {
        workbench_->GetDesign().disconnect(this);
        history_.removeStack(&workbench_->GetDesign().History());
    }
    workbench_ = workbench;
    if (workbench != nullptr) {
        FormDesign& design = workbench->GetDesign();
        history_.addStack(&design.History());
        history_.setActiveStack(&design.History());
        connect(&design, &FormDesign::SelectionChanged, this, &FormCommands::Update);
        connect(&design, &FormDesign::Edited, this, &FormCommands::Update);
        connect(&workbench->GetCanvas(), &Canvas::TabOrderModeChanged, tabOrder_,
                &QAction::setChecked);
    }
    Update();
}

bool FormCommands::IsThere(Needs needs) const {
    if (workbench_ == nullptr) {
        return false;
    }
    const std::size_t selected = workbench_->GetDesign().Selected().size();
    switch (needs) {
        case Needs::Form:
            return true;
        case Needs::Menus:
            return CanHaveMenus(workbench_->GetDesign());
        case Needs::Object:
            return !workbench_->GetDesign().IsFormSelected();
        case Needs::Selection:
            return selected >= 1;
        case Needs::Two:
            return selected >= 2;
        case Needs::Three:
            return selected >= 3;
        case Needs::Page:
            return workbench_->Properties().Page() != nullptr;
        case Needs::Clipboard:
            return HoldsControls(QApplication::clipboard()->mimeData());
        case Needs::OutOfView:
            return selected >= 1 || !OutOfView(workbench_->GetDesign()).empty();
    }
    return false;
}

void FormCommands::Update() {
    for (const Command& command : commands_) {
        command.action->setEnabled(IsThere(command.needs));
    }
}

}  // namespace lumenkit::lumenform
