// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "support/Home.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace selvane::test {
namespace {

namespace fs = std::filesystem;

Environment homeEnvironment(const fs::path& home, Home::Processes processes) {
    const fs::path run = home.parent_path() / "run";
    makePrivate(run);
    Environment environment = {{"HOME", home.string()}, {"XDG_RUNTIME_DIR", run.string()}};
    if (processes == Home::Processes::ignored)
        environment["CLAUDE_LAUNCHER_DESKTOP_DIR"] = (home / ".config/Claude").string();
    return environment;
}

/// It is emptied without asking, hence only in a home that the tests have made for themselves.
fs::path trashFolder() {
    const char* const home = std::getenv("HOME");
    if (home == nullptr || !TemporaryFolder::isOne(home))
        throw std::logic_error("the tests have no home of their own");
    return fs::path(home) / ".local/share/Trash";
}

} // namespace

void makePrivate(const fs::path& folder) {
    fs::create_directories(folder);
    fs::permissions(folder, fs::perms::owner_all);
}

void writeFile(const fs::path& file, const std::string& content) {
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << content;
}

void writeTree(const fs::path& folder, const Tree& tree) {
    for (const auto& [name, what] : tree) {
        fs::create_directories((folder / name).parent_path());
        if (what == "/")
            fs::create_directories(folder / name);
        else if (what.starts_with("-> "))
            fs::create_symlink(what.substr(3), folder / name);
        else
            writeFile(folder / name, what);
    }
}

std::string readFile(const fs::path& file) {
    std::ostringstream content;
    content << std::ifstream(file, std::ios::binary).rdbuf();
    return content.str();
}

Tree treeOf(const fs::path& folder) {
    Tree tree;
    if (!fs::exists(folder))
        return tree;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        const std::string name = entry.path().lexically_relative(folder).string();
        if (entry.is_symlink())
            tree[name] = "-> " + fs::read_symlink(entry.path()).string();
        else
            tree[name] = entry.is_directory() ? "/" : readFile(entry.path());
    }
    return tree;
}

OpenedApplication FakeWorkspace::open(const Application&, const OpenConfiguration& configuration) {
    if (refusesToOpen)
        throw std::runtime_error("refused");
    whenOpening();
    openings.push_back(configuration);
    return {};
}

void FakeWorkspace::terminate(const RunningApplication& app) {
    terminated.push_back(app.pid);
    if (terminationsIgnored-- > 0)
        return;
    std::erase(apps, app);
    whenEnded();
}

void FakeWorkspace::forceTerminate(const RunningApplication& app) {
    forced.push_back(app.pid);
    std::erase(apps, app);
    whenEnded();
}

bool FakeWorkspace::isTerminated(const RunningApplication& app) {
    return std::find(apps.begin(), apps.end(), app) == apps.end();
}

void FakeClock::sleep(std::chrono::milliseconds duration) {
    time += duration * speed;
}

NewProfile request(const std::string& name, const std::optional<Profile>& from,
                   const std::optional<std::string>& account) {
    NewProfile profile;
    profile.name = name;
    profile.from = from;
    profile.account = account;
    return profile;
}

Home::Home(Processes processes, const std::string& name)
    : path(folder / name), clock(processes == Processes::seen ? FakeClock::kFast : 1),
      claude(workspace, clock, homeEnvironment(path, processes)),
      store(homeEnvironment(path, processes), claude) {
    fs::create_directories(path);
    fs::remove_all(trashFolder());
}

Profile Home::make(const std::string& name, const std::map<Component, ShareMode>& modes) {
    NewProfile profile = request(name, builtIn());
    profile.modes = modes;
    return store.create(profile);
}

std::string messageOf(const std::function<void()>& operation) {
    try {
        operation();
    } catch (const std::exception& error) {
        return error.what();
    }
    return "";
}

Tree takeTrash() {
    Tree tree = treeOf(trashFolder() / "files");
    fs::remove_all(trashFolder());
    return tree;
}

} // namespace selvane::test
