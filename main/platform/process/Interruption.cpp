// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/process/Interruption.h"

#include <atomic>

namespace selvane {
namespace {

std::atomic<int> requested = 0; ///< the signal
std::atomic<Progress*> interrupted = nullptr;

void request(int signal) {
    requested = signal;
    if (Progress* progress = interrupted)
        progress->cancel();
}

} // namespace

Interruption::Interruption(Progress& progress) {
    requested = 0;
    interrupted = &progress;
    struct sigaction action = {};
    action.sa_handler = request;
    action.sa_flags = SA_RESTART;
    for (std::size_t i = 0; i < kSignals.size(); ++i) {
        if (::sigaction(kSignals[i], nullptr, &m_before[i]) == 0 && m_before[i].sa_handler != SIG_IGN)
            ::sigaction(kSignals[i], &action, nullptr);
    }
}

Interruption::~Interruption() {
    restore();
    interrupted = nullptr;
}

void Interruption::restore() {
    for (std::size_t i = 0; i < kSignals.size(); ++i)
        ::sigaction(kSignals[i], &m_before[i], nullptr);
}

void Interruption::endIfRequested() {
    if (requested == 0)
        return;
    restore();
    static_cast<void>(::raise(requested));
}

} // namespace selvane
