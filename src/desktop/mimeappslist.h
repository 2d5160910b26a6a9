// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>

namespace zephira {

/// The user's list of which programs open which types of files, the file mimeapps.list of the desktop. Programs are
/// named by their desktop entries. Only the values that are asked for change; all other bytes stay.
class MimeAppsList
{
public:
    explicit MimeAppsList(const QByteArray &text);
    QByteArray text() const { return m_lines.join(); }

    /// The default programs of a type, the preferred one first.
    QList<QByteArray> defaults(const QByteArray &type) const;
    /// Makes a program the preferred one of a type; the others follow it.
    void prefer(const QByteArray &type, const QByteArray &program);
    /// Lists a program among those that open a type, behind the others, and doesn't exclude it any longer.
    void add(const QByteArray &type, const QByteArray &program);
    /// Takes a program out of the default ones of a type. An entry that becomes empty goes.
    void takeOutOfDefaults(const QByteArray &type, const QByteArray &program);
    /// Takes a program away from the type everywhere. An entry that becomes empty goes.
    void takeOut(const QByteArray &type, const QByteArray &program);

private:
    struct Place {
        /// The line of the entry, or -1.
        qsizetype entry = -1;
        /// The line before which a new entry is inserted, or -1 if there is no such group.
        qsizetype end = -1;
    };
    Place find(const QByteArray &group, const QByteArray &type) const;
    QList<QByteArray> programs(const QByteArray &group, const QByteArray &type) const;
    void setValue(const QByteArray &group, const QByteArray &type, const QByteArray &value);
    void takeOutOf(const QByteArray &group, const QByteArray &type, const QByteArray &program);

    /// With their line ends.
    QList<QByteArray> m_lines;
};

} // namespace zephira
