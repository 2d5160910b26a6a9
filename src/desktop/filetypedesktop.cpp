// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/filetypedesktop.h"

#include "core/filetypekeys.h"

#include <QMap>
#include <QMimeDatabase>
#include <QXmlStreamWriter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

bool runsProgram(const FileTypeKeys &keys, const QString &shellKey, const QString &action, const QString &programName)
{
    const QString argument = u" %1"_s;
    const QString command = keys.readValue(shellKey + u'\\' + action, u"command"_s, {});
    return command.endsWith(argument) && command.chopped(argument.size()).section(u'/', -1) == programName;
}

/// The text without characters that XML and desktop entries have no room for.
QString plainText(const QString &text)
{
    if (!text.isValidUtf16())
        return {};
    QString plain;
    for (const QChar c : text)
        plain += c.category() == QChar::Other_Control || c.category() == QChar::Other_NotAssigned ? QChar(u' ') : c;
    return plain.simplified();
}

/// A path as the program of an Exec line: in quotes only if it must be, because not all readers expect them.
QString execProgram(const QString &path)
{
    const auto isPlain = [](QChar c) { return c.isLetterOrNumber() || u"/._-+,@:"_s.contains(c); };
    if (std::ranges::all_of(path, isPlain))
        return path;
    QString quoted;
    for (const QChar c : path) {
        if (u"\"`$\\"_s.contains(c))
            quoted += u'\\';
        quoted += c;
        if (c == u'%')
            quoted += c;
    }
    // A backslash is doubled once more as in each value of the entry.
    return u'"' + quoted.replace(u'\\', u"\\\\"_s) + u'"';
}

} // namespace

std::vector<DesktopFileType> desktopFileTypes(const FileTypeKeys &keys, const QString &programName)
{
    std::vector<DesktopFileType> types;
    const QStringList names = keys.namesBelow();
    for (const QString &name : names) {
        const QString typeKey = name.startsWith(u'.') ? keys.readValue(name, {}, {}) : QString();
        if (typeKey.isEmpty())
            continue;
        const QString shellKey = typeKey + u"\\shell"_s;
        const QString defaultAction = keys.readValue(shellKey, {}, {});
        const bool isDefault = !defaultAction.isEmpty() && runsProgram(keys, shellKey, defaultAction, programName);
        const bool isLive = !defaultAction.isEmpty() || keys.contains(name + u"\\ShellNew"_s);
        const QStringList actions = keys.namesBelow(shellKey);
        const bool isOpened = isDefault || std::ranges::any_of(actions, [&](const QString &action) {
                                  return runsProgram(keys, shellKey, action, programName);
                              });
        if (isLive && isOpened)
            types.push_back({name.mid(1), keys.readValue(typeKey, {}, {}), isDefault});
    }
    return types;
}

QString ownMimeType(const QString &extension)
{
    const QByteArray bytes = extension.toLower().toUtf8();
    QString name;
    for (const char byte : bytes) {
        const bool isPlain = (byte >= 'a' && byte <= 'z') || (byte >= '0' && byte <= '9');
        name += isPlain ? QString(QLatin1Char(byte))
                        : u"-%1"_s.arg(static_cast<unsigned char>(byte), 2, 16, QLatin1Char('0'));
    }
    return u"application/x-zephira-"_s + name;
}

QStringList systemMimeTypes(const QString &extension)
{
    const QMimeType type = QMimeDatabase().mimeTypeForFile(u"x."_s + extension, QMimeDatabase::MatchExtension);
    if (!type.isValid() || type.isDefault())
        return {ownMimeType(extension)};
    return QStringList(type.name()) + type.aliases();
}

DesktopTypes desktopTypes(const std::vector<DesktopFileType> &types, const MimeTypesOf &mimeTypesOf)
{
    QMap<QString, bool> isDefault;
    for (const DesktopFileType &type : types) {
        const QStringList names = mimeTypesOf(type.extension);
        for (const QString &name : names)
            isDefault[name] = isDefault.value(name, true) && type.isDefault;
    }
    return {isDefault.keys(true), isDefault.keys()};
}

QByteArray mimePackage(const std::vector<DesktopFileType> &types, const MimeTypesOf &mimeTypesOf)
{
    QByteArray package;
    QXmlStreamWriter xml(&package);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(2);
    xml.writeStartDocument();
    xml.writeStartElement(u"mime-info"_s);
    xml.writeDefaultNamespace(u"http://www.freedesktop.org/standards/shared-mime-info"_s);
    bool hasTypes = false;
    for (const DesktopFileType &type : types) {
        const QString name = ownMimeType(type.extension);
        if (!mimeTypesOf(type.extension).contains(name))
            continue;
        hasTypes = true;
        const QString description = plainText(type.description);
        xml.writeStartElement(u"mime-type"_s);
        xml.writeAttribute(u"type"_s, name);
        xml.writeTextElement(u"comment"_s, description.isEmpty() ? type.extension : description);
        xml.writeEmptyElement(u"sub-class-of"_s);
        xml.writeAttribute(u"type"_s, u"text/plain"_s);
        xml.writeEmptyElement(u"glob"_s);
        xml.writeAttribute(u"pattern"_s, u"*."_s + type.extension.toLower());
        xml.writeEndElement();
    }
    xml.writeEndElement();
    xml.writeEndDocument();
    return hasTypes ? package : QByteArray();
}

QByteArray desktopEntry(const DesktopTypes &types, const QString &executable, const QString &icon)
{
    if (types.all.isEmpty())
        return {};
    const QString text = u"[Desktop Entry]\n"
                         "Type=Application\n"
                         "Version=1.1\n"
                         "Name=Zephira\n"
                         "GenericName=Web Source Editor\n"
                         "Exec=%1 %f\n"
                         "Icon=%2\n"
                         "Terminal=false\n"
                         "NoDisplay=true\n"
                         "StartupNotify=true\n"
                         "StartupWMClass=zephira\n"
                         "MimeType=%3;\n"_s;
    return text.arg(execProgram(executable), QString(icon).replace(u'\\', u"\\\\"_s), types.all.join(u';')).toUtf8();
}

} // namespace zephira
