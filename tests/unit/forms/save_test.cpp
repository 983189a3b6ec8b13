// Saves whose system calls fail, and saves at the same time.
#include "forms/save.h"

#include <barrier>
#include <filesystem>
#include <functional>
#include <set>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include "forms/file.h"
#include "forms/literal.h"
#include "tests/support/test_rounds.h"
#include "tests/unit/forms/sample_forms.h"

namespace lumenkit::forms::testing {
namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;

// Counts the calls and makes chosen ones fail.
class FaultyDisk final : public Disk {
 public:
    /// The numbers, from 1, of the calls that fail.
    std::set<std::size_t> failing;
    /// The names of the calls so far.
    std::vector<std::string> calls;
    /// Called before each call.
    std::function<void(const std::string& name)> before = [](const std::string&) {};

    bool Look(const fs::path& path, FileState& state) override {
        return Works("Look") && Disk::Look(path, state);
    }
    bool Read(const fs::path& path, std::string& bytes) override {
        return Works("Read") && Disk::Read(path, bytes);
    }
    bool List(const fs::path& where, std::vector<fs::path>& names) override {
        return Works("List") && Disk::List(where, names);
    }
    Opened Create(const fs::path& path, bool isPrivate) override {
        return Works("Create") ? Disk::Create(path, isPrivate) : Opened{};
    }
    // A failing call writes one half.
    bool Write(Handle file, std::string_view bytes) override {
        const bool works = Works("Write");
        return Disk::Write(file, works ? bytes : bytes.substr(0, bytes.size() / 2)) && works;
    }
    bool KeepAttributes(Handle file, const FileState& old) override {
        return Works("KeepAttributes") && Disk::KeepAttributes(file, old);
    }
    bool Flush(Handle file) override { return Works("Flush") && Disk::Flush(file); }
    // The system closes a file even if it reports an error.
    bool Close(Handle file) override {
        const bool works = Works("Close");
        return Disk::Close(file) && works;
    }
    Outcome Link(const fs::path& file, const fs::path& name) override {
        return Works("Link") ? Disk::Link(file, name) : Outcome::Failed;
    }
    bool Rename(const fs::path& from, const fs::path& to) override {
        return Works("Rename") && Disk::Rename(from, to);
    }
    bool Remove(const fs::path& path) override { return Works("Remove") && Disk::Remove(path); }
    void FlushFolder(const fs::path& where) override {
        if (Works("FlushFolder")) {
            Disk::FlushFolder(where);
        }
    }
    Opened Lock(const fs::path& path) override {
        return Works("Lock") ? Disk::Lock(path) : Opened{};
    }
    void Pause() override {
        ++pauses;
        if (!isImpatient) {
            Disk::Pause();
        }
    }

    /// Whether Pause returns at once.
    bool isImpatient = false;
    int pauses = 0;

 private:
    bool Works(const char* name) {
        before(name);
        calls.emplace_back(name);
        return !failing.contains(calls.size());
    }
};

class SaveTest : public ::testing::Test {
 protected:
    SaveTest()
        : folder(fs::path(LUMENKIT_BINARY_DIR) / "forms_save_test_files" /
                 ::testing::UnitTest::GetInstance()->current_test_info()->name()),
          form(folder / "memo.frm"),
          companion(folder / "memo.frx") {
        Restore();
    }
    ~SaveTest() override { fs::remove_all(folder); }

    void Restore() const {
        fs::remove_all(folder);
        fs::create_directories(folder);
        WriteFile(form, Sample("memo.frm").form);
        WriteFile(companion, Sample("memo.frm").companion);
    }
    // Loads the form and changes its text.
    Document Changed(TextView text = u"new\r\ntext") const {
        Document document = Load(form);
        Find(document, {u"VMemo1"}).Set(u"Text", TextLiteral(Text(text)));
        return document;
    }
    std::set<std::string> Names() const {
        std::set<std::string> names;
        for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
            names.insert(entry.path().filename().string());
        }
        return names;
    }
    using Files = std::pair<std::string, std::string>;
    static Files Written(const Document& document) {
        FormBytes bytes = document.Write();
        return {std::move(bytes.form), std::move(bytes.companion)};
    }
    // The contents of both files. Empty for a file that does not exist.
    Files OnDisk() const {
        return {fs::exists(form) ? ReadFile(form) : "",
                fs::exists(companion) ? ReadFile(companion) : ""};
    }
    // Returns the error, or an empty text.
    std::string Error(Disk& disk, const Document& document) const {
        try {
            SaveOn(disk, document, form, Replacing::Named);
            return "";
        } catch (const FormError& error) {
            return error.what();
        }
    }
    // Makes each call of a save fail in turn. Returns the names of the calls without which the
    // save still succeeds.
    std::set<std::string> SweepFaults(const std::function<void()>& prepare,
                                      const std::function<Document()>& makeDocument);

    const fs::path folder;
    const fs::path form;
    const fs::path companion;
};

std::set<std::string> SaveTest::SweepFaults(const std::function<void()>& prepare,
                                            const std::function<Document()>& makeDocument) {
    std::set<std::string> needless;
    std::size_t count = 1;
    for (std::size_t failing = 0; failing <= count; ++failing) {
        prepare();
        const Document document = makeDocument();
        const Files old = OnDisk();
        const Files now = Written(document);
        EXPECT_NE(old, now);
        FaultyDisk disk;
        disk.isImpatient = true;
        disk.failing = {failing};
        const std::string error = Error(disk, document);
        const std::string call = failing == 0 ? "none" : disk.calls.at(failing - 1);
        SCOPED_TRACE(std::to_string(failing) + " " + call + " " + error);
        if (failing == 0) {
            count = disk.calls.size();
        }
        EXPECT_EQ(OnDisk() == now, error.empty());
        EXPECT_EQ(OnDisk() == old, !error.empty());
        std::set<std::string> names;
        for (const fs::path& file : {form, companion}) {
            if (fs::exists(file)) {
                names.insert(file.filename().string());
            }
        }
        EXPECT_EQ(Names(), names);
        if (error.empty()) {
            needless.insert(call);
        }
        // The document can be saved afterwards.
        EXPECT_EQ(Error(Disk::System(), document), "");
        EXPECT_EQ(OnDisk(), now);
    }
    EXPECT_GT(count, 20U);
    return needless;
}

// A folder that is not listed or flushed, and a file that is removed at the second try, are no
// reason to fail. Without a second name, the old companion is copied.
const std::set<std::string> needlessCalls = {"none", "List", "Link", "Remove", "FlushFolder"};

TEST_F(SaveTest, AFailedCallLeavesTheOldFiles) {
    EXPECT_EQ(SweepFaults([&] { Restore(); }, [&] { return Changed(); }), needlessCalls);
}

TEST_F(SaveTest, AFailedCallLeavesNoPartOfANewForm) {
    const auto remove = [&] {
        Restore();
        fs::remove(form);
        fs::remove(companion);
    };
    const auto parse = [] { return Sample("memo.frm").Parse(); };
    EXPECT_EQ(SweepFaults(remove, parse), (std::set<std::string>{"none", "List", "FlushFolder"}));
}

TEST_F(SaveTest, ACompanionGetsItsFormerContentBackFromACopyToo) {
    const Document document = Changed();
    const Files old = OnDisk();
    FaultyDisk disk;
    disk.isImpatient = true;
    int renames = 0;
    disk.before = [&](const std::string& call) {
        renames += call == "Rename" ? 1 : 0;
        if (call == "Link" || (call == "Rename" && renames == 2)) {
            disk.failing.insert(disk.calls.size() + 1);
        }
    };
    EXPECT_EQ(Error(disk, document), form.string() + ": cannot be written");
    EXPECT_EQ(renames, 3);
    EXPECT_EQ(OnDisk(), old);
    EXPECT_EQ(Names(), (std::set<std::string>{"memo.frm", "memo.frx"}));
}

TEST_F(SaveTest, ACompanionThatCannotBeRestoredIsKept) {
    const Document document = Changed();
    const Files old = OnDisk();
    FaultyDisk disk;
    disk.isImpatient = true;
    int renames = 0;
    disk.before = [&](const std::string& call) {
        renames += call == "Rename" ? 1 : 0;
        if (call == "Rename" && renames > 1) {
            disk.failing.insert(disk.calls.size() + 1);
        }
    };
    const std::string error = Error(disk, document);
    const std::size_t name = error.rfind(' ') + 1;
    EXPECT_THAT(error, HasSubstr("memo.frx: belongs to a form that could not be written"));
    EXPECT_EQ(ReadFile(folder / error.substr(name)), old.second);
    EXPECT_EQ(ReadFile(form), old.first);
}

TEST_F(SaveTest, OnlyFilesLeftOverByASaveAreRemoved) {
    const Document document = Changed();
    // Remembers the file with this end of its name that is there at the call.
    const auto remember = [this](FaultyDisk& disk, std::string_view atCall, std::string_view end,
                                 fs::path& file) {
        disk.before = [this, atCall, end, &file](const std::string& call) {
            for (const std::string& name : Names()) {
                if (call == atCall && name.ends_with(end)) {
                    file = folder / name;
                }
            }
        };
    };
    fs::path made;
    FaultyDisk disk;
    remember(disk, "Write", ".new", made);
    ASSERT_EQ(Error(disk, document), "");
    ASSERT_FALSE(made.empty());
    const std::string prefix = made.filename().string().substr(0, 10 + 16 + 1);
    const std::set<std::string> others = {prefix + "0123456789abcdef.old", prefix + "1.new",
                                          ".lumenkit-0000000000000000-0123456789abcdef.new"};
    for (const std::string& other : others) {
        WriteFile(folder / other, "a user's own");
    }
    WriteFile(made, "left over");
    // Kept companions: one that the present companion contains, and one that would be lost.
    FaultyDisk again;
    fs::path kept;
    remember(again, "Rename", ".kept", kept);
    ASSERT_EQ(Error(again, document), "");
    ASSERT_FALSE(kept.empty());
    EXPECT_FALSE(fs::exists(made));
    WriteFile(kept, Sample("memo.frm").companion);
    ASSERT_EQ(Error(Disk::System(), document), "");
    EXPECT_FALSE(fs::exists(kept));
    WriteFile(kept, "the only copy");
    ASSERT_EQ(Error(Disk::System(), document), "");
    EXPECT_EQ(ReadFile(kept), "the only copy");
    fs::remove(kept);
    std::set<std::string> expected = others;
    expected.insert({"memo.frm", "memo.frx"});
    EXPECT_EQ(Names(), expected);
}

// ---- Several programs

TEST_F(SaveTest, ALockedFormIsNotSaved) {
    const Document document = Changed();
    const Files old = OnDisk();
    FaultyDisk disk;
    disk.isImpatient = true;
    std::string error;
    disk.before = [&](const std::string& call) {
        if (call == "Create" && error.empty()) {
            FaultyDisk second;
            second.isImpatient = true;
            error = Error(second, document);
            EXPECT_GT(second.pauses, 1000);
        }
    };
    EXPECT_EQ(Error(disk, document), "");
    EXPECT_EQ(error, form.string() + ": is being saved by another program");
    EXPECT_EQ(OnDisk(), Written(document));
    EXPECT_NE(OnDisk(), old);
    EXPECT_EQ(Names(), (std::set<std::string>{"memo.frm", "memo.frx"}));
}

TEST_F(SaveTest, TwoFormsWithOneCompanionAreNotSavedAtOnce) {
    const Document document = Changed();
    const fs::path other = folder / "other.frm";
    WriteFile(other, Sample("memo.frm").form);
    const Document second = Load(other);
    Find(second, {u"VMemo1"}).Set(u"Text", TextLiteral(u"of the\r\nsecond form"));
    FaultyDisk disk;
    std::string error;
    disk.before = [&](const std::string& call) {
        if (call == "Create" && error.empty()) {
            FaultyDisk impatient;
            impatient.isImpatient = true;
            try {
                SaveOn(impatient, second, other, Replacing::Named);
            } catch (const FormError& refused) {
                error = refused.what();
            }
        }
    };
    EXPECT_EQ(Error(disk, document), "");
    EXPECT_EQ(error, companion.string() + ": is being saved by another program");
    EXPECT_EQ(OnDisk(), Written(document));
}

// Two documents, loaded before either is saved, are saved by two threads. One save succeeds, and
// the other one is refused.
TEST_F(SaveTest, OneOfTwoSaversIsToldAndOneWholeFormRemains) {
    const int rounds = lumenkit::testing::Rounds(300);
    for (int round = 0; round < rounds && !HasFailure(); ++round) {
        WriteFile(form, Sample("memo.frm").form);
        WriteFile(companion, Sample("memo.frm").companion);
        const std::vector<Document> documents = [&] {
            std::vector<Document> loaded;
            loaded.push_back(Changed(u"the text\r\nof the first"));
            loaded.push_back(Changed(u"another text\r\nof the second\r\nsaver"));
            return loaded;
        }();
        std::vector<std::string> errors(2);
        std::barrier start(2);
        const auto save = [&](std::size_t saver) {
            start.arrive_and_wait();
            errors[saver] = Error(Disk::System(), documents[saver]);
        };
        std::thread first(save, 0);
        save(1);
        first.join();
        const std::size_t winner = errors[0].empty() ? 0 : 1;
        EXPECT_EQ(errors[winner], "");
        EXPECT_THAT(errors[1 - winner], HasSubstr(": was changed by another program")) << round;
        EXPECT_EQ(OnDisk(), Written(documents[winner])) << round;
        EXPECT_EQ(Names(), (std::set<std::string>{"memo.frm", "memo.frx"})) << round;
    }
}

// ---- Attributes

TEST_F(SaveTest, OwnerGroupAndPermissionsAreKept) {
    constexpr uid_t owner = 12345;
    constexpr gid_t group = 23456;
    constexpr mode_t mode = 0664;
    const Document document = Changed();
    if (geteuid() == 0) {
        ASSERT_EQ(chown(form.c_str(), owner, group), 0);
    }
    ASSERT_EQ(chmod(form.c_str(), mode), 0);
    ASSERT_EQ(chmod(companion.c_str(), mode | S_ISGID), 0);
    struct stat before = {};
    ASSERT_EQ(stat(form.c_str(), &before), 0);
    ASSERT_EQ(Error(Disk::System(), document), "");
    struct stat after = {};
    ASSERT_EQ(stat(form.c_str(), &after), 0);
    EXPECT_NE(before.st_ino, after.st_ino);
    EXPECT_EQ(before.st_uid, after.st_uid);
    EXPECT_EQ(before.st_gid, after.st_gid);
    EXPECT_EQ(before.st_mode, after.st_mode);
    ASSERT_EQ(stat(companion.c_str(), &after), 0);
    EXPECT_EQ(after.st_mode & 07777, mode | S_ISGID);
}

TEST_F(SaveTest, NewContentsOfAPrivateFileAreNeverReadableByOthers) {
    const Document document = Changed();
    for (const fs::path& file : {form, companion}) {
        ASSERT_EQ(chmod(file.c_str(), S_IRUSR | S_IWUSR), 0);
    }
    FaultyDisk disk;
    disk.before = [&](const std::string&) {
        for (const std::string& name : Names()) {
            struct stat state = {};
            if (!name.ends_with(".lock") && stat((folder / name).c_str(), &state) == 0) {
                EXPECT_EQ(state.st_mode & (S_IRWXG | S_IRWXO), 0U) << name;
            }
        }
    };
    EXPECT_EQ(Error(disk, document), "");
}

TEST_F(SaveTest, ANewFileIsCreatedOnlyWhereNothingIs) {
    Disk& disk = Disk::System();
    const fs::path link = folder / "link";
    fs::create_symlink("target", link);
    EXPECT_EQ(disk.Create(link, false).outcome, Disk::Outcome::Taken);
    EXPECT_FALSE(fs::exists(folder / "target"));
    EXPECT_EQ(disk.Create(form, false).outcome, Disk::Outcome::Taken);
    EXPECT_EQ(disk.Link(companion, form), Disk::Outcome::Taken);
    EXPECT_EQ(disk.Lock(link).outcome, Disk::Outcome::Failed);
    EXPECT_FALSE(fs::exists(folder / "target"));
}

}  // namespace
}  // namespace lumenkit::forms::testing
