// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/completiontext.h"

namespace zephira {

qsizetype nameStart(QByteArrayView text, qsizetype end)
{
    while (end > 0 && isNameByte(text[end - 1]))
        --end;
    return end;
}

QByteArray lowered(QByteArrayView text)
{
    return text.toByteArray().toLower();
}

bool standsAt(QByteArrayView text, qsizetype at, QByteArrayView what)
{
    return text.size() - at >= what.size() && text.sliced(at, what.size()).compare(what, Qt::CaseInsensitive) == 0;
}

qsizetype findIgnoringCase(QByteArrayView text, QByteArrayView lower, qsizetype from)
{
    for (qsizetype at = text.indexOf(lower.front(), from); at >= 0; at = text.indexOf(lower.front(), at + 1)) {
        if (standsAt(text, at, lower))
            return at;
    }
    return -1;
}

qsizetype behindServerBlock(QByteArrayView text, qsizetype at)
{
    if (at + 1 >= text.size() || text[at] != '<' || (text[at + 1] != '%' && text[at + 1] != '?'))
        return -1;
    const qsizetype end = text.indexOf(text[at + 1] == '%' ? QByteArrayView("%>") : QByteArrayView("?>"), at + 2);
    return end < 0 ? text.size() : end + 2;
}

QByteArrayList completeWords(QByteArrayView value)
{
    QByteArrayList words;
    qsizetype start = 0;
    for (qsizetype at = 0; at < value.size(); ++at) {
        if (!isBlankOrBreak(value[at]))
            continue;
        if (at > start)
            words.append(value.sliced(start, at - start).toByteArray());
        start = at + 1;
    }
    return words;
}

} // namespace zephira
