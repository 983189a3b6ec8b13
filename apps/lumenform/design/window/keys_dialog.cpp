#include "apps/lumenform/design/window/keys_dialog.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QMenu>
#include <QStyle>
#include <QVBoxLayout>
#include <vector>

#include "apps/lumenform/design/icons/icons.h"
#include "apps/lumenform/design/look/fitting.h"

namespace lumenkit::lumenform {

namespace {

struct Hint {
    const char* action;
    const char* keys;
};

struct HintGroup {
    const char* title;
    std::vector<Hint> hints;
};

// What no menu has. The words of the keys are translated with the actions.
const std::vector<HintGroup>& HintGroups() {
    static const std::vector<HintGroup> groups{
        {QT_TRANSLATE_NOOP("keys", "Window"),
         {{QT_TRANSLATE_NOOP("keys", "Open the menus"), QT_TRANSLATE_NOOP("keys", "F10")},
          {QT_TRANSLATE_NOOP("keys", "Open the context menu"),
           QT_TRANSLATE_NOOP("keys", "Shift+F10 or Menu")},
          {QT_TRANSLATE_NOOP("keys",
                             "Show or hide the event log of a form that runs in its own window"),
           QT_TRANSLATE_NOOP("keys", "F12")}}},
        {QT_TRANSLATE_NOOP("keys", "Form"),
         {{QT_TRANSLATE_NOOP("keys", "Add a control to the selection, or remove it"),
           QT_TRANSLATE_NOOP("keys", "Shift+click or Ctrl+click")},
          {QT_TRANSLATE_NOOP("keys", "Select the next or previous control"),
           QT_TRANSLATE_NOOP("keys", "Tab, Shift+Tab")},
          {QT_TRANSLATE_NOOP("keys", "Leave the form"), QT_TRANSLATE_NOOP("keys", "F6, Shift+F6")},
          {QT_TRANSLATE_NOOP("keys", "Select the form; cancel a drag"),
           QT_TRANSLATE_NOOP("keys", "Esc")},
          {QT_TRANSLATE_NOOP("keys", "Move by a grid step"),
           QT_TRANSLATE_NOOP("keys", "arrow keys")},
          {QT_TRANSLATE_NOOP("keys", "Move by a pixel"),
           QT_TRANSLATE_NOOP("keys", "Ctrl+arrow keys")},
          {QT_TRANSLATE_NOOP("keys", "Resize by a grid step"),
           QT_TRANSLATE_NOOP("keys", "Shift+arrow keys")},
          {QT_TRANSLATE_NOOP("keys", "Ignore the grid while dragging"),
           QT_TRANSLATE_NOOP("keys", "hold Alt")},
          {QT_TRANSLATE_NOOP("keys", "Keep the container while dropping"),
           QT_TRANSLATE_NOOP("keys", "hold Ctrl")},
          {QT_TRANSLATE_NOOP("keys", "Zoom about the pointer"),
           QT_TRANSLATE_NOOP("keys", "Ctrl+wheel")},
          {QT_TRANSLATE_NOOP("keys", "Edit the selected control"),
           QT_TRANSLATE_NOOP("keys", "Enter or double click")}}},
        {QT_TRANSLATE_NOOP("keys", "Outline"),
         {{QT_TRANSLATE_NOOP("keys", "Change the order"),
           QT_TRANSLATE_NOOP("keys", "Alt+Up, Alt+Down, or drag")},
          {QT_TRANSLATE_NOOP("keys", "Rename"), QT_TRANSLATE_NOOP("keys", "F2")},
          {QT_TRANSLATE_NOOP("keys", "Delete"), QT_TRANSLATE_NOOP("keys", "Del")},
          {QT_TRANSLATE_NOOP("keys", "Go to the properties"),
           QT_TRANSLATE_NOOP("keys", "Enter or double click")}}},
        {QT_TRANSLATE_NOOP("keys", "Property list"),
         {{QT_TRANSLATE_NOOP("keys", "Search for a property"), QT_TRANSLATE_NOOP("keys", "Ctrl+F")},
          {QT_TRANSLATE_NOOP("keys", "Edit the value with a list or a dialog"),
           QT_TRANSLATE_NOOP("keys", "F4")},
          {QT_TRANSLATE_NOOP("keys", "Reset to the default"),
           QT_TRANSLATE_NOOP("keys", "Ctrl+Del")}}},
        {QT_TRANSLATE_NOOP("keys", "Toolbox"),
         {{QT_TRANSLATE_NOOP("keys", "Put a control into the middle of the form"),
           QT_TRANSLATE_NOOP("keys", "Enter or double click")},
          {QT_TRANSLATE_NOOP("keys", "Draw a control"),
           QT_TRANSLATE_NOOP("keys", "click, then drag on the form")}}},
        {QT_TRANSLATE_NOOP("keys", "Code"),
         {{QT_TRANSLATE_NOOP("keys", "Search the code"), QT_TRANSLATE_NOOP("keys", "Ctrl+F")},
          {QT_TRANSLATE_NOOP("keys", "Go to the next or previous hit"),
           QT_TRANSLATE_NOOP("keys", "F3, Shift+F3")},
          {QT_TRANSLATE_NOOP("keys", "Close the search"), QT_TRANSLATE_NOOP("keys", "Esc")}}},
        {QT_TRANSLATE_NOOP("keys", "Dialog of the menus"),
         {{QT_TRANSLATE_NOOP("keys", "Insert a menu"), QT_TRANSLATE_NOOP("keys", "Ins")},
          {QT_TRANSLATE_NOOP("keys", "Delete the menu"), QT_TRANSLATE_NOOP("keys", "Del")},
          {QT_TRANSLATE_NOOP("keys", "Move the menu"),
           QT_TRANSLATE_NOOP("keys", "Alt+Up, Alt+Down")},
          {QT_TRANSLATE_NOOP("keys", "Move the menu into or out of a submenu"),
           QT_TRANSLATE_NOOP("keys", "Alt+Right, Alt+Left")}}},
        {QT_TRANSLATE_NOOP("keys", "Dialogs of lists and texts"),
         {{QT_TRANSLATE_NOOP("keys", "Move the item"),
           QT_TRANSLATE_NOOP("keys", "Alt+Up, Alt+Down")},
          {QT_TRANSLATE_NOOP("keys", "Take the text over"),
           QT_TRANSLATE_NOOP("keys", "Ctrl+Enter")}}},
        {QT_TRANSLATE_NOOP("keys", "Recent forms"),
         {{QT_TRANSLATE_NOOP("keys", "Open the form"), QT_TRANSLATE_NOOP("keys", "Enter")},
          {QT_TRANSLATE_NOOP("keys", "Remove the form from the list"),
           QT_TRANSLATE_NOOP("keys", "Del")}}}};
    return groups;
}

QString KeysText(const char* text) {
    return QCoreApplication::translate("keys", text);
}

// "&Open…" without the mnemonic and the dots.
QString PlainTitle(QString title) {
    return title.remove(u'&').remove(QStringLiteral("…"));
}

// Qt names the two keys differently that are both labelled Enter.
QString ShownKeys(const QAction& action) {
    QStringList keys;
    for (const QKeySequence& sequence : action.shortcuts()) {
        QString text = sequence.toString(QKeySequence::NativeText);
        if (sequence[0].key() == Qt::Key_Return) {
            text.replace(QKeySequence(Qt::Key_Return).toString(QKeySequence::NativeText),
                         QKeySequence(Qt::Key_Enter).toString(QKeySequence::NativeText));
        }
        keys.append(text);
    }
    return keys.join(QStringLiteral(", "));
}

void AddRow(QTreeWidgetItem& group, const QString& action, const QString& keys) {
    new QTreeWidgetItem(&group, {action, keys});
}

}  // namespace

KeysDialog::KeysDialog(const QList<QMenu*>& menus, QWidget* parent)
    : QDialog(parent), search_(new QLineEdit(this)), keys_(new QTreeWidget(this)) {
    setWindowTitle(tr("Keys and mouse"));
    LayOut();
    for (const QMenu* const menu : menus) {
        QTreeWidgetItem& group = AddGroup(PlainTitle(menu->title()));
        AddCommands(*menu, group);
        if (group.childCount() == 0) {
            delete &group;
        }
    }
    AddHints();
    keys_->expandAll();
    FitColumns();
    connect(search_, &QLineEdit::textChanged, this, &KeysDialog::SearchFor);
}

void KeysDialog::LayOut() {
    search_->setPlaceholderText(tr("Search"));
    search_->setAccessibleName(tr("Search"));
    search_->addAction(ThemeIcon(QStringLiteral("edit-find")), QLineEdit::LeadingPosition);
    search_->setClearButtonEnabled(true);
    keys_->setAccessibleName(tr("Keys and mouse"));
    keys_->setHeaderLabels({tr("Action"), tr("Keys")});
    keys_->setRootIsDecorated(false);
    keys_->header()->setStretchLastSection(false);
    keys_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    keys_->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    keys_->setAlternatingRowColors(true);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(search_);
    layout->addWidget(keys_);
    layout->addWidget(buttons);
}

// Opens wide enough for the longest rows.
void KeysDialog::FitColumns() {
    int width = 2 * keys_->frameWidth() + style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    for (int column = 0; column < keys_->columnCount(); ++column) {
        keys_->resizeColumnToContents(column);
        width += keys_->columnWidth(column);
    }
    constexpr int lines = 30;
    const int wide =
        width + layout()->contentsMargins().left() + layout()->contentsMargins().right();
    ResizeWithin(*this, {wide, lines * fontMetrics().height()});
}

QTreeWidgetItem& KeysDialog::AddGroup(const QString& title) {
    auto* const group = new QTreeWidgetItem(keys_, {title});
    QFont font = keys_->font();
    font.setBold(true);
    group->setFont(0, font);
    group->setFlags(Qt::ItemIsEnabled);
    return *group;
}

void KeysDialog::AddCommands(const QMenu& menu, QTreeWidgetItem& group) {
    for (const QAction* const action : menu.actions()) {
        if (action->menu() != nullptr) {
            AddCommands(*action->menu(), group);
        } else if (!action->shortcuts().isEmpty() && !listed_.contains(action)) {
            listed_.insert(action);
            AddRow(group, PlainTitle(action->iconText()), ShownKeys(*action));
        }
    }
}

void KeysDialog::AddHints() {
    for (const HintGroup& group : HintGroups()) {
        QTreeWidgetItem& parent = AddGroup(KeysText(group.title));
        for (const Hint& hint : group.hints) {
            AddRow(parent, KeysText(hint.action), KeysText(hint.keys));
        }
    }
}

// Shows the rows with the text and the groups that have any.
void KeysDialog::SearchFor(const QString& text) {
    for (int i = 0; i < keys_->topLevelItemCount(); ++i) {
        QTreeWidgetItem& group = *keys_->topLevelItem(i);
        bool isAnyShown = false;
        for (int j = 0; j < group.childCount(); ++j) {
            QTreeWidgetItem& row = *group.child(j);
            const bool isShown = row.text(0).contains(text, Qt::CaseInsensitive) ||
                                 row.text(1).contains(text, Qt::CaseInsensitive);
            row.setHidden(!isShown);
            isAnyShown = isAnyShown || isShown;
        }
        group.setHidden(!isAnyShown);
    }
}

}  // namespace lumenkit::lumenform
