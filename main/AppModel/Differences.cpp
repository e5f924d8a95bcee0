// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "AppModel/Differences.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "platform/text/Text.h"

namespace selvane {
namespace {

constexpr int kDiffPatience = 10'000; // milliseconds
constexpr int kDiffFailed = 2;
constexpr qsizetype kMostDiffLines = 5'000;

QString diffWords(const char* text) {
    return QCoreApplication::translate("selvane::Differences", text);
}

std::optional<QByteArray> outputOfDiff(const QString& before, const QString& after) {
    QProcess diff;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    diff.setProcessEnvironment(environment);
    diff.setStandardInputFile(QProcess::nullDevice());
    diff.start(QStringLiteral("diff"), {"-r", "-u", "-N", "--", before, after});
    if (!diff.waitForFinished(kDiffPatience) || diff.exitStatus() != QProcess::NormalExit ||
        diff.exitCode() == kDiffFailed)
        return std::nullopt;
    return diff.readAllStandardOutput();
}

/// Reads what `diff -u` writes, line by line.
class DiffReader {
public:
    explicit DiffReader(QString after) : m_after(std::move(after)) {}

    void read(const QString& line) {
        static const QRegularExpression part(R"(^@@ -\d+(?:,(\d+))? \+\d+(?:,(\d+))? @@)");
        if (m_left[0] > 0 || m_left[1] > 0) {
            readLineOfPart(line);
        } else if (const auto match = part.match(line); match.hasMatch()) {
            m_left = {countIn(match, 1), countIn(match, 2)};
            add(line);
        } else if (line.startsWith("+++ ")) {
            beginFile(line.mid(4).section('\t', 0, 0));
        } else if (line.startsWith("Binary files ")) {
            beginFile(line.section(" and ", -1).section(" differ", 0, -2));
            add(diffWords("contenuto non testuale diverso"));
        }
    }
    Differences found() {
        endRun();
        m_found.isKnown = true;
        return std::move(m_found);
    }

private:
    static int countIn(const QRegularExpressionMatch& match, int group) {
        return match.hasCaptured(group) ? match.captured(group).toInt() : 1;
    }
    void add(const QString& line) {
        if (m_found.lines.size() < kMostDiffLines)
            m_found.lines += QString::fromStdString(text::singleLine(line.toStdString()));
        else if (m_found.lines.size() == kMostDiffLines)
            m_found.lines += diffWords("…");
    }
    void beginFile(const QString& path) {
        m_found.files +=
            path.startsWith(m_after + '/') ? path.mid(m_after.size() + 1) : path.section('/', -1);
        add(m_found.files.last());
    }
    void readLineOfPart(const QString& line) {
        const QChar kind = line.isEmpty() ? QChar(' ') : line[0];
        if (kind == '\\') // "No newline at end of file"
            return;
        m_left[0] -= kind != '+' ? 1 : 0;
        m_left[1] -= kind != '-' ? 1 : 0;
        m_changed[0] += kind == '-' ? 1 : 0;
        m_changed[1] += kind == '+' ? 1 : 0;
        if (kind == ' ')
            endRun();
        add(line);
    }
    /// A line that was changed is written twice but counts once.
    void endRun() {
        m_found.count += std::max(m_changed[0], m_changed[1]);
        m_changed = {};
    }

    QString m_after;
    Differences m_found;
    // Before and after the change:
    std::array<int, 2> m_left{};    ///< how many lines of this part are still to come
    std::array<int, 2> m_changed{}; ///< how many there were since the last one that is the same
};

} // namespace

QString Differences::summary() const {
    if (!isKnown)
        return diffWords("Contenuto diverso");
    if (files.isEmpty())
        return diffWords("Il contenuto è uguale");
    if (files.size() > 1)
        return diffWords("%1 file diversi").arg(files.size());
    if (count == 0)
        return diffWords("Contenuto diverso in %1").arg(files.first());
    return count == 1 ? diffWords("1 riga diversa in %1").arg(files.first())
                      : diffWords("%1 righe diverse in %2").arg(QString::number(count), files.first());
}

Differences differencesBetween(const std::filesystem::path& before, const std::filesystem::path& after) {
    const QString second = QFile::decodeName(after.c_str());
    const auto output = outputOfDiff(QFile::decodeName(before.c_str()), second);
    if (!output)
        return {};
    DiffReader reader(second);
    for (const QByteArray& line : output->split('\n')) {
        if (!line.isEmpty())
            reader.read(QString::fromUtf8(line));
    }
    return reader.found();
}

} // namespace selvane
