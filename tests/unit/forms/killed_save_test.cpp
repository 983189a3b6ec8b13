// Kills a program before each system call of a save. Afterwards either the old or the new files
// exist, complete, and files left by the killed program do not prevent the next save.
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include "forms/file.h"
#include "forms/literal.h"
#include "tests/unit/forms/sample_forms.h"

namespace lumenkit::forms::testing {
namespace {

namespace fs = std::filesystem;

// A child process that calls `act` and stops before each of its system calls.
class Traced {
 public:
    explicit Traced(const std::function<void()>& act) : process_(fork()) {
        if (process_ == 0) {
            ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
            std::raise(SIGSTOP);
            try {
                act();
            } catch (...) {
                _exit(EXIT_FAILURE);
            }
            _exit(EXIT_SUCCESS);
        }
        Wait();
        ptrace(PTRACE_SETOPTIONS, process_, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
    }
    /// Kills the process if it still runs.
    ~Traced() {
        if (isAlive_) {
            kill(process_, SIGKILL);
            Wait();
        }
    }
    Traced(const Traced&) = delete;
    Traced& operator=(const Traced&) = delete;

    /// Continues to the next system call. Returns false if the process has ended.
    bool Step() {
        do {
            ptrace(PTRACE_SYSCALL, process_, nullptr, nullptr);
        } while (Wait() && NextCall() < 0);
        return isAlive_;
    }
    /// Returns the number of the system call that begins here, or -1 where one ends.
    long NextCall() const {
        __ptrace_syscall_info information = {};
        ptrace(PTRACE_GET_SYSCALL_INFO, process_, sizeof information, &information);
        return information.op == PTRACE_SYSCALL_INFO_ENTRY ? static_cast<long>(information.entry.nr)
                                                           : -1;
    }
    bool Succeeded() const { return WIFEXITED(status_) && WEXITSTATUS(status_) == EXIT_SUCCESS; }

 private:
    bool Wait() {
        waitpid(process_, &status_, 0);
        isAlive_ = WIFSTOPPED(status_);
        return isAlive_;
    }

    pid_t process_;
    int status_ = 0;
    bool isAlive_ = true;
};

class KilledSave : public ::testing::Test {
 protected:
    KilledSave()
        : folder(fs::path(LUMENKIT_BINARY_DIR) / "forms_killed_save_files" /
                 ::testing::UnitTest::GetInstance()->current_test_info()->name()),
          form(folder / "memo.frm"),
          companion(folder / "memo.frx") {}
    ~KilledSave() override { fs::remove_all(folder); }

    void Restore() const {
        fs::remove_all(folder);
        fs::create_directories(folder);
        WriteFile(form, Sample("memo.frm").form);
        WriteFile(companion, Sample("memo.frm").companion);
    }
    static Text TextIn(const Document& document) {
        return document.TextOf(*Find(document, {u"VMemo1"}).FindProperty(u"Text"));
    }
    static bool IsOneOf(const fs::path& path, const std::string& old, const std::string& now) {
        const std::string bytes = ReadFile(path);
        return bytes == old || bytes == now;
    }

    // Kills a save of `document` at each step. The files must then be those of `old` or of
    // `document`.
    void Sweep(const Document& document, const FormBytes& old, const Text& oldText);
    std::set<long> CallsOfASave(const Document& document, int& steps) const;

    const fs::path folder;
    const fs::path form;
    const fs::path companion;
};

// Returns the system calls of a complete save, and counts its steps.
std::set<long> KilledSave::CallsOfASave(const Document& document, int& steps) const {
    Restore();
    std::set<long> calls;
    Traced saving([&] { Save(document, form); });
    for (steps = 0; saving.Step(); ++steps) {
        calls.insert(saving.NextCall());
    }
    EXPECT_TRUE(saving.Succeeded());
    return calls;
}

void KilledSave::Sweep(const Document& document, const FormBytes& old, const Text& oldText) {
    const FormBytes now = document.Write();
    const Text nowText = TextIn(document);
    ASSERT_NE(oldText, nowText);
    int steps = 0;
    const std::set<long> calls = CallsOfASave(document, steps);
    EXPECT_TRUE(calls.contains(SYS_write) || calls.contains(SYS_writev));
    EXPECT_TRUE(calls.contains(SYS_rename));
    EXPECT_TRUE(calls.contains(SYS_fsync));
    EXPECT_EQ(TextIn(Load(form)), nowText);

    const KnownFiles read = document.Files();
    std::set<Text> seen;
    for (int step = 1; step <= steps; ++step) {
        SCOPED_TRACE(step);
        Restore();
        document.Files() = read;
        {
            Traced saving([&] { Save(document, form); });
            for (int done = 0; done < step && saving.Step(); ++done) {
            }
        }
        EXPECT_TRUE(IsOneOf(form, old.form, now.form));
        EXPECT_TRUE(IsOneOf(companion, old.companion, now.companion));
        const Text text = TextIn(Load(form));
        EXPECT_TRUE(text == oldText || text == nowText);
        seen.insert(text);

        Save(document, form);
        EXPECT_EQ(ReadFile(form), now.form);
        EXPECT_EQ(ReadFile(companion), now.companion);
        EXPECT_EQ(std::distance(fs::directory_iterator(folder), fs::directory_iterator()), 2);
        ASSERT_FALSE(HasFailure());
    }
    EXPECT_EQ(seen, (std::set<Text>{oldText, nowText}));
}

TEST_F(KilledSave, LeavesTheOldOrTheNewForm) {
    Restore();
    const Document document = Load(form);
    const FormBytes old = document.Write();
    const Text oldText = TextIn(document);
    Find(document, {u"VMemo1"}).Set(u"Text", TextLiteral(u"new\r\ntext"));
    Sweep(document, old, oldText);
}

// The files are too long for one write each.
TEST_F(KilledSave, LeavesTheOldOrTheNewFormHoweverLong) {
    constexpr std::size_t lines = 20'000;
    Restore();
    const Document document = Load(form);
    const FormBytes old = document.Write();
    const Text oldText = TextIn(document);
    Text text;
    for (std::size_t line = 0; line < lines; ++line) {
        text += u"line\r\n";
    }
    Find(document, {u"VMemo1"}).Set(u"Text", TextLiteral(text));
    document.Root().Set(u"Tag", TextLiteral(Text(lines, u'x')));
    Sweep(document, old, oldText);
}

TEST_F(KilledSave, LeavesNoPartOfAFormThatIsNew) {
    Restore();
    const Document document = Load(form);
    const FormBytes now = document.Write();
    int steps = 0;
    CallsOfASave(document, steps);
    for (int step = 1; step <= steps; ++step) {
        SCOPED_TRACE(step);
        fs::remove(form);
        fs::remove(companion);
        {
            Traced saving([&] { Save(document, form); });
            for (int done = 0; done < step && saving.Step(); ++done) {
            }
        }
        EXPECT_TRUE(!fs::exists(form) || ReadFile(form) == now.form);
        EXPECT_TRUE(!fs::exists(companion) || ReadFile(companion) == now.companion);
        EXPECT_TRUE(!fs::exists(form) || fs::exists(companion));
    }
}

}  // namespace
}  // namespace lumenkit::forms::testing
