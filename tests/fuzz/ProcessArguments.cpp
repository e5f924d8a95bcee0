// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/process/ProcessArguments.h"

#include <algorithm>
#include <cstring>

#include "Fuzzing.h"
#include "model/ByteText.h"
#include "platform/text/Text.h"

namespace selvane::fuzz {
namespace {

std::size_t sizeOf(const ProcessArguments& process) {
    std::size_t size = 0;
    for (const std::string& argument : process.args)
        size += argument.size();
    for (const auto& [name, value] : process.env)
        size += name.size() + 1 + value.size();
    return size;
}

/// The area of a process with these arguments and variables.
std::string areaOf(const ProcessArguments& process) {
    const auto count = static_cast<std::int32_t>(process.args.size());
    std::string area(sizeof count, '\0');
    std::memcpy(area.data(), &count, sizeof count);
    area.append("/bin/prog").append(3, '\0');
    for (const std::string& argument : process.args)
        area.append(argument).push_back('\0');
    for (const auto& [name, value] : process.env)
        area.append(name).append("=").append(value).push_back('\0');
    return area;
}

void check(std::string_view area) {
    const ProcessArguments process = processArguments(area);
    std::int32_t count = 0;
    std::memcpy(&count, area.data(), std::min(sizeof count, area.size()));
    require(process.args.size() <= static_cast<std::size_t>(std::max(count, 0)) || area.size() < 5,
            "no more arguments than said");
    const std::string text = repaired(area);
    require(isUtf8(text) && (text == area) == isUtf8(area), "what is no UTF-8 is replaced");
    require(sizeOf(process) <= text.size(), "no more than the area holds");
    for (const std::string& argument : process.args)
        require(!argument.empty() && text.find(argument) != text.npos, "arguments stand in the area");
    for (const auto& [name, value] : process.env)
        require(text.find(name + "=" + value) != text.npos && name.find('=') == name.npos,
                "variables stand in the area");
    require(processArguments(areaOf(process)) == process, "a process of them is read the same");
}

} // namespace
} // namespace selvane::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    selvane::fuzz::check(selvane::fuzz::textOf(data, size));
    return 0;
}
