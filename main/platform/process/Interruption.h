// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <csignal>

#include "platform/files/Progress.h"

namespace selvane {

/// While one lives, a request to end this program (SIGINT, SIGTERM, SIGHUP) cancels `progress` instead, so
/// that unfinished work can be undone first. Ignored signals stay ignored. There may be only one at a time.
class Interruption {
public:
    explicit Interruption(Progress& progress);
    Interruption(const Interruption&) = delete;
    Interruption& operator=(const Interruption&) = delete;
    ~Interruption();

    /// Ends the program as the request would have done, if there has been one.
    void endIfRequested();

private:
    static constexpr std::array kSignals = {SIGINT, SIGTERM, SIGHUP};

    void restore();

    std::array<struct sigaction, kSignals.size()> m_before = {};
};

} // namespace selvane
