#include "tests/apps/lumenform/entry.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QTest>

#include <gtest/gtest.h>

namespace lumenkit::testing {

void Compose(QWidget* widget, const QString& text) {
    QInputMethodEvent event;
    event.setCommitString(text);
    QApplication::sendEvent(widget, &event);
}

void FollowFirstLink(const lumenform::Notice& notice) {
    ASSERT_NE(notice.Links(), nullptr);
    QTest::mouseClick(notice.Links(), Qt::LeftButton, {}, QPoint(10, notice.Links()->height() / 2));
}

}  // namespace lumenkit::testing
