#include "tests/model/literal_caption_page.h"

namespace lumenkit::testing {

namespace {

long LengthOf(const Text& text) {
    return static_cast<long>(text.size());
}

// Returns the unit at `place`, counted from 0.
char16_t UnitAt(const Text& text, long place) {
    return text.at(static_cast<std::size_t>(place));
}

// Returns the existing units from `start` up to, but not including, `end`.
Text Part(const Text& text, long start, long end) {
    Text part;
    for (long place = start; place < end && place < LengthOf(text); ++place) {
        if (place >= 0) {
            part += UnitAt(text, place);
        }
    }
    return part;
}

// Returns the position of the first `unit` at or after `start`, or 0 if there is none. Both are
// counted from 1.
long PositionOf(char16_t unit, const Text& text, long start) {
    for (long position = start; position <= LengthOf(text); ++position) {
        if (UnitAt(text, position - 1) == unit) {
            return position;
        }
    }
    return 0;
}

// Acts as the edit control does on EM_SETSEL.
void SetSelection(LiteralCaptionBox& box, long start, long end) {
    const long length = LengthOf(box.text);
    box.SelStart = start > length ? length : start;
    box.SelEnd = end == -1 || end > length ? length : end;
    if (box.SelStart > box.SelEnd) {
        const long swapped = box.SelStart;
        box.SelStart = box.SelEnd;
        box.SelEnd = swapped;
    }
}

std::string Insert(LiteralCaptionBox& box, const Text& token) {
    const long start = box.SelStart;
    const bool NoSelection = box.SelStart == box.SelEnd;
    const bool isSame = Part(box.text, box.SelStart, box.SelEnd) == token;
    Text edited = Part(box.text, 0, box.SelStart);
    edited += token;
    edited += Part(box.text, box.SelEnd, LengthOf(box.text));
    box.text = edited;
    const long behind = start + LengthOf(token);
    if (NoSelection) {
        SetSelection(box, behind, behind);
        return "insert";
    }
    SetSelection(box, start, behind);
    return isSame ? "replace by the same" : "replace";
}

std::string SelectNext(LiteralCaptionBox& box) {
    const Text& s = box.text;
    const bool walksOn = box.SelStart != box.SelEnd;
    const std::string from = walksOn ? ", walking on" : "";
    long p = walksOn ? box.SelEnd : box.SelStart;
    bool skipped = false;
    while (true) {
        if (p >= LengthOf(s)) {
            return (skipped ? "only blanks follow" : "nothing follows") + from;
        }
        if (UnitAt(s, p) != u' ') {
            break;
        }
        ++p;
        skipped = true;
    }
    if (UnitAt(s, p) == u'|') {
        const long next = PositionOf(u'|', s, p + 2);
        SetSelection(box, p, next == 0 ? LengthOf(s) : next);
        return (next == 0 ? "open command" : next == p + 2 ? "empty command" : "command") + from;
    }
    const long e = PositionOf(u' ', s, p + 2) - 1;
    const long bar = PositionOf(u'|', s, p + 2) - 1;
    if (e >= 1 && e < bar) {
        SetSelection(box, p, e);
        return "word up to a blank" + from;
    }
    SetSelection(box, p, bar);
    if (bar == -1) {
        return (e >= 1 ? "words up to the end" : "word up to the end") + from;
    }
    return "word up to a bar" + from;
}

}  // namespace

std::string PressLiterally(LiteralCaptionBox& box, int code) {
    switch (code) {
        case 2:
            return Insert(box, u"|B:1|");
        case 7:
            return Insert(box, u"|Fore:0,128,0|");
        case 9:
            return Insert(box, u"|i:1|");
        case 12:
            return Insert(box, u"|before:0|");
        case 13:
            if (box.SelStart != box.SelEnd) {
                ++box.beeps;
                return "beep";
            }
            return Insert(box, u"|CR|");
        case 14:
            return Insert(box, u"|B:0|");
        case 15:
            return Insert(box, u"|i:0|");
        case 19:
            return SelectNext(box);
        case 34:
            return Insert(box, u"|Q|");
        default:
            return "no action";
    }
}

LiteralMagnifier MagnifyLiterally(const LiteralCaptionBox& box) {
    LiteralMagnifier magnifier;
    magnifier.left = Part(box.text, box.SelStart - 4, box.SelStart);
    magnifier.middleIsSelection = box.SelStart != box.SelEnd;
    if (magnifier.middleIsSelection) {
        magnifier.middle = Part(box.text, box.SelStart, box.SelEnd);
        magnifier.right = Part(box.text, box.SelEnd, box.SelEnd + 4);
    } else {
        magnifier.middle = Part(box.text, box.SelStart, box.SelStart + 1);
        magnifier.right = Part(box.text, box.SelStart + 1, box.SelStart + 5);
    }
    return magnifier;
}

}  // namespace lumenkit::testing
