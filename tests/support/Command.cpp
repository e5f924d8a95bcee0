// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "support/Command.h"

#include <cstdlib>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

#include "Main/CLI.h"
#include "desktop/ClaudeApp.h"
#include "platform/process/Workspace.h"
#include "store/ProfileStore.h"
#include "support/Home.h"
#include "support/Pointers.h"

namespace selvane::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* kNobody = "65534";
constexpr unsigned kTimeLimit = 60; ///< seconds

void redirect(int stream, const fs::path& file) {
    const int descriptor = open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
    dup2(descriptor, stream);
    close(descriptor);
}

std::vector<std::string> entries(const Environment& environment) {
    std::vector<std::string> result;
    for (const auto& [name, value] : environment)
        result.push_back(name + "=" + value);
    return result;
}

/// The environment of this process as long as it lives: some libraries ask for it themselves.
class ProcessEnvironment {
public:
    explicit ProcessEnvironment(const Environment& environment)
        : m_entries(entries(environment)), m_pointers(pointers(m_entries)) {
        environ = m_pointers.data();
    }
    ProcessEnvironment(const ProcessEnvironment&) = delete;
    ProcessEnvironment& operator=(const ProcessEnvironment&) = delete;
    ~ProcessEnvironment() { environ = m_before; }

private:
    char** const m_before = environ;
    std::vector<std::string> m_entries;
    std::vector<char*> m_pointers;
};

class ToldWindows final : public Windows {
public:
    explicit ToldWindows(std::vector<std::string>& told) : m_told(told) {}

    void renderIcon(const fs::path& iconset) override { refuse(iconset); }
    void renderDMGBackground(const fs::path& folder) override { refuse(folder); }
    void launch(const Profile& profile) override { m_told.push_back("launch " + profile.id); }
    void showError(const std::string& message) override { m_told.push_back("error " + message); }

private:
    static void refuse(const fs::path& folder) { ADD_FAILURE() << "draws " << folder; }

    std::vector<std::string>& m_told;
};

} // namespace

std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
    return out << "status " << outcome.status << "\n" << outcome.out << "--\n" << outcome.err;
}

Outcome failure(const std::string& message) {
    return {1, "", "Errore: " + message + "\n"};
}

CommandHome::CommandHome() : m_path(std::getenv("HOME")) {
    // The same folder each time: GLib remembers where the first one was.
    TemporaryFolder::remove(m_path);
    makePrivate(m_path);
    environment["HOME"] = path().string();
    environment["PATH"] = (*this / "bin").string();
    environment["XDG_RUNTIME_DIR"] = m_session.path().string();
    environment["XDG_DATA_DIRS"] = (*this / "share").string();
    // Reports from the sanitizers must not look like success.
    environment["ASAN_OPTIONS"] = "exitcode=99";
    environment["UBSAN_OPTIONS"] = "exitcode=99:halt_on_error=1";
}

Outcome CommandHome::runProgram(const std::vector<std::string>& words) const {
    const TemporaryFolder streams;
    std::vector<std::string> arguments = words;
    std::vector<std::string> variables = entries(environment);
    // The child may not allocate: another thread may hold the allocator's lock, for ever as the child sees
    // it.
    const fs::path out = streams / "out";
    const fs::path err = streams / "err";
    const std::vector<char*> argumentPointers = pointers(arguments);
    const std::vector<char*> variablePointers = pointers(variables);
    const pid_t child = fork();
    if (child == 0) {
        alarm(kTimeLimit); // stays in force after exec
        redirect(STDOUT_FILENO, out);
        redirect(STDERR_FILENO, err);
        execve(argumentPointers[0], argumentPointers.data(), variablePointers.data());
        _exit(127);
    }
    int state = 0;
    waitpid(child, &state, 0);
    const int status = WIFEXITED(state) ? WEXITSTATUS(state) : 128 + WTERMSIG(state);
    return {status, readFile(out), readFile(err)};
}

Outcome CommandHome::run(const std::vector<std::string>& arguments) const {
    const ProcessEnvironment ours(environment);
    const auto workspace = makeWorkspace(ClaudeApp::identity(), environment);
    const ClaudeApp claude(*workspace, *clock, environment);
    ProfileStore store(environment, claude);
    ToldWindows windows(*told);
    std::ostringstream out;
    std::ostringstream err;
    const int status = CLI::run({arguments, store, claude, windows, out}, err);
    return {status, out.str(), err.str()};
}

Outcome CommandHome::execute(const std::vector<std::string>& arguments) const {
    std::vector<std::string> words = {SELVANE_EXECUTABLE};
    words.insert(words.end(), arguments.begin(), arguments.end());
    return runProgram(words);
}

Outcome CommandHome::runUnprivileged(const std::vector<std::string>& arguments) const {
    if (geteuid() != 0)
        return execute(arguments);
    // Another user may have no access to the build tree.
    const TemporaryFolder programs;
    fs::permissions(programs.path(), fs::perms(0755));
    const fs::path built = SELVANE_EXECUTABLE;
    for (const std::string name : {"selvane", "libselvane-services.so", "libselvane-archives.so"})
        fs::copy_file(built.parent_path() / name, programs / name);
    for (const auto& entry : fs::recursive_directory_iterator(path()))
        EXPECT_EQ(lchown(entry.path().c_str(), 65534, 65534), 0);
    for (const fs::path& folder : {path(), m_session.path()})
        EXPECT_EQ(lchown(folder.c_str(), 65534, 65534), 0);

    std::vector<std::string> words = {"/usr/bin/setpriv",
                                      "--reuid",
                                      kNobody,
                                      "--regid",
                                      kNobody,
                                      "--clear-groups",
                                      (programs / "selvane").string()};
    words.insert(words.end(), arguments.begin(), arguments.end());
    return runProgram(words);
}

Outcome CommandHome::shell(const std::string& script) const {
    return runProgram({"/bin/sh", "-c", "selvane='" SELVANE_EXECUTABLE "'\n" + script});
}

std::string CommandHome::output(const std::vector<std::string>& arguments) const {
    const Outcome outcome = run(arguments);
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(outcome.err, "");
    return outcome.out;
}

} // namespace selvane::test
