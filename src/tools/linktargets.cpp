// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/linktargets.h"

#include "core/vbtext.h"

#include <QRegularExpression>
#include <QStringMatcher>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// In UTF-16 code units, from the beginning of a match.
constexpr qsizetype longestStretch = 800;

/// One pass over the text: what is searched for, and the character that ends a target.
struct Pass {
    QString match;
    QChar end;
};

/// Fills in the targets of one pass; false if the search is over.
bool runPass(const QString &text, const Pass &pass, const std::function<bool()> &yield, LinkTargets &found,
             qsizetype &length)
{
    const QStringMatcher matcher(pass.match, Qt::CaseInsensitive);
    // Both passes skip the first character.
    for (qsizetype start = matcher.indexIn(text, 1); start >= 0; start = matcher.indexIn(text, start + 1)) {
        if (yield && !yield()) {
            found.stopped = true;
            return false;
        }
        QStringView value = QStringView(text).sliced(start);
        if (text.size() > longestStretch)
            value = value.first(std::min(longestStretch, value.size()));
        value = value.sliced(pass.match.size());
        if (const qsizetype end = value.indexOf(pass.end); end >= 0)
            value = value.first(end);
        const QString target = Trim(value.toString());
        length += target.size();
        if (length > maximumTargetsLength) {
            found.truncated = true;
            return false;
        }
        found.targets.append(target);
    }
    return true;
}

} // namespace

LinkTargets linkTargets(const QString &text, const std::function<bool()> &yield)
{
    const Pass quoted{u"href=\""_s, u'"'};
    const Pass any{u"href="_s, u'>'};
    LinkTargets found;
    qsizetype length = 0;
    if (runPass(text, quoted, yield, found, length))
        runPass(text, any, yield, found, length);
    return found;
}

QString linksPage(const QStringList &targets)
{
    if (targets.isEmpty())
        return {};
    QString page = u"<HTML>\r\n<BODY>"_s;
    for (const QString &target : targets)
        page += u"\r\n<A HREF=\""_s + target + u"\">"_s + target + u"</A><BR>"_s;
    return page;
}

QString targetToOpen(const QString &target, const QString &folder)
{
    // A single letter before the colon is a drive letter, not a scheme.
    static const QRegularExpression scheme(u"^[A-Za-z][A-Za-z0-9+.-]+:"_s);
    if (target.startsWith(u'/') || scheme.match(target).hasMatch())
        return target;
    return folder + u'/' + target;
}

} // namespace zephira
