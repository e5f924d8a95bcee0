// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "desktop/SignInLink.h"

#include <algorithm>

namespace selvane {
namespace {

constexpr std::string_view kLinkScheme = "claude:";
constexpr std::size_t kLongest = 16384;

char lowered(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

} // namespace

std::optional<SignInLink> SignInLink::from(std::string_view text) {
    // A blank would end the link where Chromium joins its arguments into one text.
    const auto isPlain = [](char byte) { return byte > ' ' && byte <= '~'; };
    if (text.size() <= kLinkScheme.size() || text.size() > kLongest ||
        !std::equal(kLinkScheme.begin(), kLinkScheme.end(), text.begin(),
                    [](char wanted, char letter) { return wanted == lowered(letter); }) ||
        !std::all_of(text.begin(), text.end(), isPlain))
        return std::nullopt;
    return SignInLink(text);
}

std::string SignInLink::shown() const {
    const std::string_view rest = std::string_view(m_text).substr(kLinkScheme.size());
    std::string result(kLinkScheme);
    if (!rest.starts_with("//"))
        return result;
    std::string_view host = rest.substr(2, rest.find_first_of("/?#", 2) - 2);
    if (const std::size_t user = host.rfind('@'); user != host.npos)
        host.remove_prefix(user + 1);
    return result.append("//").append(host);
}

} // namespace selvane
