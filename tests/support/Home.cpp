// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "support/Home.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>

namespace selvane::test {
namespace {

namespace fs = std::filesystem;

Environment homeEnvironment(const fs::path& home, Home::Processes processes) {
    Environment environment = {{"HOME", home.string()}};
    if (processes == Home::Processes::ignored)
        environment["CLAUDE_LAUNCHER_DESKTOP_DIR"] = (home / ".config/Claude").string();
    return environment;
}

} // namespace

void writeFile(const fs::path& file, const std::string& content) {
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << content;
}

std::string readFile(const fs::path& file) {
    std::ostringstream content;
    content << std::ifstream(file, std::ios::binary).rdbuf();
    return content.str();
}

std::map<std::string, std::string> treeOf(const fs::path& folder) {
    std::map<std::string, std::string> tree;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        const std::string name = entry.path().lexically_relative(folder).string();
        if (entry.is_symlink())
            tree[name] = "-> " + fs::read_symlink(entry.path()).string();
        else
            tree[name] = entry.is_directory() ? "/" : readFile(entry.path());
    }
    return tree;
}

void FakeWorkspace::open(const Application&, const OpenConfiguration& configuration) {
    openings.push_back({configuration.arguments, configuration.environment});
}

void FakeWorkspace::terminate(const RunningApplication& app) {
    terminated.push_back(app.pid);
    if (terminationsIgnored-- <= 0)
        std::erase(apps, app);
}

void FakeWorkspace::forceTerminate(const RunningApplication& app) {
    forced.push_back(app.pid);
    std::erase(apps, app);
}

bool FakeWorkspace::isTerminated(const RunningApplication& app) {
    return std::find(apps.begin(), apps.end(), app) == apps.end();
}

void FakeClock::sleep(std::chrono::milliseconds duration) {
    time += duration;
    ++sleeps;
}

Home::Home(Processes processes) : store(homeEnvironment(folder.path(), processes), claude) {}

Profile Home::make(const std::string& name, const std::map<Component, ShareMode>& modes) {
    return store.create({.name = name, .summary = {}, .from = builtIn(), .modes = modes, .selection = {},
                         .account = std::nullopt});
}

std::vector<std::string> trashed(const std::string& name) {
    std::vector<std::string> texts;
    const fs::path files = fs::path(std::getenv("HOME")) / ".local/share/Trash/files";
    if (!fs::exists(files))
        return texts;
    for (const auto& entry : fs::directory_iterator(files)) {
        // A second file of a name gets a number in the Trash.
        if (entry.path().filename().string().starts_with(name))
            texts.push_back(entry.is_symlink() ? "-> " + fs::read_symlink(entry.path()).string()
                                               : readFile(entry.path()));
    }
    return texts;
}

} // namespace selvane::test
