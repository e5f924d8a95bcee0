// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <nlohmann/json.hpp>

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

namespace selvane {

/// A JSON value that keeps the order of its keys, keys that occur twice, and numbers as they were written.
using Json = nlohmann::ordered_json;

/// A text that is no JSON (or is nested deeper than `json::kDeepest`). The message names the file.
class JsonError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

namespace json {

/// How deep arrays and objects may lie in each other.
constexpr std::size_t kDeepest = 512;

/// Parses `text`; `file` is only named in the `JsonError`.
Json parse(std::string_view text, const std::filesystem::path& file);

/// The value under `key`, or null when `object` is no object or has no such key.
const Json* find(const Json& object, std::string_view key);
/// Sets a key of an object, in its place when it is there, else at the end.
void set(Json& object, std::string_view key, Json value);
/// Removes a key of an object, each time that it occurs.
void remove(Json& object, std::string_view key);

/// Pretty-printed with two spaces, numbers as they were read, with a line end.
std::string serialized(const Json& value);

} // namespace json
} // namespace selvane
