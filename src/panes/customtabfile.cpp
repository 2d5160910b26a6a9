// SPDX-License-Identifier: GPL-3.0-or-later
#include "panes/customtabfile.h"

#include "core/filestore.h"
#include "files/textfile.h"

#include <QStringBuilder>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr QStringView titleMark = u"#EXTINF";

} // namespace

CustomTabFile parseCustomTab(const QStringList &lines)
{
    CustomTabFile tab;
    tab.header = lines.value(0);
    tab.entries.reserve(static_cast<std::size_t>(lines.size()));
    for (qsizetype i = 1; i < lines.size(); ++i) {
        const QString &line = lines[i];
        if (line.startsWith(titleMark))
            tab.entries.push_back({line.sliced(line.indexOf(u',') + 1), lines.value(++i)});
        else
            tab.entries.push_back({line, line});
    }
    return tab;
}

QString customTabEntry(const QString &title, const QString &code)
{
    return u"\r\n" % titleMark % u',' % title % u"\r\n" % code;
}

Result<void> AppendToFile(FileStore &files, const QString &filePath, const QString &text)
{
    Result<QByteArray> old = files.read(filePath);
    if (!old && old.error().code != Error::Code::NotFound)
        return old.error();
    const DecodedText content = decodeText(std::move(old).valueOr({}));
    const Result<QByteArray> longer = encodeText(content.utf8 + text.toUtf8(), content.format);
    return longer ? files.write(filePath, longer.value()) : longer.error();
}

} // namespace zephira
