#include "tests/model/label_scene_generator.h"

#include <limits>

#include "frame/numbers.h"

namespace lumenkit::testing {

LabelScene LabelSceneGenerator::Scene() {
    LabelScene scene = Settings();
    scene.caption = Caption(scene.bulletPrefix);
    return scene;
}

LabelScene LabelSceneGenerator::LongScene() {
    LabelScene scene = Settings();
    scene.wordWrap = true;
    scene.bulletPrefix = u"";
    const std::size_t words = 900 + Below(300);
    for (std::size_t word = 0; word < words; ++word) {
        scene.caption += Text(1 + Below(3), u'a') + u' ';
    }
    scene.caption += OneIn(2) ? Words() : Text(200, u'z');
    return scene;
}

LabelScene LabelSceneGenerator::Settings() {
    LabelScene scene;
    scene.bulletPrefix = TextOf({u"", u"* ", u"* ", u"-", u"**", u" ", u"a"});
    scene.bulletIndent = OneOf<std::int16_t>({0, 0, 300, 300, 100, -200, -1000, 1000, 5000, 32767});
    scene.wordWrap = !OneIn(3);
    scene.width = OneOf<float>({0, 15, 500, 900, 1000, 1100, 1500, 2000, 2500, 3000.5F, 6000});
    scene.height = OneOf<float>({0, 240, 255, 262.5F, 270, 285, 495, 1000, 1500, 40000});
    scene.font.size = OneOf<float>({1, 2, 5, 7.5F, 8.25F, 8.25F, 10, 10, 10, 12, 13.3F, 24, 650});
    scene.font.bold = OneIn(4);
    scene.font.italic = OneIn(4);
    scene.font.underline = OneIn(4);
    scene.foreColor = OneOf({Color::ButtonText, Color::WindowText, Rgb(1, 2, 3), Color{}});
    scene.visibleBottom =
        OneOf<float>({0, 1, 240, 300, 480, 960, 2400, -50, std::numeric_limits<float>::infinity()});
    return scene;
}

Text LabelSceneGenerator::Caption(TextView prefix) {
    Text caption;
    for (std::size_t pieces = Below(14); pieces > 0; --pieces) {
        caption += Piece(prefix);
    }
    return caption;
}

Text LabelSceneGenerator::Piece(TextView prefix) {
    switch (Below(12)) {
        case 0:
        case 1:
            return u"|CR|";
        case 2:
            return u"|CR|" + Text(prefix) + Words();
        case 3:
            return Text(prefix) + Words();
        case 4:
        case 5:
        case 6:
            return Command();
        case 7:
            return Text(TextOf({u"|Q|", u"|", u"||", u"|CR", u"|u:1"}));
        default:
            return Words();
    }
}

Text LabelSceneGenerator::Words() {
    Text words;
    for (std::size_t count = Below(9); count > 0; --count) {
        words += Word();
        words += TextOf({u"", u" ", u" ", u" ", u" ", u"  ", u"    "});
    }
    return words;
}

Text LabelSceneGenerator::Word() {
    Text word;
    switch (Below(8)) {
        case 0:
            word.assign(Below(30), u'w');
            break;
        case 1:
            word = TextOf({u"*", u"* ", u"-", u"a ", u"\t", u"\U0001F600", u"Ä"});
            break;
        default:
            word.assign(1 + Below(8), u'x');
    }
    return word;
}

Text LabelSceneGenerator::Command() {
    const Text number = Decimal(static_cast<std::int32_t>(Below(300)));
    switch (Below(12)) {
        case 0:
        case 1:
            return Text(TextOf({u"|B:1|", u"|B:0|", u"|bold:true|", u"|b:yes|"}));
        case 2:
            return Text(TextOf({u"|I:1|", u"|I:0|", u"|u:1|", u"|itals:false|"}));
        case 3:
            return u"|Fore:" + number + u",128," + number + u"|";
        case 4:
        case 5:
        case 6:
            return u"|Size:" +
                   Text(TextOf({u"0", u"0.5", u"1", u"1.5", u"2", u"4", u"6.6", u"8", u"9", u"10",
                                u"12", u"14.25", u"16", u"30", u"700", u"-3", u"x"})) +
                   u"|";
        case 7:
            return u"|Before:" + number + u"|";
        case 8:
            return u"|Before:" + Text(TextOf({u"+", u"-"})) + number + u"|";
        case 9:
            // Values beyond the range of a font size, a height or single precision.
            return OneIn(8) ? Text(TextOf({u"|Size:2161|", u"|Size:1E39|", u"|Before:33000|",
                                           u"|Before:3E38|", u"|Before:1E39|", u"|Fore:1E99|"}))
                            : Text(u"|Before:0|");
        default:
            return Text(TextOf({u"|font:x|", u"|b|", u"|:|", u"|Color:255|"}));
    }
}

}  // namespace lumenkit::testing
