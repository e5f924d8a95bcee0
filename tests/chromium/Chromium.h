// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <sys/types.h>
#include <vector>

#include "platform/process/ProcInfo.h"
#include "support/Command.h"

namespace selvane::test {

/// Waits until the condition holds; false if it doesn't within ten seconds.
bool soon(const std::function<bool()>& holds);

/// A home with Chromium installed as Claude Desktop, on a desktop with a window manager.
///
/// Chromium does what the stand-in can't. With a session bus, it and its helpers soon overwrite their command
/// lines with one text, joined by spaces, and wipe their environments; its crash handlers become children of
/// init and keep theirs. The link "SingletonLock" in its data folder points to HOST-PID, even after Chromium
/// was told to end. Started again with the same folder, it opens a window in the running copy and ends.
class Chromium : public testing::Test {
protected:
    enum class Paths { plain, withBlanks };
    static constexpr const char* kExecutable = "/usr/lib/chromium/chromium";
    static constexpr const char* kWrapper = "/usr/bin/chromium";
    static constexpr const char* kArguments =
        " --no-sandbox --disable-gpu --disable-quic --no-first-run --disable-background-networking"
        " --disable-component-update --disable-sync --password-store=basic --new-window about:blank";

    Chromium();
    void SetUp() override;
    /// Ends all copies and looks for anything left behind by them or by Selvane.
    void TearDown() override;

    /// The desktop entry names `program`; `paths` applies to those of the profiles and of the normal data
    /// folder.
    void install(const std::string& program, Paths paths = Paths::plain);

    std::filesystem::path configuration(const std::string& id) const { return m_root / id; }
    std::filesystem::path data(const std::string& account) const;

    /// Waits for the copy that holds this account's data folder, isn't `previous`, has a window, and hides
    /// how it was started. Returns its main process.
    pid_t opened(const std::string& account, pid_t previous = 0) const;
    /// First launches a profile by its command, which must succeed.
    pid_t launched(const std::string& id, const std::string& account, pid_t previous = 0) const;

    /// The processes that run in this home, have a file in it open, or name it in their command line.
    std::vector<ProcInfo> processes() const;
    std::set<pid_t> mains() const;

    std::multiset<pid_t> windowOwners() const; ///< the process of each window on the screen
    pid_t activeWindowOwner() const;           ///< 0 if no window is active

    /// The copies in this home that Selvane reports as open.
    std::set<std::string> openCopies() const;
    /// Its report of one copy.
    static std::string copy(pid_t pid, const std::filesystem::path& folder, const std::string& configuration);

    CommandHome home;

private:
    std::string report() const;

    std::filesystem::path m_root;
    std::filesystem::path m_settings;
};

} // namespace selvane::test
