// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <memory>

#include "support/Home.h"
#include "support/RunningProcess.h"

namespace selvane::test {

/// A home that has been in use, for the pictures of the windows: seven profiles, one of them open in Claude
/// Desktop, items of every kind, sessions of the Code tab.
class PictureHome : public Home {
public:
    /// `place` may be absolute, for pictures that show it. Nothing may exist there before, and nothing is
    /// left behind.
    explicit PictureHome(const std::string& place = "anna");
    ~PictureHome();

    /// More skills, so that they make a long list: 38 in "lavoro".
    void addSkills();
    /// What an editor leaves in the place of the CLAUDE.md that "lavoro" shares.
    void changeRules();

private:
    void fillBuiltIn() const;
    void makeWork();
    void changeHere(const Profile& work) const;
    void makeOthers();
    void launched(const std::string& id, std::chrono::hours ago);
    void openInClaude(const Profile& profile);

    std::unique_ptr<RunningProcess> m_copy;
};

} // namespace selvane::test
