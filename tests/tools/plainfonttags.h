// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRegularExpression>
#include <QString>

namespace zephira {

/// The markup without the tags of font and center elements, by one expression that names every kind of piece, as a
/// reference for the real pass. A piece without an end reaches up to the end of the text.
inline QString plainWithoutFontTags(const QString &markup)
{
    using namespace Qt::StringLiterals;
    const QString rest = uR"((?:"[^"]*(?:"|$)|'[^']*(?:'|$)|<%(?:.*?%>|.*$)|<\?(?:.*?\?>|.*$)|[^>])*(?:>|$))"_s;
    static const QRegularExpression pieces(
        uR"((?<kept><!--(?:.*?-->|.*$)|<!\[CDATA\[(?:.*?\]\]>|.*$)|<%(?:.*?%>|.*$)|<\#(?:.*?\#>|.*$))"
        uR"(|<\?(?:php|=|\x20|\n)(?:.*?\?>|.*$)|<[!?]%1)"
        uR"(|<(?<raw>(?i:script|style))(?![-A-Za-z0-9:_.])%1(?<!/>)(?:.*?(?=</(?i:\k<raw>))|.*$)))"
        uR"(|<\/?(?i:font|center)(?![-A-Za-z0-9:_.])%1|(?<other><\/?[A-Za-z][-A-Za-z0-9:_.]*%1))"_s.arg(rest),
        QRegularExpression::DotMatchesEverythingOption | QRegularExpression::DontCaptureOption);
    QString result;
    qsizetype from = 0;
    for (const QRegularExpressionMatch &piece : pieces.globalMatch(markup)) {
        result += QStringView(markup).sliced(from, piece.capturedStart() - from);
        result += piece.captured(u"kept"_s) + piece.captured(u"other"_s);
        from = piece.capturedEnd();
    }
    result += QStringView(markup).sliced(from);
    return result;
}

} // namespace zephira
