// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/ProfileRecord.h"

#include "Fuzzing.h"
#include "model/ByteText.h"
#include "model/Profile.h"
#include "platform/text/Text.h"

namespace selvane::fuzz {
namespace {

void requireSameAgain(const ProfileMeta& meta) {
    const std::string text = encoded(meta);
    const auto again = decodedProfileMeta(text);
    require(again && *again == meta, "what is written is read the same");
    require(isUtf8(text), "a record is UTF-8");
}

/// Whatever was read or typed goes into a record and comes back unchanged.
void checkBytes(std::string_view bytes) {
    require(bytesFromText(textFromBytes(bytes)) == bytes, "bytes survive as text");
    ProfileMeta meta;
    meta.created = Timestamp(std::chrono::seconds(bytes.size()));
    meta.name = meta.summary = meta.look.symbol = meta.look.color = bytes;
    meta.source = meta.account = meta.name;
    meta.excluded["skills"] = {meta.name, "", meta.name};
    requireSameAgain(meta);
}

void checkRecord(std::string_view text) {
    const auto meta = decodedProfileMeta(text);
    if (!meta)
        return;
    requireSameAgain(*meta);
    const std::string changed = encoded(*meta, text);
    require(decodedProfileMeta(changed) == meta, "a record that replaces another is read the same");
    require(encoded(*meta, changed) == changed, "unknown keys stay");
    const std::string owner = Profile{"lavoro", *meta, "/r/lavoro"}.accountOwner();
    require(!Profile::isPossibleId(owner) || std::filesystem::path("/r") / owner ==
                                                 std::filesystem::path("/r/" + owner).lexically_normal(),
            "an account that is accepted is a plain name");
}

} // namespace
} // namespace selvane::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text = selvane::fuzz::textOf(data, size);
    selvane::fuzz::checkRecord(text);
    if (size <= 16)
        selvane::fuzz::checkBytes(text);
    return 0;
}
