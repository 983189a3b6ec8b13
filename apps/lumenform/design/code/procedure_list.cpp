#include "apps/lumenform/design/code/procedure_list.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QScopedValueRollback>

#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

constexpr int procedureRole = Qt::UserRole;

QString ListOf(const std::vector<Text>& names) {
    QStringList list;
    for (const Text& name : names) {
        list.append(qt::ToQString(name));
    }
    return list.join(QStringLiteral(", "));
}

}  // namespace

QString NameOf(const Procedure& procedure) {
    QString name = qt::ToQString(procedure.name);
    switch (procedure.kind) {
        case Procedure::Kind::Declarations:
            return QCoreApplication::translate("procedure_list", "(Declarations)");
        case Procedure::Kind::Get:
            return name + QStringLiteral(" (Get)");
        case Procedure::Kind::Let:
            return name + QStringLiteral(" (Let)");
        case Procedure::Kind::Set:
            return name + QStringLiteral(" (Set)");
        case Procedure::Kind::Sub:
        case Procedure::Kind::Function:
            break;
    }
    return name;
}

ProcedureList::ProcedureList(QWidget* parent) : QListWidget(parent) {
    setAccessibleName(tr("Procedures"));
    setUniformItemSizes(true);
    setSpacing(1);
    setFrameShape(QFrame::NoFrame);
    connect(this, &QListWidget::currentItemChanged, this,
            [this](const QListWidgetItem* row) { Choose(row); });
    connect(this, &QListWidget::itemClicked, this, &ProcedureList::Choose);
    connect(this, &QListWidget::itemDoubleClicked, this, &ProcedureList::CodeWanted);
}

void ProcedureList::Show(const CodeOutline& outline, const std::vector<Text>& names) {
    const QScopedValueRollback syncing(isSyncing_, true);
    clear();
    rows_.assign(outline.Procedures().size(), nullptr);
    AddRow(outline.Procedures().front(), 0);
    std::vector<std::size_t> own;
    std::vector<std::size_t> mentioning;
    std::vector<bool> isPlaced(rows_.size());
    isPlaced[0] = true;
    for (const Mention& mention : outline.Mentioning(names)) {
        if (!isPlaced[mention.procedure]) {
            isPlaced[mention.procedure] = true;
            (mention.isOwn ? own : mentioning).push_back(mention.procedure);
        }
    }
    std::vector<std::size_t> others;
    for (std::size_t index = 0; index < isPlaced.size(); ++index) {
        if (!isPlaced[index]) {
            others.push_back(index);
        }
    }
    const bool hasGroups = !own.empty() || !mentioning.empty();
    AddGroup(ListOf(names), outline, own);
    AddGroup(tr("Mention %1").arg(ListOf(names)), outline, mentioning);
    AddGroup(hasGroups ? tr("Others") : QString(), outline, others);
}

void ProcedureList::AddGroup(const QString& title, const CodeOutline& outline,
                             const std::vector<std::size_t>& procedures) {
    if (!procedures.empty() && !title.isEmpty()) {
        AddHeading(title);
    }
    for (const std::size_t index : procedures) {
        AddRow(outline.Procedures()[index], index);
    }
}

void ProcedureList::AddHeading(const QString& title) {
    auto* const row = new QListWidgetItem(title, this);
    row->setFlags(Qt::NoItemFlags);  // cannot be chosen
    QFont bold = font();
    bold.setBold(true);
    row->setFont(bold);
    row->setForeground(palette().color(QPalette::Active, QPalette::Text));
    row->setToolTip(title);
}

void ProcedureList::AddRow(const Procedure& procedure, std::size_t index) {
    auto* const row = new QListWidgetItem(NameOf(procedure), this);
    row->setData(procedureRole, QVariant::fromValue<qulonglong>(index));
    row->setToolTip(row->text());
    rows_[index] = row;
}

void ProcedureList::SetCurrent(std::size_t procedure) {
    const QScopedValueRollback syncing(isSyncing_, true);
    if (procedure < rows_.size()) {
        setCurrentItem(rows_[procedure]);
    }
}

void ProcedureList::Choose(const QListWidgetItem* row) {
    if (!isSyncing_ && row != nullptr && row->data(procedureRole).isValid()) {
        Q_EMIT Chosen(row->data(procedureRole).toULongLong());
    }
}

void ProcedureList::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        Q_EMIT CodeWanted();
    } else {
        QListWidget::keyPressEvent(event);
    }
}

}  // namespace lumenkit::lumenform
