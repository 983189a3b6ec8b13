#include "tests/model/option_list_generator.h"

#include "frame/utf8.h"

namespace lumenkit::testing {

namespace {

constexpr TextView values[] = {u"a",       u"A",       u"b",      u"B",      u"",       u" a",
                               u"1",       u"2",       u"3",      u"x",      u"\u00E4", u"\u00C4",
                               u"\u03C3u", u"\u03A3U", u"\u0436", u"\u0416", u"ab",     u"aB"};
constexpr TextView captions[] = {u"One", u"Two", u"", u" ", u"a;b", u";", u"\U0001F600"};
constexpr char16_t looseUnits[] = {u'|', u'|', u';', u'a', u'B', u' ', u'\0'};
constexpr float distances[] = {0, 100, 240, 300.5F, -50, 2949.5F, 2950, 3e38F, 0.1F};
constexpr float widths[] = {3000, 3000, 1000, 51, 50, 0, 120.5F};
constexpr float sizes[] = {8.25F, 12, 9.75F, 0, -1, 2160, 2161};
constexpr TextView fonts[] = {u"MS Sans Serif", u"Arial", u"Courier"};
constexpr std::int16_t indices[] = {-1, -1, -2, 0, 0, 1, 1, 2, 3, 4, 5, 60, 32767, -32768};

}  // namespace

std::string Describe(const ListStep& step) {
    constexpr std::size_t shown = 80;
    return "action " + std::to_string(static_cast<int>(step.action)) + " number " +
           std::to_string(step.number) + " distance " + std::to_string(step.distance) + " text " +
           std::to_string(step.text.size()) + " units \"" + ToUtf8(step.text.substr(0, shown)) +
           "\"";
}

int OptionListGenerator::Number(int below) {
    return static_cast<int>(random_() % static_cast<std::uint32_t>(below));
}

std::vector<ListStep> OptionListGenerator::Steps() {
    contents_.clear();
    std::vector<ListStep> steps;
    const int count = 3 + Number(8);
    for (int step = 0; step < count; ++step) {
        steps.push_back(Step());
    }
    return steps;
}

// The most important actions come most often.
ListAction OptionListGenerator::Action() {
    const int draw = Number(100);
    if (draw < 25) {
        return ListAction::Contents;
    }
    if (draw < 43) {
        return ListAction::ListIndex;
    }
    if (draw < 58) {
        return ListAction::Text;
    }
    if (draw < 64) {
        return ListAction::UserClick;
    }
    if (draw < 69) {
        return ListAction::Mode;
    }
    if (draw < 73) {
        return ListAction::Reload;
    }
    return static_cast<ListAction>(Number(static_cast<int>(ListAction::Count)));
}

ListStep OptionListGenerator::Step() {
    ListStep step{.action = Action()};
    switch (step.action) {
        case ListAction::Contents:
            step.text = contents_ = Contents();
            break;
        case ListAction::Text:
            step.text = Value();
            break;
        case ListAction::ItemCaption:
            step.text = Any(captions);
            step.number = Any(indices);
            break;
        case ListAction::Caption:
            step.text = Any(captions);
            break;
        case ListAction::NewFont:
        case ListAction::ItemFontName:
            step.text = Any(fonts);
            break;
        case ListAction::ItemFontSize:
            step.distance = Any(sizes);
            break;
        case ListAction::LeftMargin:
        case ListAction::Spacing:
        case ListAction::TopMargin:
            step.distance = Any(distances);
            break;
        case ListAction::Width:
            step.distance = Any(widths);
            break;
        case ListAction::ListIndex:
            step.number = Any(indices);
            break;
        default:
            step.number = static_cast<std::int16_t>(Number(5));
            break;
    }
    return step;
}

Text OptionListGenerator::Value() {
    return Text(Any(values));
}

Text OptionListGenerator::Item() {
    switch (Number(4)) {
        case 0:
            return Value();
        case 1:
            return Value() + u";" + Value();
        default:
            return Value() + u";" + Text(Any(captions));
    }
}

Text OptionListGenerator::Contents() {
    if (OneIn(1500)) {
        return LongContents();
    }
    Text contents;
    if (OneIn(3) && !contents_.empty() && contents_.size() < 100) {
        contents = contents_;  // the same again with one unit changed
        contents[static_cast<std::size_t>(Number(static_cast<int>(contents.size())))] =
            Any(looseUnits);
        return contents;
    }
    if (OneIn(8)) {
        const int units = Number(10);
        for (int unit = 0; unit < units; ++unit) {
            contents += Any(looseUnits);
        }
        return contents;
    }
    const int items = OneIn(200) ? 40 + Number(30) : Number(6);
    for (int item = 0; item < items; ++item) {
        contents += (item > 0 ? u"|" : u"") + Item();
    }
    return contents + (OneIn(6) ? u"|" : u"");
}

// Returns a few items and then one that ends near 32767, the last position that can be counted.
Text OptionListGenerator::LongContents() {
    Text contents;
    const int items = Number(8);
    for (int item = 0; item < items; ++item) {
        contents += Item() + u"|";
    }
    const std::size_t length = 32765 + static_cast<std::size_t>(Number(4));
    contents.append(length - contents.size(), u'x');
    if (OneIn(3)) {
        contents[length - 1 - static_cast<std::size_t>(Number(3))] = u'|';
    }
    return contents + (OneIn(4) ? u"y|z" : u"");
}

}  // namespace lumenkit::testing
