// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/textgenerator.h"

namespace zephira {

/// A template in a readable notation, filled with fields: ① to ⑳ stand for the fields, ' for a double quote, and a line
/// feed for CR LF.
inline QString filled(const QString &notation, const QStringList &fields)
{
    QString text;
    for (const QChar unit : notation) {
        if (unit >= u'①' && unit <= u'⑳')
            text += fields[unit.unicode() - u'①'];
        else if (unit == u'\'')
            text += u'"';
        else if (unit == u'\n')
            text += QStringLiteral("\r\n");
        else
            text += unit;
    }
    return text;
}

/// Fields with everything that a wizard must leave as it is.
inline QStringList generatedFields(QRandomGenerator &random, int count)
{
    static const QStringList pieces{QStringLiteral("a"),      QStringLiteral("Größe"),      QStringLiteral("\""),
                                    QStringLiteral("'"),      QStringLiteral("<"),          QStringLiteral(">"),
                                    QStringLiteral("&"),      QStringLiteral(" "),          QStringLiteral("\r\n"),
                                    QStringLiteral("%1"),     QStringLiteral("\U0001F600"), QStringLiteral("default)"),
                                    QStringLiteral("http://")};
    QStringList fields;
    for (int i = 0; i < count; ++i)
        fields.append(generatedText(random, pieces, 4));
    return fields;
}

} // namespace zephira
