// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/desktoptranslation.h"

#include "core/filestore.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

QString translationLanguage(const QStringList &languages)
{
    // Without a regular expression: none other is needed for a start, and the first one takes half a megabyte.
    const QString first = languages.value(0);
    const auto end = std::ranges::find_if_not(first, [](QChar c) { return c >= u'a' && c <= u'z'; });
    const qsizetype length = end - first.begin();
    const bool isName = length >= 2 && length <= 3 && (end == first.end() || u"-_.@"_s.contains(*end));
    const QString language = isName ? first.first(length) : QString();
    return language == u"en" ? QString() : language;
}

Translation::Translation(const FileStore &files, const QStringList &folders, const QStringList &languages)
{
    const QString language = translationLanguage(languages);
    if (language.isEmpty())
        return;
    for (const QString &folder : folders) {
        const QString path = u"%1/translations/zephira_%2.qm"_s.arg(folder, language);
        if (!QFileInfo::exists(path))
            continue;
        m_content = files.read(path).valueOr({});
        const auto *bytes = reinterpret_cast<const uchar *>(m_content.constData());
        if (m_translator.load(bytes, static_cast<int>(m_content.size()))) {
            QCoreApplication::installTranslator(&m_translator);
            return;
        }
    }
}

Translation::~Translation()
{
    if (QCoreApplication::instance())
        QCoreApplication::removeTranslator(&m_translator);
}

} // namespace zephira
