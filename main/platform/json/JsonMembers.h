// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace selvane::json {

/// The valid JSON text `object` without its members of these names, laid out like `serialized`. Strings,
/// numbers, duplicate members and their order stay as written. It builds no values, which makes it many times
/// faster than parsing. Nothing if it isn't an object or is nested more deeply than `parse` accepts.
std::optional<std::string> withoutMembers(std::string_view object, std::span<const std::string_view> names);

} // namespace selvane::json
