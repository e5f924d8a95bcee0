// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "artwork/PngFile.h"

#include <QBuffer>

#include <cmath>

#include "platform/files/FileManager.h"

namespace selvane {

bool writePng(QImage image, int scale, const std::filesystem::path& file) {
    constexpr double kPointsAMetre = 72 / 0.0254;
    const int dots = static_cast<int>(std::lround(kPointsAMetre * scale));
    image.setDotsPerMeterX(dots);
    image.setDotsPerMeterY(dots);
    QBuffer buffer;
    buffer.open(QBuffer::WriteOnly);
    if (image.isNull() || !image.save(&buffer, "PNG"))
        return false;
    FileManager().write(file, {buffer.data().constData(), static_cast<std::size_t>(buffer.size())});
    return true;
}

} // namespace selvane
