// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Fuzzing.h"
#include "model/LauncherError.h"
#include "platform/text/Text.h"
#include "store/ProfileStore.h"

namespace selvane::fuzz {
namespace {

namespace fs = std::filesystem;

/// A desktop where nothing is running or installed.
struct EmptyWorkspace final : Workspace {
    std::optional<Application> application() override { return std::nullopt; }
    std::vector<RunningApplication> running(const std::vector<ProcInfo>&) override { return {}; }
    OpenedApplication open(const Application&, const OpenConfiguration&) override { return {}; }
    void terminate(const RunningApplication&) override {}
    void forceTerminate(const RunningApplication&) override {}
    bool isTerminated(const RunningApplication&) override { return true; }
    bool activate(const RunningApplication&) override { return false; }
};

/// The files that name accounts and profiles: who is in the normal folder, who was launched last, whose
/// account a profile uses.
class Markers {
public:
    Markers() {
        fs::create_directories(m_store.desktopStore());
        // Something that would be found where no profile may be looked for.
        for (const fs::path& outside : {m_home, m_store.root(), m_store.root() / "lavoro/dentro"}) {
            fs::create_directories(outside);
            ChangingFile(outside / ".launcher.json").set(R"({"name": "Fuori"})");
        }
        ChangingFile(m_store.root() / "lavoro/.launcher.json").set(R"({"name": "Lavoro"})");
        m_live.emplace(m_store.desktopStore() / ".live");
        m_active.emplace(m_store.root() / ".active");
    }

    /// The owner, the id and the account, separated by NULs.
    void check(std::string_view input) {
        const std::string_view owner = takePart(input);
        const std::string_view active = takePart(input);
        m_live->set(owner);
        m_active->set(active);
        checkActive(active);
        const std::string live = m_store.desktopLiveOwner();
        require(live == Profile::kDefaultId || text::trimmed(owner) == live, "the owner is as recorded");
        checkFolder("lavoro", std::string(input), live);
        checkFolder("default", {}, live);
    }

private:
    void checkActive(std::string_view content) const {
        const auto id = m_store.activeID();
        require(id && *id == text::trimmed(content), "the active profile is as recorded");
        const auto profile = m_store.profile(*id);
        require(!profile || profile->isDefault() || profile->configDir == m_store.root() / "lavoro",
                "no profile is found outside the root");
    }

    void checkFolder(const std::string& id, const std::string& account, const std::string& live) const {
        Profile profile;
        profile.id = id;
        profile.meta.account = account;
        const std::string owner = profile.accountOwner();
        try {
            const fs::path folder = m_store.desktopDataDir(profile);
            require(Profile::isPossibleId(owner), "only a plain name gets a folder");
            if (owner == live)
                return require(folder == m_store.liveDesktopDir(), "the live owner has the normal folder");
            require(folder.parent_path() == m_store.desktopStore() && folder.filename() == owner &&
                        folder.lexically_normal() == folder,
                    "an account's folder lies in the store");
        } catch (const LauncherError& error) {
            require(!Profile::isPossibleId(owner), "a plain name gets a folder");
            require(text::singleLine(error.what()) == error.what(), "an error is one line");
        }
    }

    const fs::path m_home = newFolder();
    EmptyWorkspace m_workspace;
    SystemClock m_clock;
    ClaudeApp m_claude{m_workspace, m_clock, {}};
    ProfileStore m_store{
        {{"HOME", m_home.string()}, {"CLAUDE_LAUNCHER_DESKTOP_DIR", (m_home / "data").string()}}, m_claude};
    std::optional<ChangingFile> m_live;
    std::optional<ChangingFile> m_active;
};

} // namespace
} // namespace selvane::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static selvane::fuzz::Markers markers;
    markers.check(selvane::fuzz::textOf(data, size));
    return 0;
}
