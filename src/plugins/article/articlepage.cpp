// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugins/article/articlepage.h"

#include <QLocale>
#include <QRegularExpression>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace zephira {

bool isLanguageTag(const QString &text)
{
    static const QRegularExpression tag(u"^[A-Za-z]{2,8}(-[A-Za-z0-9]{1,8})*$"_s,
                                        QRegularExpression::DontCaptureOption);
    return text.contains(tag) && !text.endsWith(u'\n');
}

bool isComplete(const Article &article)
{
    return !article.title.trimmed().isEmpty() && isLanguageTag(article.language.trimmed());
}

QString articlePage(const Article &article)
{
    const QString title = article.title.simplified().toHtmlEscaped();
    const QString language = article.language.trimmed();
    const QString description = article.description.simplified().toHtmlEscaped();
    const QString direction = QLocale(language).textDirection() == Qt::RightToLeft ? u" dir=\"rtl\""_s : QString();

    QStringList lines{
        u"<!DOCTYPE html>"_s,
        u"<html lang=\""_s + language + u'"' + direction + u'>',
        u"<head>"_s,
        u"  <meta charset=\"utf-8\">"_s,
        u"  <meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">"_s,
        u"  <title>"_s + title + u"</title>"_s,
    };
    if (!description.isEmpty())
        lines += u"  <meta name=\"description\" content=\""_s + description + u"\">"_s;
    lines += {
        u"</head>"_s, u"<body>"_s, u"  <article>"_s, u"    <header>"_s, u"      <h1>"_s + title + u"</h1>"_s,
    };
    if (!description.isEmpty())
        lines += u"      <p>"_s + description + u"</p>"_s;
    lines += {
        u"    </header>"_s, u"    <p>The article begins here.</p>"_s, u"  </article>"_s, u"</body>"_s, u"</html>"_s,
        QString(),
    };
    return lines.join(u"\r\n"_s);
}

} // namespace zephira
