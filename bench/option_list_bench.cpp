// Benchmarks of the option list on the memory runtime: the cost of an item to parse and to set up,
// the growth of that cost with the list, and assigning contents again against creating the list
// again. All rows but the parsing include the work of the memory runtime, which finds a button
// among n in log n steps.
#include <array>
#include <memory>
#include <utility>

#include "bench/choices.h"
#include "bench/ratio_table.h"
#include "runtime/memory/form.h"
#include "runtime/memory/hosted_control.h"
#include "voptlist/contents.h"
#include "voptlist/voptlist.h"

namespace {

using lumenkit::ClassTable;
using lumenkit::Text;
using lumenkit::TextView;
using lumenkit::VOptList;
using lumenkit::bench::AddComparison;
using lumenkit::bench::Choices;
using lumenkit::bench::Ratio;
using lumenkit::bench::RepeatedForMany;
using lumenkit::bench::Side;
namespace memory = lumenkit::memory;

constexpr int few = 10;
constexpr int many = lumenkit::bench::manyChoices;

const ClassTable classes = {.libraryName = u"lumenkit", .classes = {&lumenkit::voptlistClass, 1}};

class PlacedList {
 public:
    PlacedList() { placed_.StartNew(); }

    void Assign(TextView contents) {
        static_cast<VOptList&>(placed_.GetControl()).pLetContents(contents);
    }

 private:
    memory::Form form_{classes};
    memory::HostedControl placed_{form_, lumenkit::voptlistClass, {.isLogged = false}};
};

Side Parsing(int items) {
    return RepeatedForMany(items, [contents = Choices(items)] {
        lumenkit::ContentsWalk walk(contents);
        while (const auto item = walk.Next()) {
            lumenkit::bench::Keep(item->caption.data());
        }
    });
}

// Assigns two contents to a list in turn.
Side Alternating(int items, Text first, Text second) {
    struct Lists {
        PlacedList list;
        std::array<Text, 2> contents;
        std::size_t next = 0;
    };
    const auto lists = std::make_shared<Lists>();
    lists->contents = {std::move(first), std::move(second)};
    return RepeatedForMany(items, [lists] {
        lists->list.Assign(lists->contents[lists->next]);
        lists->next = 1 - lists->next;
    });
}

// Each assignment changes every caption.
Side SettingUp(int items) {
    return Alternating(items, Choices(items), Choices(items, u"Option "));
}

// Each assignment changes the text of one item, in the middle.
Side ChangingOne(int items) {
    const Text contents = Choices(items);
    Text changed = contents;
    changed[changed.find(u"Choice", changed.size() / 2)] = u'_';
    return Alternating(items, contents, changed);
}

// Creates a control, gives it these items and destroys it.
Side MakingAnew(int items) {
    return RepeatedForMany(items, [contents = Choices(items)] { PlacedList().Assign(contents); });
}

}  // namespace

int main(int argc, char** argv) {
    const auto growth = [](const char* what, Side (*side)(int), const char* aim) {
        AddComparison({what, "item", side(many), side(few), Ratio::TimesSlower, aim});
    };
    growth("parse, 1,000 items against 10", Parsing, "<= 1.25x");
    growth("set up, 1,000 items against 10", SettingUp, "<= 1.50x");
    growth("make anew, 1,000 items against 10", MakingAnew, "<= 1.50x");
    AddComparison({"1 of 1,000 items changed, against making all anew", "item", ChangingOne(many),
                   MakingAnew(many), Ratio::TimesFaster, ">= 50x"});
    return lumenkit::bench::RunComparisons(argc, argv);
}
