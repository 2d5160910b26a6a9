// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/fetchedtext.h"

#include "files/textfile.h"
#include "views/pagefetcher.h"

#include <QRegularExpression>
#include <QStringDecoder>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// A page must declare its character set within this many bytes.
constexpr qsizetype declarationRoom = 4096;

/// Pages with these character sets are decoded as Windows-1252, which contains them.
constexpr QStringView partsOfWindows1252[] = {u"iso-8859-1", u"iso8859-1",    u"latin1", u"l1",      u"us-ascii",
                                              u"ascii",      u"windows-1252", u"cp1252", u"x-cp1252"};

QString decoded(QByteArrayView bytes, const QString &charset)
{
    QStringDecoder decoder(charset.toLatin1().constData());
    return decoder.isValid() ? QString(decoder(bytes)) : QString();
}

QString guessed(const QByteArray &bytes)
{
    return QString::fromUtf8(decodeText(bytes).utf8);
}

} // namespace

QString charsetOfContentType(const QString &contentType)
{
    static const QRegularExpression pattern(uR"re(\bcharset\s*=\s*["']?\s*([^\s"';,>/]+))re"_s,
                                            QRegularExpression::CaseInsensitiveOption);
    return pattern.match(contentType).captured(1);
}

QString declaredCharset(QByteArrayView page)
{
    static const QRegularExpression marks(
        uR"re(<meta\b[^>]*\bcharset\s*=\s*["']?\s*([^\s"';,>/]+)|^\s*<\?xml\b[^>]*\bencoding\s*=\s*["']([^"']+)|^@charset\s+"([^"]+)")re"_s,
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match =
        marks.match(QString::fromLatin1(page.first(std::min(declarationRoom, page.size()))));
    return match.captured(1) + match.captured(2) + match.captured(3);
}

QString fetchedText(const FetchedPage &page)
{
    if (const auto mark = QStringConverter::encodingForData(page.bytes))
        return QStringDecoder(*mark)(page.bytes);
    const QString charset = page.charset.isEmpty() ? declaredCharset(page.bytes) : page.charset;
    if (std::ranges::find(partsOfWindows1252, charset.toLower()) != std::end(partsOfWindows1252))
        return QString::fromUtf8(windows1252ToUtf8(page.bytes));
    const QString text = charset.isEmpty() ? QString() : decoded(page.bytes, charset);
    return text.isEmpty() ? guessed(page.bytes) : text;
}

} // namespace zephira
