// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/process/Machine.h"

#include <array>
#include <unistd.h>

namespace selvane {

std::string hostName() {
    std::array<char, 256> name = {};
    return ::gethostname(name.data(), name.size() - 1) == 0 ? name.data() : "";
}

} // namespace selvane
