// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <memory>

#include "support/Home.h"
#include "support/RunningProcess.h"

namespace selvane::test {

/// A home that has been lived in: four profiles, one of them open in Claude Desktop, items of every kind,
/// sessions of the Code tab. What the pictures of the windows show.
class PictureHome : public Home {
public:
    /// `place` may be absolute: pictures show it. Then nothing may be there before, and nothing is left.
    explicit PictureHome(const std::string& place = "anna");
    ~PictureHome();

private:
    void fillBuiltIn() const;
    void makeWork();
    void makeOthers();
    void launched(const std::string& id, std::chrono::hours ago);
    void openInClaude(const Profile& profile);

    std::unique_ptr<RunningProcess> m_copy;
};

} // namespace selvane::test
