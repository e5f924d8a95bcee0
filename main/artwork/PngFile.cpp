// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "artwork/PngFile.h"

#include <QBuffer>

#include <cmath>
#include <utility>

#include "platform/files/FileManager.h"

namespace selvane {

QByteArray pngBytes(QImage image, int scale) {
    constexpr double kPointsAMetre = 72 / 0.0254;
    const int dots = static_cast<int>(std::lround(kPointsAMetre * scale));
    image.setDotsPerMeterX(dots);
    image.setDotsPerMeterY(dots);
    QBuffer buffer;
    buffer.open(QBuffer::WriteOnly);
    return !image.isNull() && image.save(&buffer, "PNG") ? buffer.data() : QByteArray();
}

bool writePng(QImage image, int scale, const std::filesystem::path& file) {
    const QByteArray bytes = pngBytes(std::move(image), scale);
    if (bytes.isEmpty())
        return false;
    FileManager().write(file, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
    return true;
}

} // namespace selvane
