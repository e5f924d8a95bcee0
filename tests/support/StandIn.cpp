// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

/// Behaves like an Electron application as far as Selvane can see: one main process for each data folder,
/// helpers with the same executable, signals, and the files of a login and of its sessions. Like the real one
/// on a desktop with a session bus, its processes join their arguments into one text and wipe their
/// environment. If there is a `chrome_crashpad_handler` beside it, that leaves the process tree and keeps its
/// environment. When asked to end, it leaves its lock behind. It reports how it was started in
/// `stand-in.json` in its data folder. A second main process for the same data folder leaves its arguments in
/// `handed-over.json` there and ends. It ends by itself after ten minutes.
///
/// Options, as arguments or separated by spaces in STAND_IN_OPTIONS:
///   --user-data-dir=FOLDER     the data folder, else $XDG_CONFIG_HOME/Claude or $HOME/.config/Claude
///   --stand-in-session=TITLE   adds a session with that title; may be given several times
///   --stand-in-no-login        leaves out the folders of a login
///   --stand-in-refuse-quit     ignores the request to quit
///   --stand-in-keep-title      leaves the main process's arguments and environment as they were
///   --stand-in-no-lock         makes no lock in the data folder
///   --stand-in-no-files        keeps no file of the data folder open

#include <nlohmann/json.hpp>

#include <signal.h>
#include <stdlib.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <random>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace {

namespace fs = std::filesystem;
using Json = nlohmann::ordered_json;
using Words = std::vector<std::string>;

constexpr auto kLifeTime = std::chrono::minutes(10);
constexpr const char* kAccount = "6f1d2c3b-4a59-4e87-9c0d-1b2a3c4d5e6f";
constexpr const char* kOrganisation = "a0b1c2d3-e4f5-4607-8899-aabbccddeeff";

std::optional<std::string> variable(const char* name) {
    const char* value = ::getenv(name);
    return value != nullptr ? std::optional<std::string>(value) : std::nullopt;
}

Json textOrNull(const std::optional<std::string>& text) {
    return text ? Json(*text) : Json(nullptr);
}

/// The main process's arguments and the options that tests pass in the environment.
class Options {
public:
    explicit Options(Words words) : m_words(std::move(words)) {
        std::istringstream more(variable("STAND_IN_OPTIONS").value_or(""));
        for (std::string word; more >> word;)
            m_words.push_back(word);
    }

    bool has(std::string_view name) const {
        return std::find(m_words.begin(), m_words.end(), name) != m_words.end();
    }
    Words values(std::string_view name) const {
        Words values;
        for (const std::string& word : m_words)
            if (word.starts_with(name) && word.size() > name.size() && word[name.size()] == '=')
                values.push_back(word.substr(name.size() + 1));
        return values;
    }

private:
    Words m_words;
};

fs::path dataFolder(const Options& options) {
    const Words folders = options.values("--user-data-dir");
    if (!folders.empty())
        return folders.back();
    const auto configuration = variable("XDG_CONFIG_HOME");
    if (configuration && fs::path(*configuration).is_absolute())
        return fs::path(*configuration) / "Claude";
    return fs::path(variable("HOME").value_or("/")) / ".config/Claude";
}

void writeWhole(const fs::path& file, const Json& content) {
    fs::path temporary = file;
    temporary += ".new";
    std::ofstream(temporary) << content.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
    fs::permissions(temporary, fs::perms::owner_read | fs::perms::owner_write);
    fs::rename(temporary, file);
}

// The lock of a data folder: a link to "host-pid", as Chromium makes it.

bool isRunning(const std::string& lock) {
    std::error_code error;
    const std::string pid = lock.substr(lock.rfind('-') + 1);
    const fs::path other = fs::read_symlink("/proc/" + pid + "/exe", error);
    return !error && other.filename() == fs::read_symlink("/proc/self/exe").filename();
}

/// False if another instance holds the folder.
bool takeLock(const fs::path& lock) {
    std::array<char, 256> host{};
    ::gethostname(host.data(), host.size() - 1);
    const std::string target = std::string(host.data()) + "-" + std::to_string(::getpid());
    for (;;) {
        std::error_code error;
        fs::create_symlink(target, lock, error);
        if (!error)
            return true;
        if (error != std::errc::file_exists)
            throw fs::filesystem_error("lock", lock, error);
        const fs::path holder = fs::read_symlink(lock, error);
        if (!error && isRunning(holder))
            return false;
        fs::remove(lock, error);
    }
}

// Helper processes. Each ends with the process that started it, however that ends.

std::vector<char*> pointers(Words& words) {
    std::vector<char*> pointers;
    for (std::string& word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    return pointers;
}

pid_t startHelper(Words arguments, Words environment) {
    const pid_t parent = ::getpid();
    const pid_t helper = ::fork();
    if (helper != 0)
        return helper;
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != parent)
        ::_exit(0);
    ::signal(SIGTERM, SIG_DFL);
    sigset_t none;
    ::sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
    ::execve("/proc/self/exe", pointers(arguments).data(), pointers(environment).data());
    ::_exit(127);
}

Words inheritedEnvironment() {
    Words variables;
    for (char** each = environ; *each != nullptr; ++each)
        variables.emplace_back(*each);
    return variables;
}

/// Joins this process's arguments into one text and wipes its environment as others see it. The process
/// itself keeps a copy of its environment.
void rewriteTitle(int argc, char** argv) {
    std::string title = argv[0];
    for (int i = 1; i < argc; ++i)
        title.append(" ").append(argv[i]);
    char* end = argv[argc - 1] + std::strlen(argv[argc - 1]) + 1;
    static Words copies;
    copies = inheritedEnvironment();
    for (char** each = environ; *each != nullptr; ++each)
        end = std::max(end, *each + std::strlen(*each) + 1);
    static std::vector<char*> environment;
    environment = pointers(copies);
    environ = environment.data();
    std::memset(argv[0], 0, static_cast<std::size_t>(end - argv[0]));
    title.copy(argv[0], title.size());
}

/// Starts a process that outlives the others for a moment and is nobody's child.
void startCrashHandler(const fs::path& data) {
    const fs::path handler = fs::read_symlink("/proc/self/exe").parent_path() / "chrome_crashpad_handler";
    if (!fs::exists(handler))
        return;
    Words arguments = {handler, "--database=" + (data / "Crashpad").native(),
                       "--main=" + std::to_string(::getpid())};
    const pid_t between = ::fork();
    if (between == 0) {
        ::setsid();
        if (::fork() == 0)
            ::execve(arguments[0].c_str(), pointers(arguments).data(), environ);
        ::_exit(0);
    }
    ::waitpid(between, nullptr, 0);
}

int runCrashHandler(const Words& words) {
    const std::string main = "/proc/" + words.back().substr(words.back().rfind('=') + 1) + "/exe";
    while (::access(main.c_str(), F_OK) == 0)
        ::usleep(20'000);
    return 0;
}

std::vector<pid_t> startHelpers(const fs::path& data) {
    const std::string executable = fs::read_symlink("/proc/self/exe");
    const std::string dataOption = "--user-data-dir=" + data.native();
    const Words environment = inheritedEnvironment();
    Words nodeEnvironment = environment;
    nodeEnvironment.emplace_back("ELECTRON_RUN_AS_NODE=1");
    return {
        startHelper({executable, "--type=zygote", dataOption}, environment),
        startHelper({executable, "--type=utility", "--utility-sub-type=node.mojom.NodeService", dataOption},
                    environment),
        startHelper({executable, "/resources/mcp-server.js"}, nodeEnvironment),
    };
}

int runHelper(const Words& words, int argc, char** argv) {
    if (words.size() > 2 && words[1] == "--type=zygote")
        startHelper({words[0], "--type=renderer", words[2], "--lang=it"}, inheritedEnvironment());
    if (!variable("ELECTRON_RUN_AS_NODE"))
        rewriteTitle(argc, argv);
    for (;;)
        ::pause();
}

bool isHelper(const Words& words) {
    return variable("ELECTRON_RUN_AS_NODE") || (words.size() > 1 && words[1].starts_with("--type="));
}

// What the main process leaves in its data folder.

bool streamsAreNull() {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        struct stat status {};
        if (::fstat(stream, &status) != 0 || !S_ISCHR(status.st_mode) || status.st_rdev != ::makedev(1, 3))
            return false;
    }
    return true;
}

Json report(const Words& arguments) {
    Json launcherVariables = Json::array();
    for (const std::string& each : inheritedEnvironment())
        if (each.starts_with("CLAUDE_LAUNCHER_"))
            launcherVariables.push_back(each.substr(0, each.find('=')));
    return {
        {"pid", ::getpid()},
        {"arguments", arguments},
        {"claudeConfigDir", textOrNull(variable("CLAUDE_CONFIG_DIR"))},
        {"environment",
         {{"DBUS_SESSION_BUS_ADDRESS", textOrNull(variable("DBUS_SESSION_BUS_ADDRESS"))},
          {"XDG_ACTIVATION_TOKEN", textOrNull(variable("XDG_ACTIVATION_TOKEN"))},
          {"XDG_CURRENT_DESKTOP", textOrNull(variable("XDG_CURRENT_DESKTOP"))}}},
        {"launcherVariables", launcherVariables},
        {"streamsAreNull", streamsAreNull()},
        {"isSessionLeader", ::getsid(0) == ::getpid()},
        {"workingFolder", fs::current_path().native()},
    };
}

std::string randomUuid() {
    std::random_device random;
    std::string uuid = "xxxxxxxx-xxxx-4xxx-8xxx-xxxxxxxxxxxx";
    for (char& digit : uuid)
        if (digit == 'x')
            digit = "0123456789abcdef"[random() % 16];
    return uuid;
}

void writeSession(const fs::path& folder, const std::string& title) {
    const auto now = std::chrono::duration_cast<std::chrono::milliseconds>(
                         std::chrono::system_clock::now().time_since_epoch())
                         .count();
    const std::string id = "local_" + randomUuid();
    const std::string cwd = variable("HOME").value_or("/");
    writeWhole(folder / (id + ".json"), {
                                            {"sessionId", id},
                                            {"cliSessionId", randomUuid()},
                                            {"cwd", cwd},
                                            {"originCwd", cwd},
                                            {"createdAt", now},
                                            {"lastActivityAt", now},
                                            {"title", title},
                                            {"isArchived", false},
                                            {"remoteMcpServersConfig", Json::array({{{"uuid", kAccount}}})},
                                        });
}

void waitForEnd(bool refusesToQuit) {
    sigset_t signals;
    ::sigemptyset(&signals);
    ::sigaddset(&signals, SIGINT);
    if (!refusesToQuit)
        ::sigaddset(&signals, SIGTERM);
    const timespec time{std::chrono::seconds(kLifeTime).count(), 0};
    while (::sigtimedwait(&signals, nullptr, &time) < 0 && errno == EINTR) {
    }
}

/// Also waits for the helpers' own helpers, which the main process has adopted.
void endHelpers(const std::vector<pid_t>& helpers) {
    for (const pid_t helper : helpers)
        ::kill(helper, SIGTERM);
    while (::waitpid(-1, nullptr, 0) > 0) {
    }
}

int runMain(const Words& arguments, int argc, char** argv) {
    const Options options(arguments);
    const fs::path data = dataFolder(options);
    fs::create_directories(data);
    if (!options.has("--stand-in-no-lock") && !takeLock(data / "SingletonLock")) {
        writeWhole(data / "handed-over.json", Json(arguments));
        return 0;
    }
    std::ofstream log;
    if (!options.has("--stand-in-no-files"))
        log.open(data / "main.log");

    sigset_t requests;
    ::sigemptyset(&requests);
    ::sigaddset(&requests, SIGTERM);
    ::sigaddset(&requests, SIGINT);
    ::sigprocmask(SIG_BLOCK, &requests, nullptr);
    startCrashHandler(data);
    ::prctl(PR_SET_CHILD_SUBREAPER, 1);
    const std::vector<pid_t> helpers = startHelpers(data);

    const fs::path login = data / "claude-code-sessions" / kAccount / kOrganisation;
    const Words titles = options.values("--stand-in-session");
    if (!titles.empty() || !options.has("--stand-in-no-login"))
        fs::create_directories(login);
    for (const std::string& title : titles)
        writeSession(login, title);
    const Json told = report(arguments);
    if (!options.has("--stand-in-keep-title"))
        rewriteTitle(argc, argv);
    writeWhole(data / "stand-in.json", told);

    waitForEnd(options.has("--stand-in-refuse-quit"));
    endHelpers(helpers);
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    try {
        const Words words(argv, argv + argc);
        if (fs::read_symlink("/proc/self/exe").filename() == "chrome_crashpad_handler")
            return runCrashHandler(words);
        if (isHelper(words))
            return runHelper(words, argc, argv);
        return runMain({words.begin() + 1, words.end()}, argc, argv);
    } catch (const std::exception& error) {
        std::cerr << "stand-in: " << error.what() << '\n';
        return 1;
    }
}
