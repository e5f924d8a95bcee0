// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "AppModel/WorkProgress.h"

#include <QLocale>

#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/files/ProgressText.h"

namespace selvane {
namespace {

constexpr int kLookEvery = 100;          // milliseconds
constexpr qint64 kTimeKnownAfter = 3000; // milliseconds; before that it would jump
constexpr qint64 kTimeRenewedAfter = 1000;

QString number(qint64 value) {
    return QLocale(QLocale::Italian, QLocale::Italy).toString(value);
}

} // namespace

WorkProgress::WorkProgress(QObject* parent) : QObject(parent) {
    m_timer.setInterval(kLookEvery);
    connect(&m_timer, &QTimer::timeout, this, &WorkProgress::look);
}

void WorkProgress::begin(std::shared_ptr<Progress> progress) {
    m_progress = std::move(progress);
    m_sinceBegin.start();
    m_timer.start();
    clear();
}

void WorkProgress::end() {
    m_timer.stop();
    m_progress.reset();
    emit changed();
}

void WorkProgress::clear() {
    m_headline.clear();
    m_detail.clear();
    m_timeLeft.clear();
    m_timeShownAt = 0;
    m_fraction = -1;
    emit changed();
}

void WorkProgress::cancel() {
    if (!m_progress || m_progress->isCancelled())
        return;
    m_progress->cancel();
    look();
}

void WorkProgress::look() {
    if (m_progress->isCancelled()) {
        m_headline = tr("Annullamento…");
        m_detail = tr("Tolgo le copie già fatte, il resto non cambia.");
        emit changed();
        return;
    }
    const auto expected = m_progress->expected();
    if (expected) {
        const bool hasBytes = expected->bytes > 0;
        const auto whole = static_cast<double>(hasBytes ? expected->bytes : expected->entries);
        const auto done = static_cast<double>(hasBytes ? m_progress->bytes() : m_progress->entries());
        m_fraction = std::max(m_fraction, std::min(done / whole, 1.0));
        if (expected->entries > 0)
            m_headline = expected->entries == 1 ? tr("Copia di 1 elemento…")
                                                : tr("Copia di %1 elementi…").arg(number(expected->entries));
    }
    showTime();
    m_detail = QString::fromStdString(progressText(*m_progress));
    if (!m_detail.isEmpty() && !m_timeLeft.isEmpty())
        m_detail += tr(" · ") + m_timeLeft;
    emit changed();
}

void WorkProgress::showTime() {
    const qint64 now = m_sinceBegin.elapsed();
    if (m_fraction <= 0 || now < kTimeKnownAfter || now < m_timeShownAt + kTimeRenewedAfter)
        return;
    m_timeShownAt = now;
    m_timeLeft = timeLeft(m_fraction, now);
}

QString WorkProgress::timeLeft(double fraction, qint64 elapsedMilliseconds) {
    constexpr qint64 kFew = 5;
    constexpr qint64 kMinute = 60;
    constexpr qint64 kHour = 60 * kMinute;
    const double left = static_cast<double>(elapsedMilliseconds) / 1000 * (1 - fraction) / fraction;
    const auto seconds = static_cast<qint64>(std::ceil(left));
    if (seconds < kFew)
        return tr("meno di 5 secondi");
    if (seconds < kMinute)
        return tr("circa %1 secondi").arg(seconds);
    const qint64 minutes = (seconds + kMinute / 2) / kMinute;
    if (seconds < kHour)
        return minutes == 1 ? tr("circa 1 minuto") : tr("circa %1 minuti").arg(minutes);
    const qint64 hours = (seconds + kHour / 2) / kHour;
    return hours == 1 ? tr("circa 1 ora") : tr("circa %1 ore").arg(hours);
}

} // namespace selvane
