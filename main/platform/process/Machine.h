// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

namespace selvane {

/// The name of this machine, as programs write it into their locks. It can change while they run.
std::string hostName();

/// Distinguishes this boot from earlier and later ones; empty if the system doesn't say.
std::string bootId();

} // namespace selvane
