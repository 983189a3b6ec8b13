#include "apps/lumenform/design/menus/menu_fields.h"

#include <QLabel>
#include <QRegularExpressionValidator>
#include <QSignalBlocker>
#include <limits>

#include "apps/lumenform/design/model/menu_shortcuts.h"
#include "apps/lumenform/design/properties/menu_properties.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

MenuFields::MenuFields(QWidget* parent)
    : QWidget(parent),
      layout_(new QFormLayout(this)),
      caption_(new QLineEdit(this)),
      name_(new QLineEdit(this)),
      index_(new QLineEdit(this)),
      shortcut_(new QComboBox(this)),
      position_(new QComboBox(this)),
      help_(new QSpinBox(this)) {
    layout_->setContentsMargins(0, 0, 0, 0);
    layout_->setRowWrapPolicy(QFormLayout::WrapLongRows);
    layout_->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    AddTexts();
    AddLists();
    AddFlags();
}

void MenuFields::Add(const QString& title, QWidget& field) {
    auto* const label = new QLabel(title, this);
    label->setBuddy(&field);
    field.setAccessibleName(QString(title).remove(u'&').remove(u':'));
    layout_->addRow(label, &field);
}

void MenuFields::AddTexts() {
    Add(tr("Cap&tion:"), *caption_);
    Add(tr("&Name:"), *name_);
    Add(tr("Inde&x:"), *index_);
    caption_->setToolTip(tr("The letter after & is the access key. A single - is a separator."));
    index_->setToolTip(tr("The number in a control array. Empty: in no array."));
    index_->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]{0,5}")), this));
    connect(caption_, &QLineEdit::textEdited, this, [this](const QString& text) {
        Q_EMIT Changed([&](MenuEntry& entry) { entry.caption = qt::ToText(text); });
    });
    connect(name_, &QLineEdit::textEdited, this, [this](const QString& text) {
        Q_EMIT Changed([&](MenuEntry& entry) { entry.name = qt::ToText(text.trimmed()); });
    });
    connect(index_, &QLineEdit::textEdited, this, [this](const QString& text) {
        Q_EMIT Changed([&](MenuEntry& entry) {
            entry.index = text.isEmpty() ? std::nullopt : std::optional(text.toInt());
        });
    });
}

void MenuFields::AddLists() {
    Add(tr("&Shortcut:"), *shortcut_);
    Add(tr("Ne&gotiate position:"), *position_);
    Add(tr("&Help context:"), *help_);
    position_->addItems({tr("0 - None"), tr("1 - Left"), tr("2 - Middle"), tr("3 - Right")});
    position_->setToolTip(
        tr("The place in the menu bar while an object with menus of its own is active"));
    help_->setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    help_->setToolTip(tr("The number of the help topic for F1. 0: none"));
    connect(shortcut_, &QComboBox::activated, this, [this] {
        Q_EMIT Changed([this](MenuEntry& entry) {
            entry.shortcut = qt::ToText(shortcut_->currentData().toString());
        });
    });
    connect(position_, &QComboBox::activated, this, [this](int position) {
        Q_EMIT Changed([position](MenuEntry& entry) { entry.negotiatePosition = position; });
    });
    connect(help_, &QSpinBox::valueChanged, this, [this](int number) {
        Q_EMIT Changed([number](MenuEntry& entry) { entry.helpContextId = number; });
    });
}

void MenuFields::AddFlags() {
    AddFlag(tr("Chec&ked"), &MenuEntry::isChecked);
    AddFlag(tr("&Enabled"), &MenuEntry::isEnabled);
    AddFlag(tr("&Visible"), &MenuEntry::isVisible);
    AddFlag(tr("&Window list"), &MenuEntry::listsWindows);
}

void MenuFields::AddFlag(const QString& title, bool MenuEntry::*member) {
    auto* const box = new QCheckBox(title, this);
    layout_->addRow(QString(), box);
    connect(box, &QCheckBox::clicked, this, [this, member](bool isOn) {
        Q_EMIT Changed([member, isOn](MenuEntry& entry) { entry.*member = isOn; });
    });
    flags_.push_back({box, member});
}

void MenuFields::Show(const MenuEntry& entry) {
    setEnabled(true);
    caption_->setText(qt::ToQString(entry.caption));
    name_->setText(qt::ToQString(entry.name));
    index_->setText(entry.index ? QString::number(*entry.index) : QString());
    const MenuShortcut* const offered = FindShortcut(entry.shortcut);
    const QString written = qt::ToQString(offered == nullptr ? entry.shortcut : offered->written);
    shortcut_->clear();
    for (const Choice& choice : ShortcutChoices(entry.shortcut)) {
        shortcut_->addItem(qt::ToQString(choice.label), qt::ToQString(ToText(choice.value)));
    }
    shortcut_->setCurrentIndex(shortcut_->findData(written));
    position_->setCurrentIndex(entry.negotiatePosition);
    const QSignalBlocker quiet(help_);
    help_->setValue(entry.helpContextId);
    for (const Flag& flag : flags_) {
        flag.box->setChecked(entry.*flag.member);
    }
}

void MenuFields::ShowNone() {
    Show(MenuEntry());
    setEnabled(false);
}

void MenuFields::EditCaption() {
    caption_->setFocus();
    caption_->selectAll();
}

}  // namespace lumenkit::lumenform
