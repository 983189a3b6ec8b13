// Compares a widget, whatever is read, measured and shown in between, with a slow model: settings
// that are collected until the widget is shown, and then one control that is loaded from them.
#include <QStringList>
#include <optional>
#include <random>

#include <gtest/gtest.h>
#include <lumenkit/widgets/voptlist.h>

#include "tests/support/test_rounds.h"
#include "tests/support/test_seed.h"
#include "tests/unit/widgets/told_messages.h"

namespace lumenkit::testing {
namespace {

using widgets::VOptList;

// What an option list holds, by the rules of its documentation.
struct ListModel {
    QStringList Values() const {
        QStringList values;
        for (const QString& item : contents.split(QLatin1Char('|'))) {
            values.append(item.section(QLatin1Char(';'), 0, 0));
        }
        return values;
    }
    int Index() const { return index; }

    QString contents = QStringLiteral("0;Item 0");
    int index = -1;
    double margin = 0;
    bool bold = false;
    bool isStarted = false;
};

class LiteralStart : public ::testing::Test {
 protected:
    int Number(int most) { return std::uniform_int_distribution<>(0, most)(random_); }
    bool Coin() { return Number(1) == 1; }

    std::mt19937 random_{TestSeed()};
};

TEST_F(LiteralStart, SettersInAnyOrderLeaveTheSameList) {
    const ToldMessages told;
    const QStringList contents = {QStringLiteral("a;A|b;B|c;C"), QStringLiteral("x;X"),
                                  QStringLiteral("1;One|2;Two")};
    for (int round = 0; round < Rounds(60); ++round) {
        VOptList list;
        ListModel model;
        // The settings that count are the last ones before the start.
        std::optional<int> wanted;
        for (int step = 0; step < 12; ++step) {
            switch (Number(6)) {
                case 0:
                    if (!model.isStarted) {
                        model.contents = contents.at(Number(2));
                        list.setContents(model.contents);
                    }
                    break;
                case 1:
                    if (!model.isStarted) {
                        wanted = Number(2);
                        list.setListIndex(*wanted);
                    } else if (const int index = Number(2); index < model.Values().size()) {
                        model.index = index;
                        list.setListIndex(index);
                    }
                    break;
                case 2: {
                    const double margin = Number(500);
                    list.setLeftMargin(margin);
                    model.margin = model.isStarted ? model.margin : margin;
                    break;
                }
                case 3: {
                    const bool bold = Coin();
                    list.setItemFontBold(bold);
                    model.bold = model.isStarted ? model.bold : bold;
                    break;
                }
                case 4:
                    static_cast<void>(list.sizeHint());  // needs a control
                    break;
                case 5:
                    static_cast<void>(list.text());  // needs one too
                    break;
                default:
                    if (!model.isStarted && Number(3) == 0) {
                        list.show();
                        model.isStarted = true;
                        if (wanted && *wanted < model.Values().size()) {
                            model.index = *wanted;
                        }
                    }
            }
        }
        if (!model.isStarted) {
            list.show();
            if (wanted && *wanted < model.Values().size()) {
                model.index = *wanted;
            }
        }
        ASSERT_EQ(list.contents(), model.contents);
        ASSERT_EQ(list.leftMargin(), model.margin);
        ASSERT_EQ(list.itemFontBold(), model.bold);
        ASSERT_EQ(list.listIndex(), model.index);
        ASSERT_EQ(list.text(), model.index < 0 ? QString() : model.Values().at(model.index));
    }
}

}  // namespace
}  // namespace lumenkit::testing
