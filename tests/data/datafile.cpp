// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/datafile.h"

#include "support/sourcefolder.h"

#include <QFile>
#include <QRegularExpression>
#include <QStringDecoder>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

QByteArray shippedBytes(const QString &name)
{
    QFile file(shippedFolder() + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

QString shippedFolder()
{
    return sourcePath(u"data/"_s);
}

QString faultOf(const QString &file, const QString &lineEnd, bool tabs)
{
    const QByteArray bytes = shippedBytes(file);
    if (bytes.isEmpty())
        return file + u" is missing or empty."_s;
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    const QString text = decoder(bytes);
    if (decoder.hasError() || text.startsWith(QChar::ByteOrderMark))
        return file + u" is no plain UTF-8."_s;
    const QString rest = QString(text).remove(lineEnd);
    if (rest.contains(u'\r') || rest.contains(u'\n'))
        return file + u" has line ends of another kind."_s;
    const QStringList lines = text.split(lineEnd);
    static const QRegularExpression blankEnd(u"[ \t]$"_s);
    static const QRegularExpression tab(u"\t"_s);
    static const QRegularExpression innerTab(u"[^\t]\t"_s);
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (lines[i].contains(blankEnd) || lines[i].contains(tabs ? innerTab : tab))
            return u"%1:%2: blanks or tabs that can't be seen."_s.arg(file).arg(i + 1);
    }
    return {};
}

QString shippedText(const QString &file)
{
    return QString::fromUtf8(shippedBytes(file));
}

QStringList shippedLines(const QString &file)
{
    QString text = shippedText(file);
    text.remove(u'\r');
    if (text.endsWith(u'\n'))
        text.chop(1);
    return text.split(u'\n');
}

QStringList repeated(QStringList values)
{
    values.sort();
    QStringList found;
    for (qsizetype i = 1; i < values.size(); ++i) {
        if (values[i] == values[i - 1] && !found.contains(values[i]))
            found << values[i];
    }
    return found;
}

bool isBalanced(const QString &text)
{
    QString open;
    bool quoted = false;
    for (const QChar letter : text) {
        if (letter == u'"')
            quoted = !quoted;
        if (quoted)
            continue;
        if (const qsizetype kind = u"([{"_s.indexOf(letter); kind >= 0) {
            open += u")]}"_s[kind];
        } else if (u")]}"_s.contains(letter)) {
            if (!open.endsWith(letter))
                return false;
            open.chop(1);
        }
    }
    return open.isEmpty() && !quoted;
}

} // namespace zephira
