// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/process/Process.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <optional>
#include <poll.h>
#include <pwd.h>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>

#include "model/LauncherError.h"
#include "platform/files/Descriptor.h"
#include "platform/process/ChildProcess.h"
#include "platform/process/ProcInfo.h"

namespace selvane {

Environment currentEnvironment() {
    Environment environment;
    for (char** entry = process::environmentBlock(); entry != nullptr && *entry != nullptr; ++entry) {
        const std::string_view text = *entry;
        const std::size_t equals = text.find('=');
        // If a name occurs twice, the first counts, as for getenv().
        if (equals != std::string_view::npos)
            environment.emplace(text.substr(0, equals), text.substr(equals + 1));
    }
    return environment;
}

std::filesystem::path homeFolder(const Environment& environment) {
    const auto home = environment.find("HOME");
    if (home != environment.end() && home->second.starts_with('/'))
        return home->second;
    std::array<char, 16384> buffer = {};
    passwd entry = {};
    passwd* found = nullptr;
    ::getpwuid_r(::getuid(), &entry, buffer.data(), buffer.size(), &found);
    if (found == nullptr || found->pw_dir == nullptr || *found->pw_dir != '/')
        throw LauncherError("La cartella home dell'utente non è nota: imposta la variabile HOME");
    return found->pw_dir;
}

namespace process {
namespace {

using files::Descriptor;

/// Texts in the form the system takes: an array of pointers that ends with a null pointer.
class Texts {
public:
    explicit Texts(std::vector<std::string> texts) : m_texts(std::move(texts)) {
        m_pointers.reserve(m_texts.size() + 1);
        for (std::string& text : m_texts)
            m_pointers.push_back(text.data());
        m_pointers.push_back(nullptr);
    }
    Texts(const Texts&) = delete;
    Texts& operator=(const Texts&) = delete;

    char* const* data() const { return m_pointers.data(); }

private:
    std::vector<std::string> m_texts;
    std::vector<char*> m_pointers;
};

std::vector<std::string> commandLine(const std::filesystem::path& executable,
                                     const std::vector<std::string>& arguments) {
    std::vector<std::string> result = {executable.native()};
    result.insert(result.end(), arguments.begin(), arguments.end());
    return result;
}

/// Unless `pidVariable` is empty, it comes first, with room for its value.
std::vector<std::string> environmentTexts(const Environment& environment, const std::string& pidVariable) {
    std::vector<std::string> result;
    if (!pidVariable.empty())
        result.push_back(pidVariable + "=" + std::string(kPidTextSize, '\0'));
    for (const auto& [name, value] : environment) {
        if (name != pidVariable)
            result.emplace_back(name).append("=").append(value);
    }
    return result;
}

struct Pipe {
    Descriptor reading;
    Descriptor writing;
};

/// A pipe that is closed on exec and stays clear of the standard streams, which a child sets anew.
Pipe makePipe(const std::filesystem::path& executable) {
    std::array<int, 2> ends = {};
    if (!openPipe(ends))
        files::fail("start", executable, errno);
    Pipe pipe = {Descriptor(ends[0]), Descriptor(ends[1])};
    if (pipe.writing.get() <= STDERR_FILENO)
        pipe.writing = Descriptor(::fcntl(pipe.writing.get(), F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
    if (!pipe.writing)
        files::fail("start", executable, errno);
    return pipe;
}

/// The child's next message; nothing once it has closed its end.
std::optional<Message> receive(Pipe& pipe) {
    pipe.writing.close();
    Message message = {};
    ssize_t size = -1;
    do {
        size = ::read(pipe.reading.get(), &message, sizeof message);
    } while (size < 0 && errno == EINTR);
    return size == sizeof message ? std::optional(message) : std::nullopt;
}

[[noreturn]] void raise(const Message& failure, const std::filesystem::path& executable,
                        const std::filesystem::path& folder) {
    if (failure.stage == Message::Stage::exit)
        throw LauncherError("«" + executable.filename().native() +
                            "» si è chiuso subito dopo l'avvio (stato " + std::to_string(failure.value) +
                            ")");
    files::fail("start", failure.stage == Message::Stage::folder ? folder : executable, failure.value);
}

/// Our parent may have left SIGCHLD ignored; then no exit status would be kept.
void keepExitStatus() {
    struct sigaction current = {};
    if (::sigaction(SIGCHLD, nullptr, &current) == 0 && current.sa_handler == SIG_IGN)
        ::signal(SIGCHLD, SIG_DFL);
}

/// Whether a child that is stopped has gone on or ended within `limit`. Counts only the time in which this
/// process runs: Ctrl+Z stops both.
bool goesOn(pid_t child, int& status, std::chrono::milliseconds limit) {
    constexpr int kLookMilliseconds = 50;
    for (auto waited = 0; waited < limit.count(); waited += kLookMilliseconds) {
        ::poll(nullptr, 0, kLookMilliseconds);
        const pid_t changed = waitFor(child, status, WNOHANG | WCONTINUED);
        if (changed != 0)
            return true;
    }
    return false;
}

/// Waits until the child stops or ends, and looks meanwhile.
pid_t waitLooking(pid_t child, int& status, const std::function<void(std::int32_t)>& look) {
    constexpr int kLongestPause = 50; // milliseconds
    for (int pause = 1;; pause = std::min(2 * pause, kLongestPause)) {
        const pid_t changed = waitFor(child, status, WUNTRACED | WNOHANG);
        if (changed != 0)
            return changed;
        try {
            look(child);
        } catch (...) {
            ::kill(child, SIGKILL);
            waitFor(child, status, 0);
            throw;
        }
        ::poll(nullptr, 0, pause);
    }
}

/// Waits for a child to end. Returns its status as the system gives it; nothing if it had to be killed
/// because it stays stopped.
std::optional<int> endOf(pid_t child, std::chrono::milliseconds stopLimit,
                         const std::filesystem::path& executable,
                         const std::function<void(std::int32_t)>& look) {
    int status = 0;
    bool isKilled = false;
    while (true) {
        const pid_t changed = look ? waitLooking(child, status, look) : waitFor(child, status, WUNTRACED);
        if (changed < 0)
            files::fail("wait", executable, errno);
        if (WIFSTOPPED(status) && !goesOn(child, status, stopLimit)) {
            ::kill(child, SIGKILL);
            isKilled = true;
        }
        if (WIFEXITED(status) || WIFSIGNALED(status))
            return isKilled ? std::nullopt : std::optional(status);
    }
}

} // namespace

int run(const std::filesystem::path& executable, const std::vector<std::string>& arguments,
        const Environment& environment, const std::filesystem::path& folder,
        std::chrono::milliseconds stopLimit, const std::function<void(std::int32_t)>& look) {
    const Texts words(commandLine(executable, arguments));
    const Texts variables(environmentTexts(environment, {}));
    const Plan plan = {executable.c_str(), folder.c_str(), words.data(), variables.data(), nullptr};
    Pipe pipe = makePipe(executable);
    keepExitStatus();
    const pid_t self = ::getpid();
    const pid_t child = forkQuietly();
    if (child == 0)
        becomeAttached(plan, pipe.writing.get(), self);
    if (child < 0)
        files::fail("start", executable, errno);
    const std::optional<Message> failure = receive(pipe);
    const std::optional<int> status = endOf(child, stopLimit, executable, look);
    if (failure)
        raise(*failure, executable, folder);
    if (!status)
        throw LauncherError("«" + executable.filename().native() +
                            "» è stato sospeso e non riprende: operazione annullata");
    return exitStatus(*status);
}

Started startDetached(const std::filesystem::path& executable, const std::vector<std::string>& arguments,
                      const Environment& environment, const std::filesystem::path& folder,
                      const std::string& pidVariable) {
    const Texts words(commandLine(executable, arguments));
    const Texts variables(environmentTexts(environment, pidVariable));
    char* const pidText =
        pidVariable.empty() ? nullptr : variables.data()[0] + pidVariable.size() + 1; // after "="
    const Plan plan = {executable.c_str(), folder.c_str(), words.data(), variables.data(), pidText};
    Pipe pipe = makePipe(executable);
    Started started = {0, ProcInfo::startTimeAt(std::chrono::system_clock::now())};
    const pid_t child = forkQuietly();
    if (child == 0)
        startAndWatch(plan, pipe.writing.get());
    if (child < 0)
        files::fail("start", executable, errno);
    std::optional<Message> failure;
    while (const std::optional<Message> message = receive(pipe)) {
        if (message->stage == Message::Stage::started) {
            started.pid = message->value;
            if (const auto process = ProcInfo::read(started.pid)) // a wrapper may have ended already
                started.startTime = process->startTime;
        } else if (!failure) {
            failure = message; // the end that follows is reported too
        }
    }
    int status = 0;
    waitFor(child, status, 0);
    if (failure)
        raise(*failure, executable, folder);
    return started;
}

} // namespace process
} // namespace selvane
