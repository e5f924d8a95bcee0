// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

// libSystem: variables that a module can't name directly.

#pragma once

extern "C" char*** _NSGetEnviron(void);
