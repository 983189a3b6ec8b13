#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeWidgetItemIterator>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "apps/lumenform/design/menus/menus_dialog.h"

namespace lumenkit::testing {

/// A user of the dialog for menus with mouse and keyboard.
class MenusUser {
 public:
    MenusUser() = default;
    /// The dialog must outlive its user.
    explicit MenusUser(const lumenform::MenusDialog& dialog) { Use(dialog); }
    /// For a default-constructed user, before anything else.
    void Use(const lumenform::MenusDialog& dialog) { dialog_ = &dialog; }

    template <typename Widget>
    Widget& Field(const QString& name) const {
        for (Widget* widget : dialog_->findChildren<Widget*>()) {
            if (widget->accessibleName() == name) {
                return *widget;
            }
        }
        throw std::out_of_range("no field " + name.toStdString());
    }
    template <typename Button>
    Button& ButtonWith(const QString& text) const {
        for (Button* button : dialog_->findChildren<Button*>()) {
            if (button->text().remove(u'&') == text) {
                return *button;
            }
        }
        throw std::out_of_range("no button " + text.toStdString());
    }
    void Press(const QString& text) const {
        QTest::mouseClick(&ButtonWith<QPushButton>(text), Qt::LeftButton);
    }
    void Toggle(const QString& text) const {
        auto& box = ButtonWith<QCheckBox>(text);
        box.setFocus();
        QTest::keyClick(&box, Qt::Key_Space);
    }
    void Type(const QString& field, const QString& text) const {
        auto& line = Field<QLineEdit>(field);
        line.setFocus();
        QTest::keyClick(&line, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&line, Qt::Key_Delete);
        QTest::keyClicks(&line, text);
    }
    void Choose(const QString& field, const QString& label) const {
        auto& box = Field<QComboBox>(field);
        box.setFocus();
        QTest::keyClicks(&box, label);
        EXPECT_EQ(box.currentText(), label);
    }
    void GoTo(const QString& name) const {
        const auto found = dialog_->Tree().findItems(name, Qt::MatchExactly | Qt::MatchRecursive,
                                                     lumenform::MenuTree::Name);
        ASSERT_EQ(found.size(), 1) << name.toStdString();
        dialog_->Tree().scrollToItem(found.front());
        QTest::mouseClick(dialog_->Tree().viewport(), Qt::LeftButton, {},
                          dialog_->Tree().visualItemRect(found.front()).center());
    }
    void TreeKey(Qt::Key key, Qt::KeyboardModifiers held = {}) const {
        dialog_->Tree().setFocus();
        QTest::keyClick(&dialog_->Tree(), key, held);
    }
    /// Returns the names, with two dots for each level.
    std::vector<std::string> Rows() const {
        std::vector<std::string> rows;
        for (QTreeWidgetItemIterator row(&dialog_->Tree()); *row != nullptr; ++row) {
            std::string indent;
            for (const QTreeWidgetItem* up = (*row)->parent(); up != nullptr; up = up->parent()) {
                indent += "..";
            }
            rows.push_back(indent + (*row)->text(lumenform::MenuTree::Name).toStdString());
        }
        return rows;
    }
    std::string Message() const { return dialog_->Message().toStdString(); }
    bool CanAccept() const { return ButtonWith<QPushButton>(QStringLiteral("OK")).isEnabled(); }
    void Accept() const {
        EXPECT_TRUE(CanAccept()) << Message();
        Press(QStringLiteral("OK"));
        EXPECT_FALSE(dialog_->isVisible()) << Message();
    }

 private:
    const lumenform::MenusDialog* dialog_ = nullptr;
};

}  // namespace lumenkit::testing
