#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QSpinBox>
#include <QWidget>
#include <functional>
#include <vector>

#include "apps/lumenform/design/model/menu_entries.h"

namespace lumenkit::lumenform {

/// The fields for the properties of one menu.
class MenuFields final : public QWidget {
    Q_OBJECT

 public:
    explicit MenuFields(QWidget* parent);

    void Show(const MenuEntry& entry);
    /// Disables all fields if there is no menu.
    void ShowNone();
    /// Moves the keyboard to the caption and selects it.
    void EditCaption();

 Q_SIGNALS:
    /// The user has changed a property: `change` makes the same change to an entry.
    void Changed(const std::function<void(lumenkit::lumenform::MenuEntry&)>& change);

 private:
    void AddTexts();
    void AddLists();
    void AddFlags();
    void AddFlag(const QString& title, bool MenuEntry::*member);
    void Add(const QString& title, QWidget& field);

    struct Flag {
        QCheckBox* box;
        bool MenuEntry::*member;
    };

    QFormLayout* layout_;
    QLineEdit* caption_;
    QLineEdit* name_;
    QLineEdit* index_;
    QComboBox* shortcut_;
    QComboBox* position_;
    QSpinBox* help_;
    std::vector<Flag> flags_;
};

}  // namespace lumenkit::lumenform
