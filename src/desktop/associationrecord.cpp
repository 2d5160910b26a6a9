// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/associationrecord.h"

#include "desktop/mimeappslist.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

QJsonValue fromContent(const std::optional<QByteArray> &content)
{
    return content ? QJsonValue(QString::fromLatin1(content->toBase64())) : QJsonValue();
}

std::optional<QByteArray> toContent(const QJsonValue &value)
{
    if (!value.isString())
        return {};
    return QByteArray::fromBase64(value.toString().toLatin1());
}

QStringList toTexts(const QJsonValue &value)
{
    QStringList texts;
    const QJsonArray array = value.toArray();
    for (const QJsonValue &text : array)
        texts.append(text.toString());
    return texts;
}

/// A list that is being changed for the program.
class ChangedList
{
public:
    ChangedList(const std::optional<QByteArray> &text, QByteArray program, QMap<QString, QString> kept)
        : m_list(text.value_or(QByteArray())), m_program(std::move(program)), m_kept(std::move(kept))
    {}

    QByteArray text() const { return m_list.text(); }
    const QMap<QString, QString> &kept() const { return m_kept; }

    void takeOut(const QString &type)
    {
        m_list.takeOut(type.toUtf8(), m_program);
        if (const QString other = m_kept.take(type); !other.isEmpty())
            m_list.takeOutOfDefaults(type.toUtf8(), other.toUtf8());
    }
    void prefer(const QString &type)
    {
        m_list.prefer(type.toUtf8(), m_program);
        m_list.add(type.toUtf8(), m_program);
    }
    /// Lists the program without making it the default one.
    void add(const QString &type, const DefaultProgramOf &defaultProgramOf)
    {
        if (m_list.defaults(type.toUtf8()).isEmpty()) {
            const QString other = defaultProgramOf(type);
            if (!other.isEmpty() && other.toUtf8() != m_program) {
                m_list.prefer(type.toUtf8(), other.toUtf8());
                m_kept[type] = other;
            }
        }
        m_list.add(type.toUtf8(), m_program);
    }

private:
    MimeAppsList m_list;
    const QByteArray m_program;
    QMap<QString, QString> m_kept;
};

} // namespace

QByteArray AssociationRecord::toJson() const
{
    QJsonObject programs;
    for (auto each = kept.begin(); each != kept.end(); ++each)
        programs.insert(each.key(), each.value());
    return QJsonDocument(QJsonObject{{u"before"_s, fromContent(before)},
                                     {u"after"_s, fromContent(after)},
                                     {u"defaults"_s, QJsonArray::fromStringList(types.defaults)},
                                     {u"all"_s, QJsonArray::fromStringList(types.all)},
                                     {u"kept"_s, programs}})
        .toJson();
}

Result<AssociationRecord> AssociationRecord::fromJson(const QByteArray &json)
{
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    if (!object[u"after"_s].isString() || !object[u"defaults"_s].isArray() || !object[u"all"_s].isArray())
        return Error{Error::Code::Malformed, u"The record of the file associations is damaged."_s};
    AssociationRecord record{.before = toContent(object[u"before"_s]),
                             .after = toContent(object[u"after"_s]),
                             .types = {toTexts(object[u"defaults"_s]), toTexts(object[u"all"_s])},
                             .kept = {}};
    const QJsonObject programs = object[u"kept"_s].toObject();
    for (auto each = programs.begin(); each != programs.end(); ++each)
        record.kept[each.key()] = each->toString();
    return record;
}

AssociationRecord withTypes(AssociationRecord record, const std::optional<QByteArray> &current,
                            const DesktopTypes &types, const QByteArray &program,
                            const DefaultProgramOf &defaultProgramOf)
{
    if (current != record.after) {
        // Others have changed the list: what it is without this program has to be found out anew.
        ChangedList without(current, program, record.kept);
        for (const QString &type : std::as_const(record.types.all))
            without.takeOut(type);
        record.before = current ? std::optional(without.text()) : std::nullopt;
    }

    ChangedList list(current, program, record.kept);
    for (const QString &type : std::as_const(record.types.all)) {
        if (!types.all.contains(type) || record.types.defaults.contains(type) != types.defaults.contains(type)) {
            list.takeOut(type);
            record.types.all.removeOne(type);
        }
    }
    for (const QString &type : types.all) {
        if (record.types.all.contains(type))
            continue;
        if (types.defaults.contains(type))
            list.prefer(type);
        else
            list.add(type, defaultProgramOf);
    }
    record.after = types.all.isEmpty() ? record.before : std::optional(list.text());
    record.types = types;
    record.kept = list.kept();
    return record;
}

} // namespace zephira
