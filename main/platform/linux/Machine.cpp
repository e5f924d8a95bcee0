// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/process/Machine.h"

#include <fstream>

namespace selvane {

std::string bootId() {
    std::string id;
    std::ifstream("/proc/sys/kernel/random/boot_id") >> id;
    return id;
}

} // namespace selvane
