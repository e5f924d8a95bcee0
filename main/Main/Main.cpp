// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <sstream>
#include <streambuf>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

#include "Main/CLI.h"
#include "Main/TerminalProgress.h"
#include "Main/WindowsModule.h"
#include "desktop/ClaudeApp.h"
#include "platform/files/Progress.h"
#include "platform/process/Clock.h"
#include "platform/process/HomeOwner.h"
#include "platform/process/Process.h"
#include "platform/process/Workspace.h"
#include "platform/text/ErrorText.h"
#include "store/ProfileStore.h"

namespace {

using namespace selvane;

/// If the caller has closed a standard stream, the next file we open would get its number, and output would
/// end up in that file.
void occupyStandardStreams() {
    for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
        if (fcntl(stream, F_GETFD) == -1 && open("/dev/null", O_RDWR) == -1)
            _exit(1);
    }
}

/// False if something couldn't be written, unless the reader just stopped reading.
bool writeAll(int stream, std::string_view text) {
    for (std::size_t done = 0; done < text.size();) {
        const ssize_t written = write(stream, text.data() + done, text.size() - done);
        if (written < 0 && errno != EINTR)
            return errno == EPIPE;
        done += written > 0 ? static_cast<std::size_t>(written) : 0;
    }
    return true;
}

/// Standard output, written piece by piece, as a listing can be long.
class Output final : public std::streambuf {
public:
    Output() { clear(); }

    /// Writes the rest. Returns 0, or the error that kept part of the output from being written.
    int finish() {
        if (m_error == 0 && !writeAll(STDOUT_FILENO, {pbase(), static_cast<std::size_t>(pptr() - pbase())}))
            m_error = errno;
        clear();
        return m_error;
    }

protected:
    int_type overflow(int_type character) override {
        finish();
        if (!traits_type::eq_int_type(character, traits_type::eof()))
            sputc(traits_type::to_char_type(character));
        return traits_type::not_eof(character);
    }

private:
    void clear() { setp(m_bytes.data(), m_bytes.data() + m_bytes.size()); }

    std::array<char, 65536> m_bytes;
    int m_error = 0;
};

int runCommand(const std::vector<std::string>& arguments, WindowsModule& windows) {
    const Environment environment = currentEnvironment();
    const auto workspace = makeWorkspace(ClaudeApp::identity(), environment);
    SystemClock clock;
    const ClaudeApp claude(*workspace, clock, environment);
    ProfileStore store(environment, claude);

    Output output;
    std::ostream out(&output);
    std::ostringstream err;
    const auto run = [&](ProfileStore& used) {
        return CLI::run({arguments, used, claude, windows, out}, err);
    };
    int status = 0;
    if (isatty(STDERR_FILENO) == 1) {
        Progress progress;
        const TerminalProgress shown(progress, STDERR_FILENO);
        ProfileStore telling(store, progress);
        status = run(telling);
    } else {
        status = run(store);
    }
    if (const int error = output.finish(); error != 0) {
        const std::error_code reason(error, std::generic_category());
        err << "Errore: " << describe(std::filesystem::filesystem_error("write", "uscita standard", reason))
            << '\n';
        status = 1;
    }
    writeAll(STDERR_FILENO, err.str());
    return status;
}

/// Whatever the creation mask is, we can enter and change what we create.
void keepOwnAccess() {
    umask(umask(0) & ~static_cast<mode_t>(S_IRWXU));
}

} // namespace

int main(int argc, char** argv) {
    occupyStandardStreams();
    keepOwnAccess();
    std::signal(SIGXFSZ, SIG_IGN); // exceeding the file size limit becomes an ordinary error
    const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
    WindowsModule windows;
    try {
        const auto answer = arguments.empty() ? std::nullopt : CLI::answer(arguments.front());
        if (answer)
            return writeAll(STDOUT_FILENO, *answer) ? 0 : 1;
        becomeOwnerOf(homeFolder(currentEnvironment()));
        if (!arguments.empty() && CLI::isCommand(arguments.front()))
            return runCommand(arguments, windows);
        return windows.runWindows(argc, argv);
    } catch (const std::exception& error) {
        writeAll(STDERR_FILENO, "Errore: " + describe(error) + "\n");
        return 1;
    }
}
