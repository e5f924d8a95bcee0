// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFile>
#include <QUrl>

#include <filesystem>

namespace selvane {

/// The address by which the desktop's other programs find a file.
inline QUrl fileUrl(const std::filesystem::path& path) {
    return QUrl::fromLocalFile(QFile::decodeName(QByteArray::fromStdString(path.native())));
}

} // namespace selvane
