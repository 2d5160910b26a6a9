// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/mimeappslist.h"

namespace zephira {

namespace {

const QByteArray defaultGroup = "Default Applications";
const QByteArray addedGroup = "Added Associations";
const QByteArray removedGroup = "Removed Associations";

/// The value of a line that is the entry of the type; a null array for any other line.
QByteArray valueOf(const QByteArray &line, const QByteArray &type)
{
    const qsizetype sign = line.indexOf('=');
    if (sign < 0 || line.left(sign).trimmed() != type)
        return {};
    const QByteArray value = line.mid(sign + 1).trimmed();
    return value.isNull() ? QByteArray("") : value;
}

QList<QByteArray> split(const QByteArray &value)
{
    QList<QByteArray> programs = value.split(';');
    for (QByteArray &program : programs)
        program = program.trimmed();
    programs.removeAll(QByteArray());
    return programs;
}

QByteArray lineEndOf(const QByteArray &line)
{
    return line.endsWith("\r\n") ? "\r\n" : "\n";
}

} // namespace

MimeAppsList::MimeAppsList(const QByteArray &text)
{
    for (qsizetype start = 0; start < text.size();) {
        const qsizetype end = text.indexOf('\n', start);
        const qsizetype next = end < 0 ? text.size() : end + 1;
        m_lines.append(text.mid(start, next - start));
        start = next;
    }
}

MimeAppsList::Place MimeAppsList::find(const QByteArray &group, const QByteArray &type) const
{
    Place place;
    bool isInside = false;
    for (qsizetype i = 0; i < m_lines.size(); ++i) {
        const QByteArray line = m_lines[i].trimmed();
        if (line.startsWith('[')) {
            isInside = line == '[' + group + ']';
            if (isInside && place.end < 0)
                place.end = i + 1;
        } else if (isInside && !line.isEmpty() && !line.startsWith('#')) {
            if (!valueOf(line, type).isNull())
                return {i, place.end};
            place.end = i + 1;
        }
    }
    return place;
}

QList<QByteArray> MimeAppsList::programs(const QByteArray &group, const QByteArray &type) const
{
    const Place place = find(group, type);
    return place.entry < 0 ? QList<QByteArray>() : split(valueOf(m_lines[place.entry], type));
}

QList<QByteArray> MimeAppsList::defaults(const QByteArray &type) const
{
    return programs(defaultGroup, type);
}

void MimeAppsList::setValue(const QByteArray &group, const QByteArray &type, const QByteArray &value)
{
    const Place place = find(group, type);
    if (place.entry >= 0) {
        m_lines[place.entry] = type + '=' + value + lineEndOf(m_lines[place.entry]);
        return;
    }
    if (place.end >= 0) {
        QByteArray &before = m_lines[place.end - 1];
        if (!before.endsWith('\n'))
            before += '\n';
        m_lines.insert(place.end, type + '=' + value + lineEndOf(before));
        return;
    }
    if (!m_lines.isEmpty()) {
        if (!m_lines.last().endsWith('\n'))
            m_lines.last() += '\n';
        m_lines.append("\n");
    }
    m_lines.append('[' + group + "]\n");
    m_lines.append(type + '=' + value + '\n');
}

void MimeAppsList::prefer(const QByteArray &type, const QByteArray &program)
{
    const Place place = find(defaultGroup, type);
    const QByteArray others = place.entry < 0 ? QByteArray() : valueOf(m_lines[place.entry], type);
    if (!split(others).startsWith(program))
        setValue(defaultGroup, type, program + ';' + others);
}

void MimeAppsList::add(const QByteArray &type, const QByteArray &program)
{
    takeOutOf(removedGroup, type, program);
    QList<QByteArray> all = programs(addedGroup, type);
    if (all.contains(program))
        return;
    all.append(program);
    setValue(addedGroup, type, all.join(';') + ';');
}

void MimeAppsList::takeOutOf(const QByteArray &group, const QByteArray &type, const QByteArray &program)
{
    const Place place = find(group, type);
    if (place.entry < 0)
        return;
    const QByteArray value = valueOf(m_lines[place.entry], type);
    if (!split(value).contains(program))
        return;
    const QList<QByteArray> all = value.split(';');
    QList<QByteArray> others;
    for (const QByteArray &other : all) {
        if (other.trimmed() != program)
            others.append(other);
    }
    const QByteArray rest = others.join(';');
    if (!split(rest).isEmpty()) {
        setValue(group, type, rest);
        return;
    }
    m_lines.removeAt(place.entry);
    // A second entry of the type, which the first one has hidden, counts now.
    takeOutOf(group, type, program);
}

void MimeAppsList::takeOutOfDefaults(const QByteArray &type, const QByteArray &program)
{
    takeOutOf(defaultGroup, type, program);
}

void MimeAppsList::takeOut(const QByteArray &type, const QByteArray &program)
{
    for (const QByteArray &group : {defaultGroup, addedGroup, removedGroup})
        takeOutOf(group, type, program);
}

} // namespace zephira
