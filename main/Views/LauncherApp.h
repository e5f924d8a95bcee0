// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

namespace selvane {

/// Runs the windowed application to its end and returns its exit status. A second start brings the first
/// one's picker to the front. Throws `LauncherError` when there is no display.
int runLauncherApp(int argc, char** argv);

} // namespace selvane
