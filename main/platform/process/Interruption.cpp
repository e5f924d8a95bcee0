// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/process/Interruption.h"

#include <atomic>

#include "model/LauncherError.h"

namespace selvane {
namespace {

std::atomic<int> requested = 0; ///< the signal

void request(int signal) {
    requested = signal;
}

} // namespace

Interruption::Interruption() {
    requested = 0;
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
    requested = 0;
}

void Interruption::restore() {
    for (std::size_t i = 0; i < kSignals.size(); ++i)
        ::sigaction(kSignals[i], &m_before[i], nullptr);
}

void Interruption::check() {
    if (requested != 0)
        throw LauncherError("Operazione interrotta");
}

void Interruption::endIfRequested() {
    if (requested == 0)
        return;
    restore();
    static_cast<void>(::raise(requested));
}

} // namespace selvane
