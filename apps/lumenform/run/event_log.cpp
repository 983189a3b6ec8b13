#include "apps/lumenform/run/event_log.h"

#include <QHeaderView>
#include <QScrollBar>
#include <concepts>
#include <cstddef>
#include <memory>
#include <variant>

#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

QString Shown(const Value& value) {
    return std::visit(
        []<typename T>(const T& held) -> QString {
            if constexpr (std::same_as<T, bool>) {
                return held ? QStringLiteral("True") : QStringLiteral("False");
            } else if constexpr (std::same_as<T, Text>) {
                return u'"' + qt::ToQString(held).replace(u'"', QStringLiteral("\"\"")) + u'"';
            } else if constexpr (std::same_as<T, float>) {
                return QString::number(static_cast<double>(held), 'g', 7);
            } else if constexpr (std::is_arithmetic_v<T>) {
                return QString::number(held);
            } else {
                return {};
            }
        },
        value);
}

QString ArgumentsOf(const ControlEvent& event) {
    QStringList shown;
    for (std::size_t index = 0; index < event.arguments.size(); ++index) {
        shown.append(qt::ToQString(event.parameters[index].name) + QStringLiteral(" = ") +
                     Shown(event.arguments[index]));
    }
    return shown.join(QStringLiteral(", "));
}

}  // namespace

EventLog::EventLog(QWidget* parent) : QTreeWidget(parent) {
    setHeaderLabels({tr("Control"), tr("Event"), tr("Arguments")});
    setAccessibleName(tr("Events"));
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    header()->setSectionResizeMode(QHeaderView::Interactive);
    const int letter = fontMetrics().averageCharWidth();
    constexpr int lettersOfName = 22;
    header()->resizeSection(0, lettersOfName * letter);
    header()->resizeSection(1, lettersOfName * letter);
}

QSize EventLog::sizeHint() const {
    constexpr int lines = 6;
    const int line = fontMetrics().lineSpacing();
    return {QTreeWidget::sizeHint().width(), header()->sizeHint().height() + lines * line};
}

void EventLog::Add(const ControlEvent& event) {
    const bool followed = verticalScrollBar()->value() == verticalScrollBar()->maximum();
    if (topLevelItemCount() == longest) {
        const std::unique_ptr<QTreeWidgetItem> oldest(takeTopLevelItem(0));
    }
    addTopLevelItem(new QTreeWidgetItem(
        QStringList{qt::ToQString(event.control), qt::ToQString(event.name), ArgumentsOf(event)}));
    if (followed) {
        scrollToBottom();
    }
}

}  // namespace lumenkit::lumenform
