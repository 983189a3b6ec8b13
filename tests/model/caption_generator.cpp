#include "tests/model/caption_generator.h"

namespace lumenkit::testing {

Text CaptionGenerator::Caption() {
    Text caption;
    for (std::size_t pieces = Below(14); pieces > 0; --pieces) {
        caption += Piece();
    }
    return caption;
}

Text CaptionGenerator::Lines(int count) {
    Text caption;
    for (int line = 1; line <= count; ++line) {
        caption += OneIn(4) ? PieceWithoutSeparator() : Text(u"x");
        caption += line < count ? AnyCase(u"|CR|") : Text();
    }
    return caption;
}

Text CaptionGenerator::Piece() {
    return OneIn(5) ? AnyCase(OneOf({u"|CR|", u"|CR|CR|", u"|Q|CR|", u"|CR|Q|", u"|B:1|CR|",
                                     u"|CR||CR|", u"|before:5|CR|"}))
                    : PieceWithoutSeparator();
}

// Returns a piece without a separator. Two adjacent pieces may still form one.
Text CaptionGenerator::PieceWithoutSeparator() {
    switch (Below(9)) {
        case 0:
            return AnyCase(OneOf({u"|Q|", u"|Q|Q|", u"|Q||Q|", u"||Q|", u"|Q||"}));
        case 1:
            return AnyCase(OneOf({u"|", u"||", u"|||", u"|C", u"|CR", u"|Q", u":", u"|:|", u","}));
        case 2:
            return Word();
        case 3:
            return AnyCase(OneOf({u"|BEFORE:+3E38|", u"|BEFORE:-3E38|", u"|BEFORE:16777216|",
                                  u"|BEFORE:+1|", u"|BEFORE:+0.1|", u"|B:TRUE", u"|U:1|"}));
        case 4:
            return Word() + Text(OneOf({u" ", u"\t", u"\n", u"\""})) + Word();
        default:
            return Command();
    }
}

Text CaptionGenerator::AnyCase(TextView text) {
    Text cased(text);
    for (char16_t& unit : cased) {
        if (OneIn(3)) {
            unit = LowerUnit(unit);
        }
    }
    return cased;
}

Text CaptionGenerator::Word() {
    return Text(OneOf({u"", u"a", u"Hello", u"CR", u"Q", u"ÄÖÜ", u"ΑΩ", u"ЖЯ", u"İ", u"ẞ",
                       u"\u212A", u"\U0001F600", TextView(u"\xD83D\0", 2), u"\xDE00", u"12"}));
}

Text CaptionGenerator::Command() {
    Text command = u"|" + Name();
    if (!OneIn(12)) {
        command += u":" + Parameter();
    }
    if (OneIn(10)) {
        command += AnyCase(OneOf({u"|Q|", u"|Q", u"Q|"}));
    }
    return OneIn(8) ? command : command + u"|";
}

Text CaptionGenerator::Name() {
    return AnyCase(
        OneOf({u"B",      u"BOLD", u"I",     u"ITALIC", u"ITAL", u"ITALS",  u"U",      u"COLOR",
               u"COLOR",  u"FORE", u"FORE",  u"SIZE",   u"SIZE", u"BEFORE", u"BEFORE", u"BEFORE",
               u"BEFORE", u"FONT", u"ÜNDER", u"SİZE",   u"",     u" B",     u"CR",     u"Q"}));
}

Text CaptionGenerator::Parameter() {
    switch (Below(6)) {
        case 0:
        case 1:
            return AnyCase(
                OneOf({u"0", u"1", u"TRUE", u"FALSE", u" 1", u"ON", u"", u"ÄΩ", u"1:0"}));
        case 2:
            return Color();
        default:
            return Number();
    }
}

Text CaptionGenerator::Color() {
    Text color;
    for (std::size_t commas = Below(5); commas > 0; --commas) {
        color += Component() + u',';
    }
    return color + Component();
}

Text CaptionGenerator::Component() {
    return OneIn(4) ? Text() : OneIn(2) ? Digits(3, 10) : Number();
}

Text CaptionGenerator::Number() {
    Text number(OneOf({u"", u"", u"", u"+", u"+", u"-", u"-", u"--"}));
    switch (Below(10)) {
        case 0:
            number += AnyCase(u"&H") + Digits(5, 16) + Text(OneOf({u"", u"&"}));
            break;
        case 1:
            number += AnyCase(u"&O") + Digits(7, 8) + Text(OneOf({u"", u"&"}));
            break;
        case 2:
            number += Digits(3, 10) + u"." + Digits(4, 10);
            break;
        case 3:
            number +=
                Digits(2, 10) + AnyCase(OneOf({u"E", u"D", u"E+", u"E-", u"D-"})) + Digits(2, 10);
            break;
        case 4:
            number += AnyCase(OneOf({u"1E400", u"3E38", u"1E39", u"1D-400", u"&HFFFFFFFFF", u"&H",
                                     u"&O777777777777", u"2147483647.5", u"2147483648",
                                     u"99999999999", u"0.5", u"1.5", u"2.5", u".", u"E5"}));
            break;
        default:
            number += Digits(4, 10);
    }
    return OneIn(4) ? Blurred(number) : number;
}

Text CaptionGenerator::Digits(std::size_t most, std::size_t radix) {
    Text digits;
    for (std::size_t count = 1 + Below(most); count > 0; --count) {
        digits += u"0123456789ABCDEF"[Below(radix)];
    }
    return digits;
}

// Inserts blanks and other units into the number.
Text CaptionGenerator::Blurred(TextView number) {
    Text blurred;
    for (const char16_t unit : number) {
        blurred += OneIn(4) ? OneOf({u" ", u"\t", u"\n", u"\r", u"x"}) : TextView();
        blurred += unit;
    }
    return blurred;
}

}  // namespace lumenkit::testing
