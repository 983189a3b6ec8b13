#include "forms/parser.h"

#include <utility>

#include "forms/scanner.h"
#include "forms/value_reader.h"
#include "frame/utf8.h"

namespace lumenkit::forms {

namespace {

class Parser {
 public:
    Parser(TextView text, const std::string& file) : scanner_(text, file) {}

    ParsedForm Parse() {
        ParseHead();
        do {
            ParseBodyLine();
        } while (!open_.empty());
        form_.tailPlace = scanner_.Here();
        form_.tail = scanner_.Rest();
        return std::move(form_);
    }

 private:
    void ParseHead();
    void ParseVersion();
    void ParseLibrary();
    void ParseBegin();
    void ParseBeginProperty();
    void ParseBodyLine();
    void ParseProperty(TextView name, Position place);
    void ParseEnd();
    CommentedLiteral ReadValueOrLine();
    void KeepIdleLine();
    void KeepLine(std::string_view expected);
    void Enter(std::unique_ptr<Block> block, Position place);
    void RefuseEndOfFile() const;

    Block& Innermost() const { return *open_.back(); }
    bool InGroup() const { return !open_.empty() && Innermost().Kind() == BlockKind::Group; }
    const char* ClosingKeyword() const { return InGroup() ? "EndProperty" : "End"; }
    const char* WantedInBody() const {
        return InGroup() ? "a property or EndProperty" : "a property, a block or End";
    }

    void BeginLine() {
        lineStart_ = scanner_.Offset();
        scanner_.SkipBlanks();
    }
    TextView Word(std::string_view expected) {
        const TextView word = scanner_.TakeWord();
        if (word.empty()) {
            scanner_.Expect(expected);
        }
        scanner_.SkipBlanks();
        return word;
    }
    // Calls `read`. If it cannot read the line, warns, returns to the present place and returns
    // false.
    template <typename Read>
    bool Try(const Read& read) {
        const std::size_t start = scanner_.Offset();
        try {
            read();
            return true;
        } catch (const FormError& error) {
            auto& warnings = form_.warnings;
            if (warnings.empty() || warnings.back().place.line != error.Place().line) {
                warnings.push_back({error.Place(), error.Description()});
            }
            scanner_.ReturnTo(start);
            return false;
        }
    }
    // Reads blanks, a comment and the line break; returns the whole line.
    Text FinishLine() {
        if (!Try([this] { ReadComment(scanner_); })) {
            scanner_.TakeLine();
        }
        scanner_.TakeLineBreak();
        return Text(scanner_.Since(lineStart_));
    }
    bool AtBlankLine() const {
        return !scanner_.AtEnd() && (scanner_.AtLineEnd() || scanner_.Peek() == u'\'');
    }

    Scanner scanner_;
    std::size_t lineStart_ = 0;
    ParsedForm form_;
    std::vector<Block*> open_;  // the blocks that are open, outermost first
};

void Parser::ParseHead() {
    ParseVersion();
    for (;;) {
        BeginLine();
        if (AtBlankLine()) {
            FinishLine();
            continue;
        }
        const TextView word = scanner_.TakeWord();
        if (IsKeyword(word, u"Begin")) {
            form_.head = scanner_.Since(0).substr(0, lineStart_);
            ParseBegin();
            return;
        }
        if (!IsKeyword(word, u"Object")) {
            scanner_.ReturnTo(scanner_.Offset() - word.size());
            scanner_.Expect("Object or Begin");
        }
        ParseLibrary();
    }
}

void Parser::ParseVersion() {
    BeginLine();
    const TextView word = scanner_.TakeWord();
    if (!IsKeyword(word, u"VERSION")) {
        scanner_.ReturnTo(scanner_.Offset() - word.size());
        scanner_.Expect("VERSION");
    }
    scanner_.SkipBlanks();
    const bool isNumber = scanner_.Peek() >= u'0' && scanner_.Peek() <= u'9';
    if (!isNumber) {
        scanner_.Expect("a version number");
    }
    ReadValue(scanner_);
    scanner_.TakeLineBreak();
}

void Parser::ParseLibrary() {
    scanner_.SkipBlanks();
    if (!scanner_.TakeIf(u'=')) {
        scanner_.Expect("'='");
    }
    scanner_.SkipBlanks();
    LibraryReference library{{}, {}, scanner_.Here()};
    const bool isRead = Try([&] {
        library.library = ReadQuoted(scanner_);
        if (scanner_.TakeIf(u';')) {
            scanner_.SkipBlanks();
            library.file = ReadQuoted(scanner_);
        }
    });
    FinishLine();
    if (isRead) {
        form_.libraries.push_back(std::move(library));
    }
}

void Parser::Enter(std::unique_ptr<Block> block, Position place) {
    if (open_.size() == deepestNesting) {
        scanner_.Fail(
            place, "expected at most " + std::to_string(deepestNesting) + " blocks in one another");
    }
    if (open_.empty()) {
        form_.root = std::move(block);
        open_.push_back(form_.root.get());
    } else {
        open_.push_back(&Innermost().Append(std::move(block)));
    }
}

// Starts after the word Begin.
void Parser::ParseBegin() {
    scanner_.SkipBlanks();
    Block::Places places{scanner_.Here(), {}};
    Text className(Word("a class name"));
    places.name = scanner_.Here();
    Text name(Word("a control name"));
    Text line = FinishLine();
    Enter(std::make_unique<Block>(BlockKind::Control, std::move(className), std::move(name),
                                  std::move(line), Text(), places),
          places.className);
}

// Starts after the word BeginProperty.
void Parser::ParseBeginProperty() {
    scanner_.SkipBlanks();
    Block::Places places{{}, scanner_.Here()};
    Text name(Word("a property name"));
    places.className = scanner_.Here();
    Text identifier;
    if (scanner_.Peek() == u'{') {
        Try([&] { identifier = ReadGuid(scanner_); });
    }
    Text line = FinishLine();
    Enter(std::make_unique<Block>(BlockKind::Group, std::move(identifier), std::move(name),
                                  std::move(line), Text(), places),
          places.name);
}

void Parser::RefuseEndOfFile() const {
    const Block& block = Innermost();
    scanner_.Expect(std::string(ClosingKeyword()) + " of " + ToUtf8(block.Name()) +
                    " (begun in line " + std::to_string(block.NamePlace().line) + ")");
}

void Parser::ParseBodyLine() {
    BeginLine();
    if (scanner_.AtEnd()) {
        RefuseEndOfFile();
    }
    if (AtBlankLine()) {
        KeepIdleLine();
        return;
    }
    const Position place = scanner_.Here();
    const std::size_t start = scanner_.Offset();
    const TextView word = scanner_.TakeWord();
    scanner_.SkipBlanks();
    if (word.empty()) {
        KeepLine(WantedInBody());
    } else if (scanner_.TakeIf(u'=')) {
        ParseProperty(word, place);
    } else if (IsKeyword(word, u"Begin") && !InGroup()) {
        ParseBegin();
    } else if (IsKeyword(word, u"BeginProperty")) {
        ParseBeginProperty();
    } else if (IsKeyword(word, InGroup() ? u"EndProperty" : u"End")) {
        ParseEnd();
    } else if (IsKeyword(word, u"Begin") || IsKeyword(word, u"End") ||
               IsKeyword(word, u"EndProperty")) {
        scanner_.ReturnTo(start);
        scanner_.Expect(WantedInBody());
    } else {
        KeepLine("'='");
    }
}

void Parser::KeepIdleLine() {
    const Position place{scanner_.Here().line, 1};
    Innermost().Append(std::make_unique<IdleLine>(IdleLine{FinishLine(), place}));
}

// Keeps a line that is neither a property nor the first or last line of a block.
void Parser::KeepLine(std::string_view expected) {
    Try([&] { scanner_.Expect(expected); });
    KeepIdleLine();
}

// Keeps a value that no notation fits.
CommentedLiteral Parser::ReadValueOrLine() {
    CommentedLiteral value;
    if (!Try([&] { value = ReadValue(scanner_); })) {
        value = {UnreadValue{Text(scanner_.TakeLine())}, {}};
    }
    return value;
}

// Starts after the equals sign.
void Parser::ParseProperty(TextView name, Position place) {
    scanner_.SkipBlanks();
    const Property::Places places{place, scanner_.Here()};
    const std::size_t start = scanner_.Offset();
    Text prefix(scanner_.Since(lineStart_));
    CommentedLiteral value = ReadValueOrLine();
    Text source(scanner_.Since(start));
    Text lineBreak(scanner_.TakeLineBreak());
    if (const auto* reference = std::get_if<Reference>(&value.literal)) {
        form_.references.push_back({*reference, places.value});
    }
    Innermost().Append(std::make_unique<Property>(
        Text(name), std::move(value.literal),
        PropertySource{std::move(prefix), std::move(source), std::move(lineBreak)},
        std::move(value.comment), places));
}

// Starts after the word that closes the innermost block.
void Parser::ParseEnd() {
    const std::size_t line = scanner_.Here().line;
    Innermost().Close(FinishLine(), line);
    open_.pop_back();
}

}  // namespace

ParsedForm ParseForm(TextView text, const std::string& file) {
    return Parser(text, file).Parse();
}

}  // namespace lumenkit::forms
