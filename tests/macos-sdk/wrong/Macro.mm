// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <signal.h>

// This is a macro on macOS.
void clear(sigset_t& signals) {
    ::sigemptyset(&signals);
}
