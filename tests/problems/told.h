// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "problems/documentcheck.h"
#include "tools/tidy/tidylibrary.h"

#include <QFile>
#include <QStringList>

namespace zephira {

/// The names that the program ships with.
inline std::shared_ptr<const KnownNames> shippedNames()
{
    static const std::shared_ptr<const KnownNames> names = [] {
        QFile file(QStringLiteral(COMPLETION_DATA));
        const QByteArray content = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        return std::make_shared<const KnownNames>(std::make_shared<const CompletionData>(content));
    }();
    return names;
}

/// A check of a text with everything that the program has.
inline CheckOrder orderFor(const QByteArray &text, PlaceLanguage language = PlaceLanguage::Html)
{
    static const TidyLibrary tidy;
    return {text, language, {}, shippedNames(), &tidy};
}

/// Each problem as "start marked text: sentence", with "?" before a warning.
inline QStringList told(const QByteArray &text, const std::vector<Problem> &problems)
{
    QStringList lines;
    for (const Problem &problem : problems) {
        const bool isInside = problem.start >= 0 && problem.end > problem.start && problem.end <= text.size();
        const QByteArray marked =
            isInside ? text.mid(problem.start, problem.end - problem.start) : QByteArray("outside");
        lines.append(QStringLiteral("%1%2 %3: %4")
                         .arg(problem.severity == Problem::Severity::Warning ? QStringLiteral("?") : QString())
                         .arg(problem.start)
                         .arg(QString::fromUtf8(marked), problem.text));
    }
    return lines;
}

inline QStringList told(const CheckOrder &order)
{
    TidyWatch watch;
    return told(order.text, checkDocument(order, watch).problems);
}

} // namespace zephira
