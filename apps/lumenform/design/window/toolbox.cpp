#include "apps/lumenform/design/window/toolbox.h"

#include <QKeyEvent>

#include "apps/lumenform/design/model/naming.h"
#include "apps/lumenform/design/model/new_control.h"
#include "apps/lumenform/design/window/class_icon.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

constexpr int classRole = Qt::UserRole;

QString ClassOf(const QListWidgetItem& item) {
    return item.data(classRole).toString();
}

}  // namespace

Toolbox::Toolbox(const ClassTable& classes, QWidget* parent) : QListWidget(parent) {
    setAccessibleName(tr("Toolbox"));
    setUniformItemSizes(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    const int text = fontMetrics().height();
    setIconSize(QSize(text, text) * 5 / 4);
    for (const Text& name : NewControlClasses(classes)) {
        auto* const item = new QListWidgetItem(qt::ToQString(ShortClassName(name)), this);
        item->setData(classRole, qt::ToQString(name));
        item->setToolTip(tr("%1: draw it on the form, or double-click to add it in the middle")
                             .arg(qt::ToQString(name)));
    }
    DrawIcons();
    connect(this, &QListWidget::itemClicked, this,
            [this](const QListWidgetItem* item) { Q_EMIT Chosen(ClassOf(*item)); });
    connect(this, &QListWidget::itemDoubleClicked, this,
            [this](const QListWidgetItem* item) { Q_EMIT PutDown(ClassOf(*item)); });
}

void Toolbox::Release() {
    clearSelection();
    setCurrentRow(-1);
}

void Toolbox::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && currentItem() != nullptr) {
        Q_EMIT PutDown(ClassOf(*currentItem()));
    } else {
        QListWidget::keyPressEvent(event);
    }
}

void Toolbox::changeEvent(QEvent* event) {
    QListWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        DrawIcons();
    }
}

void Toolbox::DrawIcons() {
    for (int row = 0; row < count(); ++row) {
        item(row)->setIcon(ClassIcon(qt::ToText(ClassOf(*item(row))), palette()));
    }
}

}  // namespace lumenkit::lumenform
