// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/elementcaption.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// A caption shouldn't push the others out of sight.
constexpr qsizetype longest = 40;
/// A tag with a longer beginning isn't searched further.
constexpr qsizetype mostRead = 2000;

} // namespace

QString elementCaption(QByteArrayView tag, QByteArrayView name)
{
    static const QRegularExpression attributes(
        uR"re(\s(id|class)\s*=\s*(?:"([^"<]*)"|'([^'<]*)'|([^\s"'<>]+))|"[^"]*"|'[^']*')re"_s,
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression blanks(u"\\s+"_s);
    const QString text = QString::fromUtf8(tag.first(std::min(tag.size(), mostRead)));
    QString id;
    QString classes;
    for (const QRegularExpressionMatch &match : attributes.globalMatch(text)) {
        const QString value = match.captured(2) + match.captured(3) + match.captured(4);
        const QStringList words = value.split(blanks, Qt::SkipEmptyParts);
        if (words.isEmpty() || match.captured(1).isEmpty())
            continue;
        if (match.captured(1).compare(u"id", Qt::CaseInsensitive) == 0)
            id = id.isEmpty() ? u'#' + words.first() : id;
        else if (classes.isEmpty())
            classes = u'.' + words.join(u'.');
    }
    const QString caption = QString::fromUtf8(name) + id + classes;
    return caption.size() > longest ? caption.first(longest - 1) + u'\u2026' : caption;
}

} // namespace zephira
