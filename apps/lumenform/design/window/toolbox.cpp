#include "apps/lumenform/design/window/toolbox.h"

#include <QKeyEvent>
#include <QMenu>
#include <QVBoxLayout>

#include "apps/lumenform/design/icons/icons.h"
#include "apps/lumenform/design/icons/menu_style.h"
#include "apps/lumenform/design/model/naming.h"
#include "apps/lumenform/design/model/new_control.h"
#include "apps/lumenform/design/window/class_icon.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

constexpr int classRole = Qt::UserRole;

// Empty for a heading.
QString ClassOf(const QListWidgetItem& item) {
    return item.data(classRole).toString();
}

bool IsEnter(int key) {
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

}  // namespace

Toolbox::Toolbox(const FormDesign& design, QWidget* parent)
    : QWidget(parent), design_(design), search_(new QLineEdit), list_(new QListWidget) {
    LayOut();
    AddOffered();
    FollowForm();
    connect(&design, &FormDesign::ViewReplaced, this, &Toolbox::FollowForm);
    connect(search_, &QLineEdit::textChanged, this, &Toolbox::SearchFor);
    connect(list_, &QListWidget::itemClicked, this, [this](const QListWidgetItem* item) {
        if (!ClassOf(*item).isEmpty()) {
            Q_EMIT Chosen(ClassOf(*item));
        }
    });
    connect(list_, &QWidget::customContextMenuRequested, this, &Toolbox::OpenMenu);
    connect(list_, &QListWidget::itemDoubleClicked, this, [this](const QListWidgetItem* item) {
        if (!ClassOf(*item).isEmpty()) {
            Q_EMIT PutDown(ClassOf(*item));
        }
    });
}

void Toolbox::LayOut() {
    constexpr int margin = 4;
    search_->setPlaceholderText(tr("Search the toolbox"));
    search_->setAccessibleName(tr("Search the toolbox"));
    search_->addAction(ThemeIcon(QStringLiteral("edit-find")), QLineEdit::LeadingPosition);
    search_->setClearButtonEnabled(true);
    search_->installEventFilter(this);
    list_->setAccessibleName(tr("Toolbox"));
    list_->setUniformItemSizes(true);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list_->setContextMenuPolicy(Qt::CustomContextMenu);
    list_->installEventFilter(this);
    const int text = fontMetrics().height();
    list_->setIconSize(QSize(text, text) * 5 / 4);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, margin, 0, 0);
    layout->setSpacing(margin);
    layout->addWidget(search_);
    layout->addWidget(list_);
}

// ---- Rows

void Toolbox::AddOffered() {
    for (const Text& name : NewControlClasses(design_.Context().classes)) {
        AddClass(name);
    }
    offered_ = list_->count();
}

void Toolbox::FollowForm() {
    std::vector<Text> classes = ClassesOnForm(design_);
    if (classes == onForm_) {
        return;
    }
    onForm_ = std::move(classes);
    while (list_->count() > offered_) {
        delete list_->takeItem(offered_);
    }
    if (!onForm_.empty()) {
        AddHeading(tr("On this form"));
    }
    for (const Text& name : onForm_) {
        AddClass(name);
    }
    SearchFor(search_->text());
}

void Toolbox::AddHeading(const QString& text) {
    auto* const item = new QListWidgetItem(text, list_);
    item->setFlags(Qt::NoItemFlags);
    QFont font = list_->font();
    font.setBold(true);
    item->setFont(font);
    Colour(*item);
}

void Toolbox::AddClass(const Text& className) {
    const QString name = qt::ToQString(className);
    auto* const item = new QListWidgetItem(qt::ToQString(ShortClassName(className)), list_);
    item->setData(classRole, name);
    item->setToolTip(
        tr("%1: draw it on the form, or double-click to add it in the middle").arg(name));
    Colour(*item);
}

// A heading is no control that is disabled, so it is not grey.
void Toolbox::Colour(QListWidgetItem& item) const {
    if (ClassOf(item).isEmpty()) {
        item.setForeground(palette().color(QPalette::Active, QPalette::Text));
    } else {
        item.setIcon(ClassIcon(qt::ToText(ClassOf(item)), palette()));
    }
}

// A heading is shown with any row below it.
void Toolbox::SearchFor(const QString& text) {
    bool isAnyBelow = false;
    for (int row = list_->count() - 1; row >= 0; --row) {
        QListWidgetItem& item = *list_->item(row);
        const bool isHeading = ClassOf(item).isEmpty();
        const bool isShown =
            isHeading ? isAnyBelow : item.text().contains(text, Qt::CaseInsensitive);
        isAnyBelow = !isHeading && (isAnyBelow || isShown);
        item.setHidden(!isShown);
    }
}

void Toolbox::Release() {
    list_->clearSelection();
    list_->setCurrentRow(-1);
}

void Toolbox::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        for (int row = 0; row < list_->count(); ++row) {
            Colour(*list_->item(row));
        }
    }
}

void Toolbox::OpenMenu(QPoint at) {
    const QListWidgetItem* const item = list_->itemAt(at);
    if (item == nullptr || ClassOf(*item).isEmpty()) {
        return;
    }
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(tr("&Draw on the form"), this,
                    [this, name = ClassOf(*item)] { Q_EMIT Chosen(name); });
    menu->addAction(ThemeIcon(QStringLiteral("list-add")), tr("&Put into the middle of the form"),
                    this, [this, name = ClassOf(*item)] { Q_EMIT PutDown(name); });
    MenuStyle::UseFor(*menu);
    menu->popup(list_->viewport()->mapToGlobal(at));
}

// ---- Keyboard

bool Toolbox::HandleListKey(int key) {
    const QListWidgetItem* const current = list_->currentItem();
    if (!IsEnter(key) || current == nullptr || current->isHidden()) {
        return false;
    }
    Q_EMIT PutDown(ClassOf(*current));
    return true;
}

// Leaves the field: to the first row that is found, or after Esc to all rows.
bool Toolbox::HandleSearchKey(int key) {
    if (key == Qt::Key_Escape) {
        search_->clear();
    } else if (!IsEnter(key) && key != Qt::Key_Down) {
        return false;
    }
    list_->setFocus();
    for (int row = 0; row < list_->count(); ++row) {
        if (!list_->item(row)->isHidden() && !ClassOf(*list_->item(row)).isEmpty()) {
            list_->setCurrentRow(row);
            break;
        }
    }
    return true;
}

bool Toolbox::eventFilter(QObject* watched, QEvent* event) {
    const bool isSearch = watched == search_;
    if (event->type() == QEvent::ShortcutOverride && isSearch) {
        if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
            event->accept();
        }
    } else if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        return isSearch ? HandleSearchKey(key) : HandleListKey(key);
    }
    return QWidget::eventFilter(watched, event);
}

}  // namespace lumenkit::lumenform
