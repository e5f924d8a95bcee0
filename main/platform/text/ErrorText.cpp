// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/text/ErrorText.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <string_view>

#include "platform/text/Text.h"

namespace selvane {
namespace {

struct Reason {
    int error;
    std::string_view text;
};

constexpr Reason kReasons[] = {
    {EACCES, "permesso negato"},
    {EBUSY, "è in uso"},
    {EDQUOT, "quota disco superata"},
    {EEXIST, "esiste già"},
    {EFBIG, "file troppo grande per il disco"},
    {EINVAL, "operazione non valida"},
    {EIO, "errore di lettura o scrittura del disco"},
    {EISDIR, "è una cartella"},
    {ELOOP, "troppi collegamenti simbolici"},
    {EMFILE, "troppi file aperti"},
    {ENAMETOOLONG, "nome troppo lungo"},
    {ENFILE, "troppi file aperti"},
    {ENODEV, "il dispositivo non esiste"},
    {ENOENT, "il file o la cartella non esiste"},
    {ENOEXEC, "non è un programma eseguibile"},
    {ENOMEM, "memoria insufficiente"},
    {ENOSPC, "spazio sul disco esaurito"},
    {ENOTDIR, "non è una cartella"},
    {ENOTEMPTY, "la cartella non è vuota"},
    {ENOTSUP, "operazione non supportata"},
    {ENXIO, "il dispositivo non esiste"},
    {EOVERFLOW, "file troppo grande"},
    {EPERM, "operazione non consentita"},
    {EROFS, "il disco è di sola lettura"},
    {ESTALE, "il file non è più raggiungibile"},
    {ETXTBSY, "il programma è in esecuzione"},
    {EXDEV, "si trova su un altro disco"},
};

} // namespace

std::string describe(const std::error_code& code) {
    if (code.category() != std::generic_category() && code.category() != std::system_category())
        return code.message();
    const auto* found = std::find_if(std::begin(kReasons), std::end(kReasons), [&](const Reason& candidate) {
        return candidate.error == code.value();
    });
    return found == std::end(kReasons) ? code.message() : std::string(found->text);
}

std::string describe(const std::exception& error) {
    const auto* failure = dynamic_cast<const std::filesystem::filesystem_error*>(&error);
    if (failure == nullptr)
        return text::singleLine(error.what());
    std::string paths = text::singleLine(failure->path1().native());
    const bool hasTwoPaths = !failure->path2().empty();
    if (hasTwoPaths)
        paths += ", " + text::singleLine(failure->path2().native());
    if (!paths.empty())
        paths += ": ";
    // Only a copy or a move has two paths, and this is the only invalid pair.
    if (hasTwoPaths && failure->code() == std::errc::invalid_argument)
        return paths + "una cartella non può stare dentro se stessa";
    return paths + describe(failure->code());
}

} // namespace selvane
