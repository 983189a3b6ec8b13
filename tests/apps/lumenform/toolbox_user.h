#pragma once

#include <QTest>
#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

#include "apps/lumenform/design/window/toolbox.h"

namespace lumenkit::testing {

/// A user of a toolbox with the mouse.
class ToolboxUser {
 public:
    /// The toolbox must outlive its user.
    explicit ToolboxUser(const lumenform::Toolbox& toolbox) : toolbox_(toolbox) {}

    QListWidgetItem& Row(const QString& name) const {
        const auto found = toolbox_.List().findItems(name, Qt::MatchExactly);
        if (found.size() != 1) {
            throw std::out_of_range("no row " + name.toStdString());
        }
        return *found.front();
    }
    std::vector<std::string> ShownRows() const {
        std::vector<std::string> rows;
        for (int row = 0; row < toolbox_.List().count(); ++row) {
            if (!toolbox_.List().item(row)->isHidden()) {
                rows.push_back(toolbox_.List().item(row)->text().toStdString());
            }
        }
        return rows;
    }
    /// Returns the rows below "On this form".
    std::vector<std::string> RowsOnForm() const {
        const std::vector<std::string> rows = ShownRows();
        const auto heading = std::ranges::find(rows, "On this form");
        return {heading == rows.end() ? heading : heading + 1, rows.end()};
    }
    QPoint PointOf(const QString& name) const {
        toolbox_.List().scrollToItem(&Row(name));
        return toolbox_.List().visualItemRect(&Row(name)).center();
    }
    void ClickRow(const QString& name) const {
        const QPoint at = PointOf(name);
        QTest::mouseClick(toolbox_.List().viewport(), Qt::LeftButton, {}, at);
    }
    void DoubleClickRow(const QString& name) const {
        ClickRow(name);
        QTest::mouseDClick(toolbox_.List().viewport(), Qt::LeftButton, {}, PointOf(name));
    }

 private:
    const lumenform::Toolbox& toolbox_;
};

}  // namespace lumenkit::testing
