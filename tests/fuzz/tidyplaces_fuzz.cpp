// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary texts and places: whatever is selected for a message lies within the text, and columns grow with those that
// Tidy has counted.
#include "files/lineends.h"
#include "files/textfile.h"
#include "fuzz/fuzztarget.h"
#include "tools/tidyplaces.h"

#include <QStringList>

using namespace zephira;

namespace {

void checkRange(const QStringList &lines, const CodeMaxRange &range)
{
    check(range.StartLineNo >= 0 && range.EndLineNo >= range.StartLineNo && range.EndLineNo < lines.size());
    check(range.StartColNo >= 0 && range.StartColNo <= lines[range.StartLineNo].size());
    check(range.EndColNo >= 0 && range.EndColNo <= lines[range.EndLineNo].size());
}

} // namespace

FUZZ_TARGET(tidyplaces)
{
    if (size < 3)
        return 0;
    const int line = data[0] % 16;
    const int column = data[1];
    const bool inBytes = data[2] % 2 != 0;
    const QByteArray file(reinterpret_cast<const char *>(data) + 3, static_cast<qsizetype>(size) - 3);
    const QByteArray markup = toLineEnds(decodeText(file).utf8, LineEnds::Lf);
    // Qt takes a second mark for the first one and drops it.
    if (markup.startsWith("\xef\xbb\xbf"))
        return 0;
    const QString text = QString::fromUtf8(markup);
    const QStringList lines = text.split(u'\n');

    std::vector<TidyMessage> messages{{.line = line, .column = column}, {.line = line, .column = column / 2}};
    toTextPlaces(messages, markup, inBytes);
    check(messages[1].column <= messages[0].column);
    check(messages[0].column <= lines.value(line).size());
    checkRange(lines, rangeAt(text, line, messages[0].column));
    checkRange(lines, rangeAt(text, line, column));
    checkRange(QString(text).replace(u'\n', u'\r').split(u'\r'),
               rangeAt(QString(text).replace(u'\n', u'\r'), line, column));
    return 0;
}
