// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/datamaker.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr qsizetype longestDescription = 420;

constexpr QByteArrayView heading =
    "# Names, values and descriptions of HTML and style sheets, for completion.\n"
    "# Made from @vscode/web-custom-data, https://www.npmjs.com/package/@vscode/web-custom-data, MIT licence,\n"
    "# Copyright (c) Microsoft Corporation. Descriptions in it are built upon content by Mozilla Contributors from\n"
    "# https://developer.mozilla.org/docs/Web, licensed under CC BY-SA 2.5,\n"
    "# https://creativecommons.org/licenses/by-sa/2.5/, and figures upon content from https://www.chromestatus.com,\n"
    "# licensed under CC BY 2.5, https://creativecommons.org/licenses/by/2.5/. Here the descriptions are shortened and\n"
    "# without marks and links; the same licences apply to them. The licence of the program doesn't.\n";

QString textOf(const QJsonValue &description)
{
    return description.isObject() ? description.toObject()[u"value"_s].toString() : description.toString();
}

/// The first paragraph in a single line, without marks.
QString plain(QString text)
{
    static const QRegularExpression link(uR"(\[([^\]]*)\]\([^)]*\))"_s);
    static const QRegularExpression emphasis(uR"((^|[\s(])[_*]{1,2}([^_*\s][^_*]*)[_*]{1,2})"_s);
    static const QRegularExpression tag(uR"(</?(?:code|em|strong|i|b|a|p|br)\b[^>]*>)"_s);
    const qsizetype paragraph = text.indexOf(u"\n\n"_s);
    if (paragraph > 0)
        text.truncate(paragraph);
    text.remove(u'`').remove(tag).replace(link, u"\\1"_s).replace(emphasis, u"\\1\\2"_s);
    text = text.simplified();
    // What would follow is a list.
    if (text.endsWith(u':'))
        text.truncate(std::max<qsizetype>(0, text.lastIndexOf(u". "_s) + 1));
    if (text.size() > longestDescription) {
        const qsizetype sentence = text.lastIndexOf(u". "_s, longestDescription);
        text = sentence > longestDescription / 2 ? text.left(sentence + 1)
                                                 : text.left(text.lastIndexOf(u' ', longestDescription)) + u" …"_s;
    }
    return text;
}

/// The browsers that know it, and since when all do.
QString sinceOf(const QJsonObject &item)
{
    QStringList words;
    const QJsonObject status =
        item[u"baseline"_s].isObject() ? item[u"baseline"_s].toObject() : item[u"status"_s].toObject();
    const QString date = status[u"baseline_low_date"_s].toString();
    if (!date.isEmpty())
        words.append(date.left(4));
    const QJsonArray browsers = item[u"browsers"_s].toArray();
    static const QRegularExpression shown(u"^(C|E|FF|S)\\d"_s);
    for (const QJsonValue &browser : browsers) {
        if (browser.toString().contains(shown))
            words.append(browser.toString());
    }
    return words.join(u' ');
}

class Lines
{
public:
    void add(char kind, const QString &name, const QString &flags, const QJsonObject &item)
    {
        m_text += kind;
        for (const QString &field : {name, flags, sinceOf(item), plain(textOf(item[u"description"_s]))})
            m_text += '\t' + QString(field).simplified().toUtf8();
        while (m_text.endsWith('\t'))
            m_text.chop(1);
        m_text += '\n';
    }
    QByteArray text() const { return heading.toByteArray() + m_text; }

private:
    QByteArray m_text;
};

void addAttributes(Lines &lines, const QJsonArray &attributes)
{
    for (const QJsonValue &value : attributes) {
        const QJsonObject attribute = value.toObject();
        lines.add('A', attribute[u"name"_s].toString(), attribute[u"valueSet"_s].toString(), attribute);
    }
}

void addValues(Lines &lines, const QJsonArray &values)
{
    for (const QJsonValue &value : values)
        lines.add('V', value.toObject()[u"name"_s].toString(), {}, value.toObject());
}

QByteArray markupLines(const QJsonObject &data)
{
    Lines lines;
    addAttributes(lines, data[u"globalAttributes"_s].toArray());
    const QJsonArray tags = data[u"tags"_s].toArray();
    for (const QJsonValue &value : tags) {
        const QJsonObject tag = value.toObject();
        lines.add('T', tag[u"name"_s].toString(), {}, tag);
        addAttributes(lines, tag[u"attributes"_s].toArray());
    }
    const QJsonArray sets = data[u"valueSets"_s].toArray();
    for (const QJsonValue &set : sets) {
        lines.add('S', set.toObject()[u"name"_s].toString(), {}, {});
        addValues(lines, set.toObject()[u"values"_s].toArray());
    }
    return lines.text();
}

/// "c" where a color belongs, "o" for what isn't in use any more or was never a standard, and how much it is used, 0 to 100.
QString flagsOf(const QJsonObject &item)
{
    QString flags;
    if (item[u"restrictions"_s].toArray().contains(u"color"_s))
        flags += u'c';
    const QString status = item[u"status"_s].toString();
    if (status == u"obsolete" || status == u"nonstandard")
        flags += u'o';
    return flags + QString::number(item[u"relevance"_s].toInt());
}

QByteArray styleLines(const QJsonObject &data)
{
    Lines lines;
    const QJsonArray properties = data[u"properties"_s].toArray();
    for (const QJsonValue &value : properties) {
        const QJsonObject property = value.toObject();
        // Descriptors of at-rules have names that properties may have, too.
        lines.add('P', property[u"name"_s].toString(), flagsOf(property), property);
        addValues(lines, property[u"values"_s].toArray());
    }
    const QJsonArray rules = data[u"atDirectives"_s].toArray();
    for (const QJsonValue &rule : rules)
        lines.add('@', rule.toObject()[u"name"_s].toString(), {}, rule.toObject());
    for (const QString &list : {u"pseudoClasses"_s, u"pseudoElements"_s}) {
        const QJsonArray pseudos = data[list].toArray();
        for (const QJsonValue &pseudo : pseudos)
            lines.add(':', pseudo.toObject()[u"name"_s].toString(), {}, pseudo.toObject());
    }
    return lines.text();
}

} // namespace

Result<QByteArray> completionLines(const QByteArray &json)
{
    const QJsonObject data = QJsonDocument::fromJson(json).object();
    if (!data[u"tags"_s].toArray().isEmpty())
        return markupLines(data);
    if (!data[u"properties"_s].toArray().isEmpty())
        return styleLines(data);
    return Error{Error::Code::Malformed, u"This has neither tags nor properties."_s};
}

} // namespace zephira
