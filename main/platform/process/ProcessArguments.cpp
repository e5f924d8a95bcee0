// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/process/ProcessArguments.h"

#include <cstdint>
#include <cstring>

#include "model/ByteText.h"

namespace selvane {
namespace {

/// The pieces between the NULs of an area, without empty ones.
class Pieces {
public:
    explicit Pieces(std::string_view bytes) : m_rest(bytes) { skipNuls(); }

    bool atEnd() const { return m_rest.empty(); }

    std::string_view next() {
        const std::string_view piece = m_rest.substr(0, m_rest.find('\0'));
        m_rest.remove_prefix(piece.size());
        skipNuls();
        return piece;
    }

private:
    void skipNuls() {
        const std::size_t count = m_rest.find_first_not_of('\0');
        m_rest.remove_prefix(count == m_rest.npos ? m_rest.size() : count);
    }

    std::string_view m_rest;
};

} // namespace

ProcessArguments processArguments(std::string_view area) {
    ProcessArguments result;
    std::int32_t count = 0;
    if (area.size() <= sizeof count)
        return result;
    std::memcpy(&count, area.data(), sizeof count);
    Pieces pieces(area.substr(sizeof count));
    if (!pieces.atEnd())
        pieces.next(); // the executable
    for (std::int32_t i = 0; i < count && !pieces.atEnd(); ++i)
        result.args.push_back(repaired(pieces.next()));
    while (!pieces.atEnd()) {
        const std::string_view variable = pieces.next();
        const std::size_t sign = variable.find('=');
        if (sign != variable.npos)
            result.env.insert_or_assign(repaired(variable.substr(0, sign)),
                                        repaired(variable.substr(sign + 1)));
    }
    return result;
}

} // namespace selvane
