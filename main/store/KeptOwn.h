// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "model/Component.h"
#include "model/ProfileMeta.h"

namespace selvane {

// Which items a profile keeps as its own although their component is shared.

bool isKeptOwn(const ProfileMeta& meta, Component component, const std::string& name);
/// Does nothing if it is kept already.
void keep(ProfileMeta& meta, Component component, const std::string& name);
/// Does nothing if it isn't kept.
void forgetKept(ProfileMeta& meta, Component component, const std::string& name);

} // namespace selvane
