// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <sstream>
#include <string>
#include <unistd.h>
#include <vector>

#include "CLI.h"
#include "WindowsModule.h"
#include "desktop/ClaudeApp.h"
#include "platform/Clock.h"
#include "platform/ErrorText.h"
#include "platform/Process.h"
#include "platform/Workspace.h"
#include "store/ProfileStore.h"

namespace {

using namespace selvane;

/// A standard stream that the caller has closed would lend its number to the next file opened, and output
/// would end up in there.
void occupyStandardStreams() {
    for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
        if (fcntl(stream, F_GETFD) == -1 && open("/dev/null", O_RDWR) == -1)
            _exit(1);
    }
}

/// Whether all was written, or the reader had enough of it.
bool writeAll(int stream, const std::string& text) {
    for (std::size_t done = 0; done < text.size();) {
        const ssize_t written = write(stream, text.data() + done, text.size() - done);
        if (written < 0 && errno != EINTR)
            return errno == EPIPE;
        done += written > 0 ? static_cast<std::size_t>(written) : 0;
    }
    return true;
}

int runCommand(const std::vector<std::string>& arguments, WindowsModule& windows) {
    const Environment environment = currentEnvironment();
    const auto workspace = makeWorkspace(ClaudeApp::identity(), environment);
    SystemClock clock;
    const ClaudeApp claude(*workspace, clock);
    ProfileStore store(environment, claude);

    std::ostringstream out;
    std::ostringstream err;
    int status = CLI::run({arguments, store, claude, windows, out}, err);
    if (!writeAll(STDOUT_FILENO, out.str())) {
        const std::error_code reason(errno, std::generic_category());
        err << "Errore: " << describe(std::filesystem::filesystem_error("write", "uscita standard", reason))
            << '\n';
        status = 1;
    }
    writeAll(STDERR_FILENO, err.str());
    return status;
}

} // namespace

int main(int argc, char** argv) {
    occupyStandardStreams();
    std::signal(SIGXFSZ, SIG_IGN); // a file that may grow no more is an error like any other
    const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
    WindowsModule windows;
    try {
        if (!arguments.empty() && CLI::isCommand(arguments.front()))
            return runCommand(arguments, windows);
        return windows.runWindows(argc, argv);
    } catch (const std::exception& error) {
        writeAll(STDERR_FILENO, "Errore: " + describe(error) + "\n");
        return 1;
    }
}
