// SPDX-License-Identifier: GPL-3.0-or-later
#include "problems/xmlcheck.h"

#include "completion/completiontext.h"

#include <QXmlStreamReader>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// What an outer document type declares isn't read.
class OuterEntities final : public QXmlStreamEntityResolver
{
public:
    QString resolveUndeclaredEntity(const QString &) override { return u" "_s; }
};

/// The sentences of the reader begin with a small letter here and there.
QString sentence(QString text)
{
    if (!text.isEmpty())
        text.front() = text.front().toUpper();
    return text.endsWith(u'.') ? text : text + u'.';
}

} // namespace

void checkXml(const CoveredText &document, ProblemSink &sink, const TidyWatch &watch)
{
    if (!document.blocks.empty() || document.text.trimmed().isEmpty())
        return;
    // As text, because the buffer is UTF-8 whatever the declaration says that the file is in.
    const QString text = QString::fromUtf8(document.text);
    QXmlStreamReader reader(text);
    OuterEntities entities;
    if (findIgnoringCase(document.text, "<!doctype", 0) >= 0)
        reader.setEntityResolver(&entities);
    constexpr int step = 1024;
    for (int count = 1; !reader.atEnd(); ++count) {
        if (count % step == 0 && watch.isCancelled())
            return;
        reader.readNext();
    }
    if (!reader.hasError())
        return;
    const qsizetype offset = std::clamp<qsizetype>(reader.characterOffset() - 1, 0, text.size());
    // The tag or reference that the reader has come to, or else the character.
    const qsizetype last = std::min(offset, text.size() - 1);
    const qsizetype opening = std::max(text.lastIndexOf(u'<', last), text.lastIndexOf(u'&', last));
    const QChar closing = opening >= 0 && text[opening] == u'&' ? u';' : u'>';
    const bool isInside = opening >= 0 && text.indexOf(closing, opening) >= offset - 1;
    const qsizetype start = QStringView(text).left(isInside ? opening : offset).toUtf8().size();
    qsizetype end = std::min(start + 1, document.text.size());
    while (end < document.text.size() && (isNameByte(document.text[end]) || document.text[end] == '/'))
        ++end;
    sink.error(std::min(start, document.text.size() - 1), end, sentence(reader.errorString()));
}

} // namespace zephira
