// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace selvane::json {

/// `object`, a valid JSON text, without its members of these names, laid out as `serialized` does. Texts and
/// numbers stay as they are written, repeated members and their order as well: no value is built, which makes
/// it many times quicker than parsing. Nothing when it is no object, or nested deeper than `parse` takes.
std::optional<std::string> withoutMembers(std::string_view object, std::span<const std::string_view> names);

} // namespace selvane::json
