// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/savedtags.h"

#include "files/iniconfiguration.h"

#include <QFile>

#include <filesystem>
#include <system_error>
#include <vector>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

struct FactRow {
    QStringView key;
    QString SiteFacts::*fact;
};

// In the order in which they are written.
constexpr FactRow factRows[] = {
    {u"Desc", &SiteFacts::description},
    {u"Keywords", &SiteFacts::keywords},
    {u"Author", &SiteFacts::author},
    {u"cright", &SiteFacts::copyright},
};

const QString section = u"Saved Tags"_s;

QStringList keys()
{
    QStringList keys;
    for (const FactRow &row : factRows)
        keys.append(row.key.toString());
    return keys;
}

SiteFacts factsFrom(const QStringList &values)
{
    SiteFacts facts;
    auto value = values.begin();
    for (const FactRow &row : factRows)
        facts.*row.fact = *value++;
    return facts;
}

} // namespace

QString savedTagsFolder(const QString &appPath)
{
    return appPath + u"/Tags"_s;
}

Result<void> saveTags(const SiteFacts &facts, const QString &folder, const QString &name)
{
    // A folder that can't be looked at isn't one that is missing.
    std::error_code problem;
    if (!std::filesystem::exists(QFile::encodeName(folder).toStdString(), problem) && !problem)
        return {};
    const QString fileName = name + savedTagsExtension.toString();
    if (fileName.contains(u'/') || fileName.contains(QChar::Null))
        return Error{Error::Code::Refused, u"\""_s + fileName + u"\" can't be the name of a file."_s};
    // In one go, so that no file ever mixes the facts of two sites.
    std::vector<ProfileEntry> entries;
    for (const FactRow &row : factRows)
        entries.push_back({section, row.key.toString(), facts.*row.fact});
    return writeIniValues(entries, folder + u'/' + fileName);
}

SiteFacts savedTags(const QByteArray &content)
{
    return factsFrom(iniValues(content, section, keys()));
}

Result<SiteFacts> loadTags(const QString &folder, const QString &fileName)
{
    const Result<QStringList> values = readIniValues(section, keys(), folder + u'/' + fileName);
    return values ? Result<SiteFacts>(factsFrom(values.value())) : values.error();
}

} // namespace zephira
