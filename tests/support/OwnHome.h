// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdlib>

#include "support/TemporaryFolder.h"

namespace selvane::test {

/// A throw-away home folder for this process: no test touches the real one, its preferences or its Trash.
class OwnHome {
public:
    OwnHome() {
        setenv("HOME", m_folder.path().c_str(), 1);
        for (const char* variable :
             {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_DATA_DIRS", "CLAUDE_CONFIG_DIR", "DISPLAY"})
            unsetenv(variable);
    }

private:
    const TemporaryFolder m_folder;
};

} // namespace selvane::test
