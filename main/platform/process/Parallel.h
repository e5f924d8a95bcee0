// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <functional>

namespace selvane {

/// What one thread does with each position that falls to it. It is made, used and destroyed on that thread.
using Worker = std::function<void(std::size_t position)>;

/// Does the work for each position below `count`, in ascending order, on as many threads as there are
/// processors, four at most, the caller's included; on the caller's alone if there is little. Returns when
/// all is done. If a worker throws, no further position is begun, and the first exception is thrown.
void inParallel(std::size_t count, const std::function<Worker()>& makeWorker);

} // namespace selvane
