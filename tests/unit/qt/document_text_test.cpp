// The text of a document, and its undo steps, against texts that are kept beside the document.
#include "runtime/qt/document_text.h"

#include <QPlainTextDocumentLayout>
#include <QTextCursor>
#include <QTextDocument>
#include <algorithm>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "runtime/qt/undo_steps.h"
#include "tests/support/test_rounds.h"
#include "tests/support/test_seed.h"

namespace lumenkit::qt {
namespace {

using Random = std::minstd_rand;

Text SomeText(Random& random) {
    static const std::vector<Text> pieces = {
        u"a",      u"b ",     u"\r\n",   u"\r",     u"\n",     Text(1, u'\0'), u"\u2028",
        u"\u2029", u"\uFDD0", u"\uFDD2", u"\uFDEF", u"\uFFFD", u"\uFFFC",      u"\xD83D\xDE00"};
    Text text;
    for (auto left = random() % 6; left > 0; --left) {
        text += pieces[random() % pieces.size()];
    }
    return text;
}

// A document, and its text after each undo step.
class EditedDocument {
 public:
    EditedDocument() {
        document_.setDocumentLayout(new QPlainTextDocumentLayout(&document_));
        QObject::connect(
            &document_, &QTextDocument::contentsChange,
            [this](int from, int /*removed*/, int added) { text_.Follow(from, added); });
    }

    // Replaces a part of the text, or several parts in one step.
    void Edit(Random& random) {
        Text expected = texts_[at_];
        bool isEmpty = true;
        QTextCursor cursor(&document_);
        steps_.Record(UndoSteps::Kind::None, cursor, [&] {
            for (auto left = 1 + random() % 3; left > 0; --left) {
                const Text inserted = SomeText(random);
                cursor.setPosition(SomePosition(random));
                cursor.setPosition(SomePosition(random), QTextCursor::KeepAnchor);
                const std::int32_t start = text_.ToUnit(cursor.selectionStart());
                const std::int32_t end = text_.ToUnit(cursor.selectionEnd());
                isEmpty = isEmpty && start == end && inserted.empty();
                text_.Insert(cursor, inserted);
                expected.replace(static_cast<std::size_t>(start),
                                 static_cast<std::size_t>(end - start), inserted);
            }
        });
        if (!isEmpty) {
            texts_.resize(++at_);
            texts_.push_back(expected);
        }
    }
    void Undo() {
        document_.undo();
        at_ -= std::min<std::size_t>(at_, 1);
    }
    void Redo() {
        document_.redo();
        at_ = std::min(at_ + 1, texts_.size() - 1);
    }
    void Check() {
        const Text& expected = texts_[at_];
        ASSERT_EQ(text_.Units(), expected);
        ASSERT_EQ(text_.Length(), static_cast<std::int32_t>(expected.size()));
        ASSERT_EQ(DocumentText(document_, true).Units(), expected) << "read anew";
        for (std::int32_t unit = 0; unit <= text_.Length(); ++unit) {
            const std::int32_t found = text_.ToUnit(text_.ToDocumentPosition(unit));
            ASSERT_TRUE(
                found == unit ||
                (found == unit - 1 && expected.substr(static_cast<std::size_t>(found), 2) == crLf));
        }
    }

 private:
    int SomePosition(Random& random) const {
        const auto positions = static_cast<Random::result_type>(document_.characterCount());
        return static_cast<int>(random() % positions);
    }

    QTextDocument document_;
    DocumentText text_{document_, true};
    UndoSteps steps_{document_, text_};
    std::vector<Text> texts_{Text()};
    std::size_t at_ = 0;
};

TEST(QtDocumentText, FollowsEditsAndUndoSteps) {
    Random random(testing::TestSeed());
    for (int round = 0; round < testing::Rounds(200); ++round) {
        EditedDocument edited;
        for (int step = 0; step < 40; ++step) {
            const auto kind = random() % 8;
            if (kind < 4) {
                edited.Edit(random);
            } else if (kind < 6) {
                edited.Undo();
            } else {
                edited.Redo();
            }
            edited.Check();
            ASSERT_FALSE(::testing::Test::HasFatalFailure()) << "in round " << round;
        }
    }
}

TEST(QtDocumentText, AnUnchangedTextKeepsItsVersion) {
    QTextDocument document;
    document.setDocumentLayout(new QPlainTextDocumentLayout(&document));
    DocumentText text(document, true);
    QObject::connect(&document, &QTextDocument::contentsChange,
                     [&](int from, int /*removed*/, int added) { text.Follow(from, added); });
    QTextCursor cursor(&document);
    text.Insert(cursor, u"ab\r\ncd");
    EXPECT_EQ(text.Units(), u"ab\r\ncd");
    const int version = text.Version();
    cursor.select(QTextCursor::Document);
    text.Insert(cursor, u"ab\r\ncd");
    QTextCharFormat format;
    format.setFontItalic(true);
    cursor.select(QTextCursor::Document);
    cursor.setCharFormat(format);
    EXPECT_EQ(text.Version(), version);
    text.Insert(cursor, u"ab\r\ncD");
    EXPECT_EQ(text.Version(), version + 1);
}

}  // namespace
}  // namespace lumenkit::qt
