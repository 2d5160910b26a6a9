// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/spelling/dictionaries.h"

#include <QDir>
#include <QLocale>
#include <QStandardPaths>

#include <map>

using namespace Qt::StringLiterals;

namespace zephira {

QStringList dictionaryFolders()
{
    QStringList folders;
    for (const QString &place : {u"hunspell"_s, u"myspell/dicts"_s}) {
        folders +=
            QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, place, QStandardPaths::LocateDirectory);
        folders += u"/usr/share/"_s + place;
    }
    folders.removeDuplicates();
    return folders;
}

std::vector<Dictionary> dictionariesIn(const QStringList &folders)
{
    std::map<QString, Dictionary> found;
    for (const QString &folder : folders) {
        const QDir place(folder);
        const QStringList files = place.entryList({u"*.dic"_s}, QDir::Files | QDir::Readable);
        for (const QString &file : files) {
            const QString name = file.chopped(4);
            if (QFileInfo(place.filePath(name + u".aff"_s)).isReadable())
                found.try_emplace(name, Dictionary{name, place.filePath(name)});
        }
    }
    std::vector<Dictionary> dictionaries;
    for (auto &[name, dictionary] : found)
        dictionaries.push_back(std::move(dictionary));
    return dictionaries;
}

QString dictionaryTitle(const QString &name)
{
    const QLocale locale(name);
    if (locale.language() == QLocale::C)
        return name;
    return u"%1 (%2)"_s.arg(locale.nativeLanguageName(), name);
}

} // namespace zephira
