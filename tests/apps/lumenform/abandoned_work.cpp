#include "tests/apps/lumenform/abandoned_work.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace lumenkit::testing {

void LeaveBehind(const QString& store) {
    const QStringList copies = QDir(store).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& name : copies.filter(QRegularExpression(QStringLiteral("^(?!left)")))) {
        const QString left = store + QStringLiteral("/left-%1-").arg(copies.size()) + name;
        ASSERT_TRUE(QDir().mkdir(left));
        ASSERT_TRUE(QFile::copy(store + u'/' + name + QStringLiteral("/work"),
                                left + QStringLiteral("/work")));
    }
}

}  // namespace lumenkit::testing
