// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "AppModel/Wording.h"

#include <QCoreApplication>
#include <QOperatingSystemVersion>

#include "model/LauncherError.h"
#include "platform/text/ErrorText.h"

namespace selvane {
namespace {

QString words(const char* text) {
    return QCoreApplication::translate("Wording", text);
}

/// What the exit status of zip means, as its manual says.
QString zipFailure(int status) {
    switch (status) {
    case 4:
    case 8:
        return words("Backup non riuscito: la memoria non è bastata. Chiudi qualche programma e riprova.");
    case 10:
    case 14:
    case 15:
        return words(
            "Backup non riuscito: l'archivio non si è potuto scrivere. Controlla che sul disco ci sia "
            "spazio e che nella cartella scelta si possa scrivere.");
    case 11:
        return words("Backup non riuscito: un file non si è potuto leggere fino in fondo.");
    case 12:
        return words("Backup non riuscito: non c'era niente da salvare.");
    default:
        break;
    }
    constexpr int kSignalled = 128;
    return status == 9 || status > kSignalled
               ? words("Backup interrotto: il programma che scrive l'archivio è stato chiuso.")
               : words("Backup non riuscito: il programma che scrive l'archivio si è fermato (codice %1).")
                     .arg(status);
}

} // namespace

QString explained(const std::exception& error) {
    if (const auto* zip = dynamic_cast<const ZipError*>(&error))
        return zipFailure(zip->status());
    if (dynamic_cast<const NotInstalledError*>(&error) != nullptr &&
        QOperatingSystemVersion::currentType() != QOperatingSystemVersion::MacOS)
        return words("Claude Desktop non è installato. Scarica il suo pacchetto da claude.ai/download, "
                     "installalo e riprova.");
    return QString::fromStdString(describe(error));
}

} // namespace selvane
