// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <nlohmann/json.hpp>

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

namespace selvane {

/// A JSON value that keeps the order of its keys, duplicate keys, and numbers as they were written.
using Json = nlohmann::ordered_json;

/// The text isn't JSON, or is nested more deeply than `json::kDeepest`. The message names the file.
class JsonError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

namespace json {

/// How deeply arrays and objects may be nested.
constexpr std::size_t kDeepest = 512;

/// Parses `text`. `file` only appears in the message of a `JsonError`.
Json parse(std::string_view text, const std::filesystem::path& file);

/// The value of `key`; null if `object` isn't an object or has no such key.
const Json* find(const Json& object, std::string_view key);
/// Sets a key of an object where it is, or adds it at the end.
void set(Json& object, std::string_view key, Json value);
/// Adds a key that an object doesn't have yet, without looking it up.
void append(Json& object, std::string_view key, Json value);
/// Removes every occurrence of a key from an object.
void remove(Json& object, std::string_view key);

/// Pretty-printed with two spaces and a final line break; numbers stay as they were read.
std::string serialized(const Json& value);

} // namespace json
} // namespace selvane
