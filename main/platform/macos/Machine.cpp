// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/process/Machine.h"

#include <sys/sysctl.h>

#include <array>

namespace selvane {

std::string bootId() {
    std::array<char, 64> id = {};
    std::size_t size = id.size() - 1;
    return ::sysctlbyname("kern.bootsessionuuid", id.data(), &size, nullptr, 0) == 0 ? id.data() : "";
}

} // namespace selvane
