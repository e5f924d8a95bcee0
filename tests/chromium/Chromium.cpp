// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "chromium/Chromium.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <sstream>
#include <stdexcept>
#include <thread>

#include "end-to-end/Desktop.h"
#include "support/Home.h"

namespace selvane::test {
namespace {

namespace fs = std::filesystem;

/// One desktop for all tests: a process can connect to the accessibility bus only once.
const Environment& desktop() {
    static const Desktop screen;
    static const TemporaryFolder folder;
    static const Environment environment = [] {
        Environment result = screen.environment();
        result["PATH"] = "/usr/bin:/bin";
        result["HOME"] = folder.path().string();
        return result;
    }();
    static const Program windowManager({"openbox"}, environment, folder.path());
    return environment;
}

fs::path inProc(pid_t pid, const std::string& name) {
    return fs::path("/proc") / std::to_string(pid) / name;
}

std::string commandLine(pid_t pid) {
    std::string text = readFile(inProc(pid, "cmdline"));
    text.resize(text.find_last_not_of('\0') + 1);
    return text;
}

bool hidesItsStart(pid_t pid) {
    const std::string environment = readFile(inProc(pid, "environ"));
    return commandLine(pid).find('\0') == std::string::npos && !environment.empty() &&
           environment.find_first_not_of('\0') == std::string::npos;
}

/// Whether a process runs in a folder or has a file in it open.
bool uses(pid_t pid, const fs::path& folder) {
    std::error_code error; // the process may be gone or belong to another user
    std::vector<fs::path> links = {inProc(pid, "exe"), inProc(pid, "cwd")};
    for (fs::directory_iterator file(inProc(pid, "fd"), error), end; !error && file != end;
         file.increment(error))
        links.push_back(file->path());
    return std::any_of(links.begin(), links.end(), [&](const fs::path& link) {
        return (fs::read_symlink(link, error) / "").native().starts_with((folder / "").native());
    });
}

} // namespace

bool soon(const std::function<bool()>& holds) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (!holds()) {
        if (std::chrono::steady_clock::now() > deadline)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    return true;
}

Chromium::Chromium() {
    home.environment.insert(desktop().begin(), desktop().end());
    home.environment["PATH"] = desktop().at("PATH");
    // Copies leave things in both folders, which are removed with this home.
    for (const auto& [variable, name] : {std::pair("TMPDIR", "tmp"), {"XDG_RUNTIME_DIR", "run"}}) {
        home.environment[variable] = (home / name).string();
        fs::create_directory(home / name);
        fs::permissions(home / name, fs::perms::owner_all);
    }
}

void Chromium::SetUp() {
    ASSERT_TRUE(soon([this] { return home.shell("wmctrl -m").status == 0; })) << "no window manager";
    for (const ProcInfo& process : ProcInfo::all())
        ASSERT_NE(process.path, kExecutable) << "close Chromium first: Selvane would take it for a copy";
}

void Chromium::TearDown() {
    if (HasFailure())
        std::cout << report();
    for (const pid_t pid : mains()) {
        kill(pid, SIGTERM);
        kill(pid, SIGCONT);
    }
    if (!soon([this] { return processes().empty(); }))
        ADD_FAILURE() << "left behind:\n" << report();
    for (const ProcInfo& process : processes())
        kill(process.pid, SIGKILL);
    EXPECT_EQ(openCopies(), std::set<std::string>());
    // The windows listen here for a second start, and a launch has its note here while the copy is open.
    std::error_code isNoFolder;
    for (const fs::directory_entry& left : fs::directory_iterator(home / "run/selvane", isNoFolder))
        EXPECT_TRUE(left.is_socket()) << left.path() << ":\n" << readFile(left.path());
}

void Chromium::install(const std::string& program, Paths paths) {
    const bool hasBlanks = paths == Paths::withBlanks;
    m_root = home / (hasBlanks ? "i miei profili" : ".claude-profiles");
    m_settings = home / (hasBlanks ? "le mie impostazioni" : ".config");
    if (hasBlanks) {
        home.environment["CLAUDE_LAUNCHER_ROOT"] = m_root.string();
        home.environment["XDG_CONFIG_HOME"] = m_settings.string();
    }
    writeTree(home.path(),
              {{".claude/settings.json", "{}"},
               {".local/share/applications/com.anthropic.Claude.desktop",
                "[Desktop Entry]\nType=Application\nName=Claude\nExec=" + program + kArguments + " %U\n"}});
    // Chromium's own normal data folder becomes Claude Desktop's.
    writeTree(m_settings, {{"Claude", "/"}, {"chromium", "-> Claude"}});
}

fs::path Chromium::data(const std::string& account) const {
    return account == "default" ? m_settings / "Claude" : m_root / ".desktop-data" / account;
}

pid_t Chromium::opened(const std::string& account, pid_t previous) const {
    const fs::path lock = data(account) / "SingletonLock";
    pid_t pid = 0;
    const bool isOpen = soon([&] {
        std::error_code error;
        const std::string target = fs::read_symlink(lock, error).string();
        pid = std::atoi(target.substr(target.rfind('-') + 1).c_str());
        return pid != previous && mains().contains(pid) && hidesItsStart(pid) && windowOwners().contains(pid);
    });
    if (!isOpen)
        throw std::runtime_error("no such copy: " + lock.string());
    return pid;
}

pid_t Chromium::launched(const std::string& id, const std::string& account, pid_t previous) const {
    const Outcome outcome = home.run({"launch", id});
    if (outcome != Outcome{})
        throw std::runtime_error("launch " + id + ": " + outcome.out + outcome.err);
    return opened(account, previous);
}

std::vector<ProcInfo> Chromium::processes() const {
    std::vector<ProcInfo> result = ProcInfo::all();
    std::erase_if(result, [this](const ProcInfo& process) {
        return !uses(process.pid, home.path()) &&
               commandLine(process.pid).find((home.path() / "").native()) == std::string::npos;
    });
    return result;
}

std::set<pid_t> Chromium::mains() const {
    std::set<pid_t> result;
    for (const ProcInfo& process : processes()) {
        if (process.path == kExecutable && commandLine(process.pid).find("--type=") == std::string::npos)
            result.insert(process.pid);
    }
    return result;
}

std::multiset<pid_t> Chromium::windowOwners() const {
    std::multiset<pid_t> owners;
    std::istringstream list(home.shell("wmctrl -lp").out);
    std::string window, workspace, title;
    for (pid_t owner = 0; list >> window >> workspace >> owner && std::getline(list, title);)
        owners.insert(owner);
    return owners;
}

pid_t Chromium::activeWindowOwner() const {
    return std::atoi(home.shell("xdotool getactivewindow getwindowpid").out.c_str());
}

std::set<std::string> Chromium::openCopies() const {
    std::set<std::string> lines;
    std::istringstream output(home.output({"desktop-status"}));
    for (std::string line; std::getline(output, line);) {
        if (line.starts_with("aperto") && line.find(home.path()) != std::string::npos)
            lines.insert(line);
    }
    return lines;
}

std::string Chromium::copy(pid_t pid, const fs::path& folder, const std::string& configuration) {
    return "aperto pid=" + std::to_string(pid) + "\tdati=" + folder.string() + "\tconfig=" + configuration;
}

std::string Chromium::report() const {
    constexpr std::size_t kShown = 230; // characters of a command line
    std::ostringstream out;
    out << home.run({"desktop-status"}) << home.shell("wmctrl -lp").out;
    for (const ProcInfo& process : processes()) {
        std::string line = commandLine(process.pid).substr(0, kShown);
        std::replace(line.begin(), line.end(), '\0', ' ');
        out << process.pid << " of " << process.ppid << ": " << line << '\n';
    }
    return out.str();
}

} // namespace selvane::test
