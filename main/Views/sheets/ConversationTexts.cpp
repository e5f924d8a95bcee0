// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/sheets/ConversationTexts.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QLocale>

#include <chrono>

#include "AppModel/QtText.h"
#include "platform/text/Text.h"

namespace selvane {
namespace {

constexpr int kYear = 365;

struct ConversationWords {
    Q_DECLARE_TR_FUNCTIONS(ConversationWords)
};

const QLocale& italian() {
    static const QLocale locale(QLocale::Italian, QLocale::Italy);
    return locale;
}

QDateTime localTime(double seconds) {
    return QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(seconds * 1000));
}

bool isThisWeek(const QDate& day, const QDate& today) {
    return day.daysTo(today) < 7 && day.weekNumber() == today.weekNumber();
}

} // namespace

QString conversationTally(int count, int total, int profiles) {
    const QString all = italian().toString(total);
    if (count != total)
        return ConversationWords::tr("%1 di %2 conversazioni").arg(italian().toString(count), all);
    const QString what = total == 1 ? ConversationWords::tr("1 conversazione")
                                    : ConversationWords::tr("%1 conversazioni").arg(all);
    return what + ' ' +
           (profiles == 1 ? ConversationWords::tr("in 1 profilo")
                          : ConversationWords::tr("in %1 profili").arg(profiles));
}

QString sectionTitle(std::optional<double> activity) {
    if (!activity)
        return ConversationWords::tr("Senza data");
    const QDate today = QDate::currentDate();
    const QDate day = localTime(*activity).date();
    if (day >= today)
        return ConversationWords::tr("Oggi");
    if (day.addDays(1) == today)
        return ConversationWords::tr("Ieri");
    return isThisWeek(day, today) ? ConversationWords::tr("Questa settimana")
                                  : italian().toString(day, QStringLiteral("MMMM yyyy"));
}

QString activityText(std::optional<double> activity) {
    if (!activity)
        return {};
    const QDateTime now = QDateTime::currentDateTime();
    const QDateTime then = localTime(*activity);
    const QDate day = then.date();
    if (day >= now.date())
        return qtText(text::relativeDate(std::chrono::seconds(then.secsTo(now))));
    if (day.addDays(1) == now.date())
        return ConversationWords::tr("ieri, %1")
            .arg(italian().toString(then.time(), QStringLiteral("HH:mm")));
    if (isThisWeek(day, now.date()))
        return italian().toString(day, QStringLiteral("dddd"));
    return italian().toString(day, day.year() == now.date().year() ? QStringLiteral("d MMMM")
                                                                   : QStringLiteral("d MMM yyyy"));
}

QString shortFolder(const std::string& folder, const std::filesystem::path& home) {
    const std::string above = home.string() + '/';
    const std::string shown = folder.starts_with(above) ? "~/" + folder.substr(above.size())
                              : folder == home.string() ? "~"
                                                        : folder;
    return qtText(text::singleLine(shown));
}

std::optional<double> periodBegin(int days) {
    if (days < 0)
        return std::nullopt;
    const QDate today = QDate::currentDate();
    const QDate first = days == kYear ? QDate(today.year(), 1, 1) : today.addDays(-days);
    return static_cast<double>(first.startOfDay().toSecsSinceEpoch());
}

} // namespace selvane
