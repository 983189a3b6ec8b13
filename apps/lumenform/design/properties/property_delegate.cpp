#include "apps/lumenform/design/properties/property_delegate.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <algorithm>

#include "apps/lumenform/design/look/focus_look.h"
#include "apps/lumenform/design/properties/cell_editors.h"
#include "apps/lumenform/design/properties/color_text.h"
#include "apps/lumenform/design/properties/pictures/picture_format.h"
#include "apps/lumenform/design/properties/swatch.h"
#include "runtime/qt/palette_color.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

bool HasControlCharacters(TextView text) {
    return std::ranges::any_of(text, [](char16_t unit) { return unit < blank; });
}

// Shows the colour or the picture of a row before its text.
void Decorate(QStyleOptionViewItem& option, const PropertyRow& row) {
    const int side = option.fontMetrics.ascent();
    const double scale = option.widget->devicePixelRatioF();
    if (row.kind == PropertyKind::Color) {
        option.decorationSize = {side + side / 2, side};
        const QColor color = qt::ToQColor(ToColor(*row.value), option.widget->palette());
        option.icon = Swatch(color, option.decorationSize, scale);
    } else if (row.kind == PropertyKind::Picture) {
        option.decorationSize = {side, side};
        option.icon = PictureIcon(ToText(*row.value), option.decorationSize, scale);
    }
    if (!option.icon.isNull()) {
        option.features |= QStyleOptionViewItem::HasDecoration;
    }
}

// Converts the text of an editor to the value that is assigned to the property.
Value TypedValue(const PropertyRow& row, const QString& text) {
    return row.kind == PropertyKind::Color ? ColorFromText(qt::ViewOf(text))
                                           : Value(qt::ToText(text));
}

}  // namespace

bool HasMore(const PropertyRow& row) {
    if (!row.canSet || row.kind == PropertyKind::Choice) {
        return false;
    }
    const bool isPlain = row.kind == PropertyKind::Text || row.kind == PropertyKind::Number;
    return !isPlain || row.isOnPage || HasControlCharacters(EditedValue(row));
}

PropertyDelegate::PropertyDelegate(const PropertyModel& model, QObject* parent)
    : QStyledItemDelegate(parent), model_(model) {}

PropertyDelegate& PropertyDelegate::Self() const {
    // Qt creates editors through a constant delegate, but their events and signals change it.
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast)
    return const_cast<PropertyDelegate&>(*this);
}

// ---- Drawing

void PropertyDelegate::initStyleOption(QStyleOptionViewItem* option,
                                       const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    if (model_.IsHeading(index.row())) {
        option->state |= QStyle::State_Enabled;
        option->palette.setCurrentColorGroup(QPalette::Active);
        option->backgroundBrush = option->palette.brush(QPalette::Button);
        return;
    }
    if (!option->widget->hasFocus()) {
        MuteSelection(option->palette);
    }
    const PropertyRow& row = model_.Row(index.row());
    if (!row.canSet) {
        option->palette.setColor(QPalette::Text,
                                 option->palette.color(QPalette::Disabled, QPalette::Text));
    }
    const bool hasValue = row.value && !std::holds_alternative<Empty>(*row.value);
    if (index.column() == PropertyModel::ValueColumn && hasValue) {
        Decorate(*option, row);
    }
}

// ---- Editors

QWidget* PropertyDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                                        const QModelIndex& index) const {
    const PropertyRow& row = model_.Row(index.row());
    QWidget* const editor = row.kind == PropertyKind::Choice
                                ? NewChoiceBox(parent, row)
                                : NewValueEditor(parent, row, index.row());
    editor->setAccessibleName(qt::ToQString(row.name));
    editor->setAccessibleDescription(qt::ToQString(row.help));
    return editor;
}

QWidget* PropertyDelegate::NewChoiceBox(QWidget* parent, const PropertyRow& row) const {
    auto* const box = new ChoiceBox(parent);
    for (const Choice& choice : row.choices) {
        box->addItem(qt::ToQString(choice.label));
    }
    box->setCurrentText(qt::ToQString(EditedValue(row)));
    if (box->currentText() != qt::ToQString(EditedValue(row))) {
        box->setCurrentIndex(-1);
    }
    connect(box, &ChoiceBox::Picked, this, [this, box] { Finish(box); });
    return box;
}

QWidget* PropertyDelegate::NewValueEditor(QWidget* parent, const PropertyRow& row,
                                          int index) const {
    auto* const editor = new ValueEditor(HasMore(row), parent);
    editor->Line().installEventFilter(&Self());
    editor->Line().setAccessibleName(qt::ToQString(row.name));
    editor->Line().setAccessibleDescription(qt::ToQString(row.help));
    // A line edit can contain neither line breaks nor pictures.
    editor->Line().setReadOnly(row.kind == PropertyKind::Picture ||
                               HasControlCharacters(EditedValue(row)));
    connect(editor, &ValueEditor::MoreWanted, this, [this, editor, index] {
        Finish(editor);
        Q_EMIT MoreWanted(index);
    });
    return editor;
}

void PropertyDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    auto* const typed = qobject_cast<ValueEditor*>(editor);
    if (typed == nullptr || typed->IsModified()) {
        return;
    }
    const PropertyRow& row = model_.Row(index.row());
    typed->Line().setText(
        qt::ToQString(typed->Line().isReadOnly() ? ShownValue(row) : EditedValue(row)));
}

void PropertyDelegate::setModelData(QWidget* editor, QAbstractItemModel* /*model*/,
                                    const QModelIndex& index) const {
    const PropertyRow& row = model_.Row(index.row());
    if (const auto* box = qobject_cast<ChoiceBox*>(editor)) {
        const int chosen = box->currentIndex();
        if (chosen >= 0 && box->currentText() != qt::ToQString(EditedValue(row))) {
            const Value value = row.choices[static_cast<std::size_t>(chosen)].value;
            Q_EMIT Changed(index.row(), value);
        }
    } else if (const auto* typed = qobject_cast<ValueEditor*>(editor);
               typed != nullptr && typed->IsModified()) {
        const QString text = typed->Line().text();
        if (!row.value || text != qt::ToQString(EditedValue(row))) {
            Q_EMIT Changed(index.row(), TypedValue(row, text));
        }
    }
}

void PropertyDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                            const QModelIndex& /*index*/) const {
    editor->setGeometry(option.rect);
}

void PropertyDelegate::Close(QWidget* editor) const {
    PropertyDelegate& self = Self();
    if (const auto* typed = qobject_cast<ValueEditor*>(editor)) {
        typed->Line().removeEventFilter(&self);  // prevents a second commit
    }
    Q_EMIT self.closeEditor(editor);
}

void PropertyDelegate::Finish(QWidget* editor) const {
    Q_EMIT Self().commitData(editor);
    Close(editor);
}

// ---- Keys and focus of lines

bool PropertyDelegate::HandleKey(ValueEditor& editor, const QKeyEvent& event) {
    if (IsMore(event)) {
        if (editor.HasMore()) {
            Q_EMIT editor.MoreWanted();
        }
        return true;
    }
    switch (event.key()) {
        case Qt::Key_Escape:
            Close(&editor);
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            Finish(&editor);
            return true;
        case Qt::Key_Down:
        case Qt::Key_Up:
        case Qt::Key_Tab:
        case Qt::Key_Backtab: {
            const bool isBack = event.key() == Qt::Key_Up || event.key() == Qt::Key_Backtab;
            Finish(&editor);
            Q_EMIT StepWanted(isBack ? -1 : 1);
            return true;
        }
        default:
            return false;
    }
}

bool PropertyDelegate::eventFilter(QObject* object, QEvent* event) {
    auto* const line = qobject_cast<QLineEdit*>(object);
    auto* const editor =
        line == nullptr ? nullptr : qobject_cast<ValueEditor*>(line->parentWidget());
    if (editor == nullptr) {
        return QStyledItemDelegate::eventFilter(object, event);
    }
    switch (event->type()) {
        case QEvent::ShortcutOverride: {
            const auto& key = static_cast<const QKeyEvent&>(*event);
            if (key.key() == Qt::Key_Escape || IsMore(key)) {
                event->accept();
            }
            return false;
        }
        case QEvent::KeyPress:
            return HandleKey(*editor, *static_cast<QKeyEvent*>(event));
        case QEvent::FocusOut:
            // The context menu of the line edit does not end editing.
            if (QApplication::activePopupWidget() == nullptr) {
                Finish(editor);
            }
            return false;
        default:
            return false;
    }
}

}  // namespace lumenkit::lumenform
