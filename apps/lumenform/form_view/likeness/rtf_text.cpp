#include "apps/lumenform/form_view/likeness/rtf_text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "forms/code_page.h"

namespace lumenkit::lumenform {

namespace {

constexpr TextView beginning = u"{\\rtf";

bool IsLowerLetter(char16_t unit) {
    return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z');
}

bool IsDecimal(char16_t unit) {
    return unit >= u'0' && unit <= u'9';
}

int HexDigit(char16_t unit) {
    constexpr TextView digits = u"0123456789abcdef";
    const char16_t lower = unit >= u'A' && unit <= u'F' ? static_cast<char16_t>(unit + 32) : unit;
    const std::size_t found = digits.find(lower);
    return found == TextView::npos ? -1 : static_cast<int>(found);
}

// Groups that hold no words of the text.
bool IsSilent(TextView word) {
    constexpr std::array<TextView, 8> silent = {u"fonttbl", u"colortbl", u"stylesheet", u"info",
                                                u"pict",    u"object",   u"header",     u"footer"};
    return std::ranges::find(silent, word) != silent.end();
}

class RichTextReader {
 public:
    RichTextReader(TextView rich, int codePage) : rest_(rich), page_(codePage) {}

    Text Words() {
        while (!rest_.empty()) {
            const char16_t unit = Take();
            if (unit == u'{') {
                groups_.push_back(groups_.back());
            } else if (unit == u'}' && groups_.size() == 2) {
                break;  // the end of the rich text
            } else if (unit == u'}') {
                Leave();
            } else if (unit == u'\\') {
                Control();
            } else if (unit != u'\r' && unit != u'\n') {
                Say(unit);
            }
        }
        if (words_.ends_with(u'\n')) {
            words_.pop_back();  // the end of the last paragraph
        }
        return words_;
    }

 private:
    struct Group {
        bool isSilent = false;
        int replacements = 1;  // characters after \u that stand for it
    };

    char16_t Take() {
        const char16_t unit = rest_.front();
        rest_.remove_prefix(1);
        return unit;
    }

    void Leave() {
        groups_.pop_back();
        skipped_ = 0;
    }

    void Say(char16_t unit) {
        if (skipped_ > 0) {
            --skipped_;
        } else if (!groups_.back().isSilent) {
            words_ += unit;
        }
    }

    void Control() {
        if (rest_.empty()) {
            return;
        }
        if (IsLowerLetter(rest_.front())) {
            Word();
            return;
        }
        const char16_t sign = Take();
        if (sign == u'\'') {
            Byte();
        } else if (sign == u'*') {
            groups_.back().isSilent = true;
        } else if (sign == u'~') {
            Say(u'\u00A0');
        } else if (sign == u'\\' || sign == u'{' || sign == u'}') {
            Say(sign);
        } else if (sign == u'\r' || sign == u'\n') {
            Say(u'\n');
        }
    }

    void Byte() {
        const int high = rest_.empty() ? -1 : HexDigit(rest_[0]);
        const int low = rest_.size() < 2 ? -1 : HexDigit(rest_[1]);
        if (high < 0 || low < 0) {
            return;
        }
        rest_.remove_prefix(2);
        const std::string byte(1, static_cast<char>(high * 16 + low));
        for (const char16_t unit : page_.Decode(byte)) {
            Say(unit);
        }
    }

    void Word() {
        Text word;
        while (!rest_.empty() && IsLowerLetter(rest_.front())) {
            word += Take();
        }
        const bool isNegative = !rest_.empty() && rest_.front() == u'-';
        if (isNegative) {
            rest_.remove_prefix(1);
        }
        constexpr int largest = 100'000;
        int number = 0;
        while (!rest_.empty() && IsDecimal(rest_.front())) {
            number = std::min(number * 10 + (Take() - u'0'), largest);
        }
        if (!rest_.empty() && rest_.front() == u' ') {
            rest_.remove_prefix(1);
        }
        Obey(word, isNegative ? -number : number);
    }

    void Obey(const Text& word, int number) {
        if (word == u"par" || word == u"line") {
            Say(u'\n');
        } else if (word == u"tab") {
            Say(u'\t');
        } else if (word == u"uc") {
            groups_.back().replacements = std::max(number, 0);
        } else if (word == u"u") {
            Say(static_cast<char16_t>(number));
            skipped_ = groups_.back().replacements;
        } else if (IsSilent(word)) {
            groups_.back().isSilent = true;
        }
    }

    TextView rest_;
    forms::CodePage page_;
    std::vector<Group> groups_ = {Group()};
    int skipped_ = 0;
    Text words_;
};

}  // namespace

Text WordsOfRichText(TextView rich, int codePage) {
    return rich.starts_with(beginning) ? RichTextReader(rich, codePage).Words() : Text(rich);
}

}  // namespace lumenkit::lumenform
