// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/shell/Updates.h"

namespace selvane {

/// New versions come as packages or are installed by hand.
std::unique_ptr<Updater> makeUpdater() {
    return nullptr;
}

} // namespace selvane
