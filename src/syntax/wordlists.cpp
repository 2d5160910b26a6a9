// SPDX-License-Identifier: GPL-3.0-or-later
#include "syntax/languagedefinition.h"

using namespace Qt::StringLiterals;

namespace zephira {

QString wordList(QStringView words)
{
    return words.toString().simplified().replace(u' ', u'\n');
}

QString entryList(QStringView entries)
{
    return entries.toString().replace(u'|', u'\n');
}

QByteArrayList entriesOf(const QString &list)
{
    QByteArrayList entries = list.toUtf8().split('\n');
    entries.removeAll(QByteArray());
    return entries;
}

} // namespace zephira
