// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <cstdio>
#include <exception>

#include "Views/LauncherApp.h"
#include "platform/ErrorText.h"

/// The border of the module: plain types, and no exception crosses it.
extern "C" __attribute__((visibility("default"))) int selvane_run_windows(int argc, char** argv) {
    try {
        return selvane::runLauncherApp(argc, argv);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "Errore: %s\n", selvane::describe(error).c_str());
        return 1;
    }
}
