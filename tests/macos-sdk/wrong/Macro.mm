// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <signal.h>

// It is a macro there.
void clear(sigset_t& signals) {
    ::sigemptyset(&signals);
}
