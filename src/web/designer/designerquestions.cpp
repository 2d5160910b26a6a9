// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/designer/designerquestions.h"

#include "core/languages.h"

#include <QDir>
#include <QFileInfo>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace zephira {

std::optional<QString> DesignerQuestions::picture(const QString &baseFile)
{
    const QString folder = baseFile.isEmpty() ? QString() : QFileInfo(baseFile).path();
    const auto file = m_prompts.file({u"Picture"_s, u"Pictures|%1|All Files|*.*"_s.arg(picturePatterns()), folder});
    return file ? std::optional(fileAddress(baseFile, *file)) : std::nullopt;
}

std::optional<QString> DesignerQuestions::link(const QString &address)
{
    return m_prompts.input({u"Address of the link:"_s, u"Hyperlink"_s, address.isEmpty() ? u"http://"_s : address});
}

std::optional<QString> DesignerQuestions::searchText()
{
    const auto text = m_prompts.input({u"Find what:"_s, u"Find"_s, m_searchText});
    m_searchText = text.value_or(m_searchText);
    return text;
}

void DesignerQuestions::tellNotFound(const QString &text)
{
    m_prompts.tell(u"Cannot find \"%1\"."_s.arg(text), u"Find"_s);
}

std::optional<FontChoice> DesignerQuestions::font(const FontChoice &font)
{
    return m_prompts.font(font);
}

QString fileAddress(const QString &baseFile, const QString &file)
{
    if (baseFile.isEmpty())
        return QUrl::fromLocalFile(file).toString(QUrl::FullyEncoded);
    const QString path = QFileInfo(baseFile).dir().relativeFilePath(file);
    return QString::fromLatin1(QUrl::toPercentEncoding(path, "/!$&'()*+,;=:@"));
}

} // namespace zephira
