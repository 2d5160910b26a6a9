// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary words about an article: the page that is made of them ends them where they are to end.
#include "fuzz/fuzztarget.h"
#include "plugins/article/articlepage.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;
using namespace zephira;

FUZZ_TARGET(articlepage)
{
    QString text = zephira::fuzz::inputText(data, size);
    const Article article{zephira::fuzz::takenLine(text), zephira::fuzz::takenLine(text), text};
    static const QRegularExpression tag(u"\\A[A-Za-z0-9]{2,8}(-[A-Za-z0-9]+)*\\z"_s);
    if (isLanguageTag(article.language))
        check(tag.match(article.language).hasMatch());
    if (!isComplete(article))
        return 0;
    const QString page = articlePage(article);
    const QString plain = articlePage(
        {u"Title"_s, article.language, article.description.simplified().isEmpty() ? QString() : u"Words"_s});
    check(page.count(u'<') == plain.count(u'<') && page.count(u'>') == plain.count(u'>'));
    check(page.count(u'"') == plain.count(u'"'));
    return 0;
}
