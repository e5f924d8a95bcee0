// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

// A header that only Linux has.

#include <sys/prctl.h>
