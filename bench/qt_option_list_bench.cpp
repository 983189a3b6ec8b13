// Benchmarks of the option list on Qt: creating and destroying a list, painting included, against
// the same number of radio buttons without a control around them; and assigning contents again.
#include <QApplication>
#include <QGroupBox>
#include <QRadioButton>
#include <array>
#include <memory>

#include "bench/choices.h"
#include "bench/qt_stage.h"
#include "bench/ratio_table.h"
#include "runtime/memory/property_bag.h"

namespace {

using lumenkit::Text;
using lumenkit::bench::AddComparison;
using lumenkit::bench::Choice;
using lumenkit::bench::Choices;
using lumenkit::bench::QtStage;
using lumenkit::bench::Ratio;
using lumenkit::bench::RepeatedForMany;
using lumenkit::bench::Side;
using lumenkit::bench::StageWindow;
namespace host = lumenkit::host;

constexpr int few = 100;
constexpr int many = lumenkit::bench::manyChoices;
constexpr host::Placement place = {.left = 0, .top = 0, .width = 6000, .height = 9000};

// Creates the list from saved properties, as a form does.
Side Making(QtStage& stage, int items) {
    auto saved = std::make_shared<lumenkit::memory::PropertyBag>();
    saved->Store(u"Contents", Choices(items));
    return RepeatedForMany(items, [&stage, saved, window = std::make_shared<StageWindow>()] {
        const auto list = stage.Place(u"VOptList", place, *window, saved.get());
        window->ShowNow();
    });
}

// Creates a plain Qt group box with buttons in the same places.
void MakeBare(StageWindow& window, int items) {
    constexpr int width = 396;
    constexpr int height = 16;
    QGroupBox box(&window);
    box.setGeometry(0, 0, 400, 600);
    for (int item = 0; item < items; ++item) {
        auto* button = new QRadioButton(QString::fromStdU16String(Choice(item)), &box);
        button->setGeometry(0, item * height, width, height);
    }
    box.show();
    window.ShowNow();
}

Side MakingBare(int items) {
    return RepeatedForMany(
        items, [items, window = std::make_shared<StageWindow>()] { MakeBare(*window, items); });
}

// Each assignment changes the text of one item, in the middle.
Side ChangingOne(QtStage& stage, int items) {
    struct List {
        StageWindow window;
        std::unique_ptr<lumenkit::qt::HostedControl> control;
        std::array<Text, 2> contents;
        std::size_t next = 0;
    };
    auto list = std::make_shared<List>();
    list->control = stage.Place(u"VOptList", place, list->window);
    list->contents.fill(Choices(items));
    Text& changed = list->contents[1];
    changed[changed.find(u"Choice", changed.size() / 2)] = u'_';
    return RepeatedForMany(items, [list] {
        list->control->Automation().Let(u"Contents", list->contents[list->next]);
        list->next = 1 - list->next;
        QApplication::processEvents();
    });
}

}  // namespace

int main(int argc, char** argv) {
    QtStage stage;
    AddComparison({"Qt: make a list of 1,000, against bare radio buttons", "item",
                   Making(stage, many), MakingBare(many), Ratio::TimesSlower, "<= 1.05x"});
    AddComparison({"Qt: make a list of 1,000, against lists of 100", "item", Making(stage, many),
                   Making(stage, few), Ratio::TimesSlower, "<= 1.10x"});
    AddComparison({"Qt: bare radio buttons, 1,000 against 100", "item", MakingBare(many),
                   MakingBare(few), Ratio::TimesSlower, ""});
    AddComparison({"Qt: 1 of 1,000 items changed, against making all anew", "item",
                   ChangingOne(stage, many), Making(stage, many), Ratio::TimesFaster, ">= 50x"});
    return lumenkit::bench::RunComparisons(argc, argv);
}
