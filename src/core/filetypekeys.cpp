// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/filetypekeys.h"

#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr QChar separator = u'\\';

QString pathOf(const QString &key, const QString &subKey)
{
    return subKey.isEmpty() ? key : key + separator + subKey;
}

} // namespace

FileTypeKeys::Key *FileTypeKeys::made(const QString &path)
{
    const QStringList parts = path.split(separator);
    if (parts.contains(QString()))
        return nullptr;
    Key *key = nullptr;
    for (qsizetype count = 1; count <= parts.size(); ++count) {
        const QString above = parts.first(count).join(separator);
        key = &m_keys.try_emplace(above.toCaseFolded(), Key{above, {}}).first->second;
    }
    return key;
}

void FileTypeKeys::createKey(const QString &key, const QString &subKey)
{
    made(pathOf(key, subKey));
}

QString FileTypeKeys::readValue(const QString &key, const QString &subKey, const QString &name) const
{
    const auto found = m_keys.find(pathOf(key, subKey).toCaseFolded());
    if (found == m_keys.end())
        return {};
    const auto &values = found->second.values;
    const auto value = values.find(name.toCaseFolded());
    return value == values.end() ? QString() : value->second.text.section(QChar::Null, 0, 0);
}

void FileTypeKeys::setValue(const QString &key, const QString &subKey, const QString &name, const QString &text)
{
    if (Key *place = made(pathOf(key, subKey)))
        place->values.try_emplace(name.toCaseFolded(), Value{name, {}}).first->second.text = text;
}

void FileTypeKeys::deleteKey(const QString &key)
{
    if (namesBelow(key).isEmpty())
        m_keys.erase(key.toCaseFolded());
}

bool FileTypeKeys::contains(const QString &key) const
{
    return m_keys.contains(key.toCaseFolded());
}

QStringList FileTypeKeys::namesBelow(const QString &key) const
{
    const QString above = key.isEmpty() ? QString() : key.toCaseFolded() + separator;
    QStringList names;
    for (const auto &[path, below] : m_keys) {
        if (path.startsWith(above) && !path.mid(above.size()).contains(separator))
            names.append(below.path.section(separator, -1));
    }
    return names;
}

QByteArray FileTypeKeys::toJson() const
{
    QJsonObject keys;
    for (const auto &[path, key] : m_keys) {
        QJsonObject values;
        for (const auto &[name, value] : key.values)
            values.insert(value.name, value.text);
        keys.insert(key.path, values);
    }
    return QJsonDocument(keys).toJson();
}

Result<FileTypeKeys> FileTypeKeys::fromJson(const QByteArray &json)
{
    const Error broken{Error::Code::Malformed, u"The keys of the file types are damaged."_s};
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isObject())
        return broken;
    FileTypeKeys keys;
    const QJsonObject root = document.object();
    for (auto key = root.begin(); key != root.end(); ++key) {
        if (!key->isObject() || !keys.made(key.key()))
            return broken;
        const QJsonObject values = key->toObject();
        for (auto value = values.begin(); value != values.end(); ++value) {
            if (!value->isString())
                return broken;
            keys.setValue(key.key(), {}, value.key(), value->toString());
        }
    }
    return keys;
}

} // namespace zephira
