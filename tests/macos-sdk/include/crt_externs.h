// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

// libSystem: what a module can't name itself.

#pragma once

extern "C" char*** _NSGetEnviron(void);
