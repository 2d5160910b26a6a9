// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTranslator>

namespace zephira {

class FileStore;

/// The language whose translation a user wants, "de", by the desktop's list of languages ("de-AT", "de", "en"): that of
/// the first one. Empty for English, the language of the program's own texts.
QString translationLanguage(const QStringList &languages);

/// The program's texts in the language of the desktop, as long as this exists. Without a translation in that language, and
/// for English, no file is opened.
class Translation
{
public:
    /// Looks for the file in `translations` below each of the folders, the first one first. The application must exist.
    Translation(const FileStore &files, const QStringList &folders, const QStringList &languages);
    ~Translation();
    Translation(const Translation &) = delete;
    Translation &operator=(const Translation &) = delete;

private:
    QByteArray m_content;
    QTranslator m_translator;
};

} // namespace zephira
