// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRandomGenerator>
#include <QString>
#include <QStringList>

namespace zephira {

/// A text of up to `longest` randomly chosen pieces. The same random numbers give the same text.
inline QString generatedText(QRandomGenerator &random, const QStringList &pieces, int longest)
{
    QString text;
    for (int count = random.bounded(longest + 1); count > 0; --count)
        text += pieces[random.bounded(pieces.size())];
    return text;
}

} // namespace zephira
