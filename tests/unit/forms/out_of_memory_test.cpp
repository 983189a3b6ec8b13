// Runs all operations on forms and makes each of their allocations fail in turn. The operation must
// raise std::bad_alloc and leave the document and its files unchanged, it must work the next time,
// and nothing may leak.
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <new>
#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "forms/block_keeper.h"
#include "forms/copy_control.h"
#include "forms/file.h"
#include "forms/form_bag.h"
#include "forms/literal.h"
#include "tests/support/allocation_counter.h"
#include "tests/unit/forms/sample_forms.h"
#include "tests/unit/frame/plain_font.h"

namespace lumenkit::forms::testing {
namespace {

namespace fs = std::filesystem;
using lumenkit::testing::AllocationCount;
using lumenkit::testing::AllocationFailurePending;
using lumenkit::testing::FailAllocation;
using lumenkit::testing::LiveAllocations;
using ::testing::StartsWith;

// Whether `act` fails at its `failing`-th allocation.
template <typename Act>
bool RunsOut(std::int64_t failing, const Act& act) {
    FailAllocation(failing);
    try {
        act();
    } catch (const std::bad_alloc&) {
        EXPECT_FALSE(AllocationFailurePending());
        return true;
    }
    FailAllocation(0);
    return false;
}

template <typename Act>
std::int64_t AllocationsOf(const Act& act) {
    const std::int64_t before = AllocationCount();
    act();
    return AllocationCount() - before;
}

std::pair<std::string, std::string> Written(const Document& document) {
    FormBytes bytes = document.Write();
    return {std::move(bytes.form), std::move(bytes.companion)};
}

// ---- Reading

TEST(FormOutOfMemory, NothingIsHalfRead) {
    for (const SampleForm& sample : SampleForms()) {
        SCOPED_TRACE(sample.name);
        sample.Parse();  // makes the table of the code page, which stays
        const std::int64_t count = AllocationsOf([&] { sample.Parse(); });
        const std::int64_t live = LiveAllocations();
        for (std::int64_t failing = 1; failing <= count; ++failing) {
            EXPECT_TRUE(RunsOut(failing, [&] { sample.Parse(); })) << failing;
            ASSERT_EQ(LiveAllocations(), live) << "leak at " << failing;
        }
    }
}

TEST(FormOutOfMemory, ARefusalIsReplacedByIt) {
    const std::string broken = "VERSION 5.00\nBegin VB.Form Form1\n   Caption = \"Form1\n";
    const auto parse = [&] {
        try {
            ParseBytes(broken);
        } catch (const FormError&) {
            return;
        }
        ADD_FAILURE() << "the form is broken";
    };
    parse();  // makes the table of the code page, which stays
    const std::int64_t count = AllocationsOf(parse);
    const std::int64_t live = LiveAllocations();
    for (std::int64_t failing = 1; failing <= count; ++failing) {
        EXPECT_TRUE(RunsOut(failing, parse)) << failing;
        ASSERT_EQ(LiveAllocations(), live) << "leak at " << failing;
    }
}

TEST(FormOutOfMemory, WritingHarmsNothing) {
    for (const SampleForm& sample : SampleForms()) {
        SCOPED_TRACE(sample.name);
        const Document document = sample.Parse();
        document.Root().Set(u"Tag", TextLiteral(u"for the\r\ncompanion"));
        const auto written = Written(document);
        const auto write = [&] { document.Write(); };
        const std::int64_t count = AllocationsOf(write);
        const std::int64_t live = LiveAllocations();
        for (std::int64_t failing = 1; failing <= count; ++failing) {
            EXPECT_TRUE(RunsOut(failing, write)) << failing;
            ASSERT_EQ(LiveAllocations(), live) << "leak at " << failing;
        }
        EXPECT_EQ(Written(document), written);
    }
}

// ---- Editing

struct Edit {
    const char* name;
    std::function<void(Document&)> run;
};

Block& Memo(const Document& document) {
    return Find(document, {u"VMemo1"});
}

// Returns a form with a companion, a library, a font, code and two controls.
Document EditedForm() {
    Document document = Sample("memo.frm").Parse();
    document.Root().AddControl(u"lumenkit.VLabel", u"VLabel1").Set(u"Caption", Text(u"plain"));
    return document;
}

const std::vector<Edit>& Edits() {
    static const std::vector<Edit> edits = {
        {"a property", [](Document& form) { Memo(form).Set(u"MaxLines", 1234567890); }},
        {"a text", [](Document& form) { Memo(form).Set(u"Tag", TextLiteral(u"another text")); }},
        {"a text of lines",
         [](Document& form) { Memo(form).Set(u"Text", TextLiteral(u"new\r\nlines")); }},
        {"a new property",
         [](Document& form) { Memo(form).Set(u"Locked", true, u"MaxCharsPerLine"); }},
        {"a property where a group was",
         [](Document& form) { Memo(form).Set(u"Font", Text(u"the same name")); }},
        {"a comment",
         [](Document& form) { Memo(form).FindProperty(u"MaxLines")->AddComment(u"of the page"); }},
        {"a new group",
         [](Document& form) {
             Memo(form).Group(u"Panels", u"{8E3867A5-8586-11D1-B16A-00C0F0283628}");
         }},
        {"no property", [](Document& form) { Memo(form).Remove(u"Text"); }},
        {"a new control",
         [](Document& form) { form.Root().AddControl(u"VB.Timer", u"Timer1", &Memo(form)); }},
        {"no control", [](Document& form) { form.Root().RemoveControl(Memo(form)); }},
        {"a control elsewhere",
         [](Document& form) { form.Root().MoveControl(Memo(form), nullptr); }},
        {"a control in another one",
         [](Document& form) {
             form.Root().Controls().back()->TakeControl(form.Root(), Memo(form), nullptr);
         }},
        {"a control's name", [](Document& form) { Memo(form).Rename(u"AMuchLongerName_1"); }},
        {"the form's name", [](Document& form) { form.RenameForm(u"frmAMuchLongerName"); }},
        {"the file's name", [](Document& form) { form.Rename("/somewhere/else/another.frm"); }},
        {"a library",
         [](Document& form) {
             form.AddLibrary(u"{00025600-0000-0000-C000-000000000046}#5.2#0", u"crystl32.ocx");
         }},
        {"a copy in the same form",
         [](Document& form) { CopyControl(form, Memo(form), form, form.Root(), u"VMemo2"); }},
    };
    return edits;
}

// Also compares the names, which are not part of the written bytes.
void ExpectSame(const Document& document, const Document& expected) {
    EXPECT_EQ(Written(document), Written(expected));
    EXPECT_EQ(document.Name(), expected.Name());
    EXPECT_EQ(document.CompanionName(), expected.CompanionName());
    EXPECT_EQ(document.Libraries().size(), expected.Libraries().size());
}

void SweepEdit(const Edit& edit) {
    Document edited = EditedForm();
    const std::int64_t count = AllocationsOf([&] { edit.run(edited); });
    for (std::int64_t failing = 1; failing <= count; ++failing) {
        SCOPED_TRACE(failing);
        const std::int64_t live = LiveAllocations();
        {
            Document document = EditedForm();
            EXPECT_TRUE(RunsOut(failing, [&] { edit.run(document); }));
            ExpectSame(document, EditedForm());
            edit.run(document);
            ExpectSame(document, edited);
        }
        ASSERT_EQ(LiveAllocations(), live);
    }
}

TEST(FormOutOfMemory, AnEditIsMadeWholeOrNotAtAll) {
    std::int64_t count = 0;
    for (const Edit& edit : Edits()) {
        SCOPED_TRACE(edit.name);
        SweepEdit(edit);
        Document document = EditedForm();
        count += AllocationsOf([&] { edit.run(document); });
    }
    EXPECT_GT(count, 100);
}

TEST(FormOutOfMemory, ARecordThatFindsNoRoomLengthensNoOther) {
    const std::string record(1000, 'r');
    Document document =
        ParseBytes("VERSION 5.00\nBegin A B\n   Icon = \"x.frx\":0000\nEnd\n", "ICON");
    const Property& icon = *document.Root().FindProperty(u"Icon");
    Reference added;
    const auto add = [&] { added = document.AddRecord(record); };
    std::int64_t failing = 1;
    for (; RunsOut(failing, add); ++failing) {
        EXPECT_EQ(document.RecordOf(icon), "ICON");
        EXPECT_EQ(document.Write().companion, "ICON");
    }
    EXPECT_GT(failing, 2);
    EXPECT_EQ(document.RecordOf(icon), "ICON");
    EXPECT_EQ(document.RecordOf(document.Root().Set(u"Picture", added)), record);
}

// If the copy fails, records already added to the other form's companion stay there.
TEST(FormOutOfMemory, ACopyInAnotherFormIsMadeWholeOrNotAtAll) {
    const Document from = ParseBytes(
        "VERSION 5.00\nBegin A B\n   Begin C D\n      Picture = \"x.frx\":0005\n"
        "      Text = $\"x.frx\":0000\n      Begin E F\n         G = 1\n      End\n   End\nEnd\n",
        std::string("\4a\r\nbPICTURE"));
    const std::string form = "VERSION 5.00\nBegin A B\n   Icon = \"own.frx\":0000\nEnd\n";
    std::int64_t failing = 1;
    for (bool failed = true; failed; ++failing) {
        SCOPED_TRACE(failing);
        const std::int64_t live = LiveAllocations();
        {
            Document to = ParseBytes(form, "ICON");
            const auto copy = [&] { CopyControl(from, Find(from, {u"D"}), to, to.Root(), u"D"); };
            failed = RunsOut(failing, copy);
            if (failed) {
                EXPECT_EQ(to.Write().form, form);
                EXPECT_THAT(to.Write().companion, StartsWith("ICON"));
                copy();
            }
            const Document again = to.WithBytes(to.Write());
            const Block& block = Find(again, {u"D"});
            EXPECT_EQ(again.RecordOf(*again.Root().FindProperty(u"Icon")).substr(0, 4), "ICON");
            EXPECT_EQ(again.RecordOf(*block.FindProperty(u"Picture")), "PICTURE");
            EXPECT_EQ(again.TextOf(*block.FindProperty(u"Text")), u"a\r\nb");
            EXPECT_EQ(Find(again, {u"D", u"F"}).FindProperty(u"G")->Literal(), Literal(1));
        }
        ASSERT_EQ(LiveAllocations(), live);
    }
    EXPECT_GT(failing, 30);
}

// ---- Properties of controls

host::FontRef MakeFont(const FontDescription& description) {
    auto font = std::make_shared<PlainFont>();
    font->SetName(description.name);
    font->SetSize(description.size);
    return font;
}

void SaveMemo(host::PropertyBag& bag) {
    bag.WriteProperty(u"Font", ObjectRef(std::make_shared<PlainFont>()), ObjectRef());
    bag.WriteProperty(u"Text", Text(u"three\r\nnew\r\nlines"), Text());
    bag.WriteProperty(u"MaxCharsPerLine", std::int16_t{60}, std::int16_t{0});
    bag.WriteProperty(u"FontUnderline", true, false);
}

TEST(FormOutOfMemory, ReadingAPropertyHarmsNothing) {
    for (const TextView name : {TextView(u"Font"), TextView(u"Text"), TextView(u"Tag")}) {
        const Document document = Sample("memo.frm").Parse();
        FormBag bag(document, Memo(document), MakeFont);
        const std::int64_t live = LiveAllocations();
        std::int64_t failing = 1;
        while (RunsOut(failing, [&] { bag.ReadProperty(name, Empty()); })) {
            ASSERT_EQ(LiveAllocations(), live);
            ++failing;
        }
        EXPECT_GT(failing, 1);
        EXPECT_EQ(Written(document), Written(Sample("memo.frm").Parse()));
    }
}

// Properties are written one by one, so a failed save may stop half-way. Each property is written
// completely or not at all, and the next save completes the rest.
TEST(FormOutOfMemory, SavedPropertiesAreCompletedTheNextTime) {
    const auto save = [](const Document& document) {
        FormBag bag(document, Memo(document), MakeFont);
        SaveMemo(bag);
    };
    const Document whole = Sample("memo.frm").Parse();
    const std::int64_t count = AllocationsOf([&] { save(whole); });
    EXPECT_GT(count, 20);
    for (std::int64_t failing = 1; failing <= count; ++failing) {
        SCOPED_TRACE(failing);
        const std::int64_t live = LiveAllocations();
        {
            const Document document = Sample("memo.frm").Parse();
            EXPECT_TRUE(RunsOut(failing, [&] { save(document); }));
            const Document stopped = document.WithBytes(document.Write());
            EXPECT_EQ(Written(stopped), Written(document));
            save(document);
            EXPECT_EQ(Written(document), Written(whole));
        }
        ASSERT_EQ(LiveAllocations(), live);
    }
}

// Controls trap the errors of their procedures, so the keeper does not see that saving stopped.
TEST(FormOutOfMemory, AKeeperWritesTheNextTimeWhatAControlCouldNot) {
    const auto trapped = [](host::PropertyBag& bag) {
        try {
            SaveMemo(bag);
        } catch (const std::bad_alloc&) {
            return;
        }
    };
    const auto nothing = [](host::PropertyBag&) {};
    const Document whole = Sample("memo.frm").Parse();
    BlockKeeper(whole, Memo(whole), nothing).Update(trapped);
    ASSERT_NE(Written(whole), Written(Sample("memo.frm").Parse()));
    std::int64_t failing = 1;
    for (bool fired = true; fired; ++failing) {
        SCOPED_TRACE(failing);
        const Document document = Sample("memo.frm").Parse();
        BlockKeeper keeper(document, Memo(document), nothing);
        FailAllocation(failing);
        try {
            keeper.Update(trapped);
        } catch (const std::bad_alloc&) {  // before or after the control's part
            EXPECT_FALSE(AllocationFailurePending());
        }
        fired = !AllocationFailurePending();
        FailAllocation(0);
        keeper.Update(trapped);
        EXPECT_EQ(Written(document), Written(whole));
    }
    EXPECT_GT(failing, 20);
}

// ---- Files

class FilesOutOfMemory : public ::testing::Test {
 protected:
    FilesOutOfMemory()
        : folder(fs::path(LUMENKIT_BINARY_DIR) / "forms_out_of_memory_files" /
                 ::testing::UnitTest::GetInstance()->current_test_info()->name()),
          path(folder / "memo.frm") {
        Restore();
    }
    ~FilesOutOfMemory() override { fs::remove_all(folder); }

    void Restore() const {
        fs::remove_all(folder);
        fs::create_directories(folder);
        WriteFile(path, Sample("memo.frm").form);
        WriteFile(folder / "memo.frx", Sample("memo.frm").companion);
    }
    std::set<std::string> Names() const {
        std::set<std::string> names;
        for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
            names.insert(entry.path().filename().string());
        }
        return names;
    }
    std::pair<std::string, std::string> Files() const {
        return {ReadFile(path), ReadFile(folder / "memo.frx")};
    }

    const fs::path folder;
    const fs::path path;
};

TEST_F(FilesOutOfMemory, LoadingHarmsNothing) {
    const std::int64_t count = AllocationsOf([&] { Load(path); });
    const std::int64_t live = LiveAllocations();
    for (std::int64_t failing = 1; failing <= count; ++failing) {
        EXPECT_TRUE(RunsOut(failing, [&] { Load(path); })) << failing;
        ASSERT_EQ(LiveAllocations(), live) << "leak at " << failing;
    }
    EXPECT_EQ(Written(Load(path)), Files());
}

TEST_F(FilesOutOfMemory, ASaveLeavesTheOldFilesAndNoOthers) {
    const auto old = Files();
    Document document = Load(path);
    Memo(document).Set(u"Text", TextLiteral(u"new\r\ntext"));
    const KnownFiles read = document.Files();
    const auto save = [&] { Save(document, path); };
    const std::int64_t count = AllocationsOf(save);
    EXPECT_EQ(Files(), Written(document));
    for (std::int64_t failing = 1; failing <= count; ++failing) {
        SCOPED_TRACE(failing);
        Restore();
        document.Files() = read;
        const std::int64_t live = LiveAllocations();
        EXPECT_TRUE(RunsOut(failing, save));
        ASSERT_EQ(LiveAllocations(), live);
        EXPECT_EQ(Files(), old);
        EXPECT_EQ(Names(), (std::set<std::string>{"memo.frm", "memo.frx"}));
        save();
        EXPECT_EQ(Files(), Written(document));
    }
}

TEST_F(FilesOutOfMemory, ASaveThroughALinkLeavesTheLink) {
    const fs::path link = folder / "link.frm";
    const Document document = Sample("empty.frm").Parse();
    const auto save = [&] { Save(document, link); };
    fs::create_symlink("memo.frm", link);
    const std::int64_t count = AllocationsOf(save);
    for (std::int64_t failing = 1; failing <= count; ++failing) {
        SCOPED_TRACE(failing);
        Restore();
        document.Files() = {};
        fs::create_symlink("memo.frm", link);
        EXPECT_TRUE(RunsOut(failing, save));
        EXPECT_TRUE(fs::is_symlink(link));
        EXPECT_EQ(ReadFile(path), Sample("memo.frm").form);
        EXPECT_EQ(Names(), (std::set<std::string>{"link.frm", "memo.frm", "memo.frx"}));
    }
}

}  // namespace
}  // namespace lumenkit::forms::testing
