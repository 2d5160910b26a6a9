// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/usersettingstext.h"

#include <QByteArrayView>
#include <QList>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr int hexadecimal = 16;
constexpr int octal = 8;

bool isPlain(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9') || c == u'_' || c == u'-'
        || c == u'.';
}

QByteArray hexDigits(QChar c, int width)
{
    return QByteArray::number(static_cast<uint>(c.unicode()), hexadecimal).toUpper().rightJustified(width, '0');
}

QByteArray escapedName(QStringView name)
{
    QByteArray escaped;
    for (const QChar c : name) {
        if (c == u'/')
            escaped += '\\';
        else if (isPlain(c))
            escaped += c.toLatin1();
        else
            escaped += c <= QChar(0xff) ? '%' + hexDigits(c, 2) : "%U" + hexDigits(c, 4);
    }
    return escaped;
}

QString nameFrom(QByteArrayView escaped)
{
    QString name;
    const QString text = QString::fromUtf8(escaped);
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'\\') {
            name += u'/';
            continue;
        }
        const bool isWide = text[i] == u'%' && i + 1 < text.size() && text[i + 1] == u'U';
        const qsizetype start = i + (isWide ? 2 : 1);
        const qsizetype width = isWide ? 4 : 2;
        bool isNumber = false;
        const ushort code = text[i] == u'%' && start + width <= text.size()
            ? text.sliced(start, width).toUShort(&isNumber, hexadecimal)
            : ushort(0);
        name += isNumber ? QChar(code) : text[i];
        if (isNumber)
            i = start + width - 1;
    }
    return name;
}

/// The letters of short escapes, and what they stand for.
constexpr std::pair<char, char> shortEscapes[] = {{'a', '\a'}, {'b', '\b'}, {'f', '\f'}, {'n', '\n'}, {'r', '\r'},
                                                  {'t', '\t'}, {'v', '\v'}, {'"', '"'},  {'\\', '\\'}};

QByteArray escapedValue(QString value)
{
    // A sign at the start says that what follows isn't a plain text.
    if (value.contains(QChar::Null))
        value = u"@String("_s + value + u')';
    else if (value.startsWith(u'@'))
        value.prepend(u'@');
    QByteArray escaped;
    bool isBehindNumber = false;
    for (const QChar c : std::as_const(value)) {
        const auto *const found = std::ranges::find(
            shortEscapes, c.unicode(), [](const auto &pair) { return static_cast<char16_t>(pair.second); });
        const bool isHex = (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
        const bool isNumber = c < u' ' || c > u'~' || (isBehindNumber && isHex);
        if (found != std::end(shortEscapes)) {
            escaped += '\\';
            escaped += found->first;
        } else if (isNumber) {
            escaped += "\\x" + QByteArray::number(static_cast<uint>(c.unicode()), hexadecimal);
        } else {
            escaped += c.toLatin1();
        }
        isBehindNumber = found == std::end(shortEscapes) && isNumber;
    }
    const bool isQuoted = escaped.startsWith(' ') || escaped.endsWith(' ')
        || std::ranges::any_of(escaped, [](char c) { return c == ';' || c == ',' || c == '='; });
    return isQuoted ? '"' + escaped + '"' : escaped;
}

/// The number at the start of a text, and how many digits it has.
std::pair<ushort, qsizetype> numberAt(QStringView text, int base)
{
    qsizetype count = 0;
    uint number = 0;
    for (; count < text.size(); ++count) {
        bool isDigit = false;
        const uint digit = text.sliced(count, 1).toUInt(&isDigit, base);
        if (!isDigit)
            break;
        number = number * static_cast<uint>(base) + digit;
    }
    return {static_cast<ushort>(number), count};
}

QString valueFrom(QByteArrayView escaped)
{
    const QString text = QString::fromUtf8(escaped.trimmed());
    QString value;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'"')
            continue;
        if (text[i] != u'\\' || i + 1 == text.size()) {
            value += text[i];
            continue;
        }
        const QChar letter = text[++i];
        const auto *const found = std::ranges::find(shortEscapes, letter.unicode(),
                                                    [](const auto &pair) { return static_cast<char16_t>(pair.first); });
        const bool isHex = letter == u'x';
        const auto [number, count] = numberAt(QStringView(text).sliced(isHex ? i + 1 : i), isHex ? hexadecimal : octal);
        if (found != std::end(shortEscapes)) {
            value += QLatin1Char(found->second);
        } else if (count > 0) {
            value += QChar(number);
            i += isHex ? count : count - 1;
        }
    }
    if (value.startsWith(u"@String(") && value.endsWith(u')'))
        return value.sliced(8).chopped(1);
    return value.startsWith(u"@@") ? value.sliced(1) : value;
}

QString groupOf(const QString &path)
{
    return path.section(u'/', 0, 0);
}

QByteArray heading(const QString &group)
{
    // A heading of that name stands for what has no group.
    return group.compare(u"General"_s, Qt::CaseInsensitive) == 0 ? QByteArray("[%General]")
                                                                 : '[' + escapedName(group) + ']';
}

/// What a line says.
struct Line {
    bool isHeading = false;
    /// The group, or the path of a value.
    QString name;
    QByteArray value;
};

/// Reads the lines of a text one by one.
class Lines
{
public:
    Line read(QByteArrayView raw)
    {
        const QByteArrayView text = raw.trimmed();
        if (text.startsWith('[')) {
            const qsizetype end = text.indexOf(']');
            const QByteArray name = text.sliced(1, (end < 0 ? text.size() : end) - 1).trimmed().toByteArray();
            const QByteArray lower = name.toLower();
            m_group = lower == "%general" ? u"General"_s : lower == "general" ? QString() : nameFrom(name);
            return {true, m_group, {}};
        }
        const qsizetype sign = text.indexOf('=');
        if (text.startsWith(';') || sign < 0)
            return {};
        return {false, m_group + u'/' + nameFrom(text.first(sign).trimmed()), text.sliced(sign + 1).toByteArray()};
    }

private:
    QString m_group;
};

} // namespace

std::optional<QString> storedText(const QByteArray &store, const QString &path)
{
    std::optional<QString> value;
    Lines lines;
    const QList<QByteArray> all = store.split('\n');
    for (const QByteArray &raw : all) {
        const Line line = lines.read(raw);
        if (!line.isHeading && line.name == path)
            value = valueFrom(line.value);
    }
    return value;
}

QByteArray withStoredText(const QByteArray &store, const QString &path, const std::optional<QString> &value)
{
    const QString group = groupOf(path);
    QList<QByteArray> all = store.split('\n');
    if (all.constLast().isEmpty())
        all.removeLast();
    Lines lines;
    QList<QByteArray> kept;
    qsizetype place = -1; // Where the value goes: behind its group's last line that isn't empty, or where it was.
    bool wasThere = false;
    bool isInGroup = false;
    for (const QByteArray &raw : std::as_const(all)) {
        const Line line = lines.read(raw);
        if (line.isHeading)
            isInGroup = line.name == group;
        if (!line.isHeading && line.name == path) {
            place = kept.size();
            wasThere = true;
            continue;
        }
        kept.append(raw);
        if (isInGroup && !wasThere && !raw.trimmed().isEmpty())
            place = kept.size();
    }
    if (value) {
        if (place < 0) {
            if (!kept.isEmpty())
                kept.append(QByteArray());
            kept.append(heading(group));
            place = kept.size();
        }
        kept.insert(place, escapedName(QStringView(path).sliced(group.size() + 1)) + '=' + escapedValue(*value));
    }
    return kept.isEmpty() ? QByteArray() : kept.join('\n') + '\n';
}

QStringList storedNames(const QByteArray &store, const QString &path)
{
    const QString start = path + u'/';
    QStringList names;
    Lines lines;
    const QList<QByteArray> all = store.split('\n');
    for (const QByteArray &raw : all) {
        const Line line = lines.read(raw);
        if (line.isHeading || !line.name.startsWith(start))
            continue;
        const QString name = line.name.sliced(start.size());
        if (!name.contains(u'/') && !names.contains(name))
            names.append(name);
    }
    return names;
}

} // namespace zephira
