// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/privateprofile.h"

#include "core/textparts.h"
#include "files/textfile.h"
#include "files/utf8.h"

#include <QStringConverter>

#include <algorithm>
#include <cstring>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

bool isQuoted(QByteArrayView value)
{
    return value.size() >= 2 && value.front() == value.back() && (value.front() == '"' || value.front() == '\'');
}

/// A parsed line. All views point into the profile.
struct Line {
    enum class Kind { Other, Blank, Section, Key };
    Kind kind = Kind::Other;
    QByteArrayView name = {};
    /// Everything after the "=", including spaces and quotes.
    QByteArrayView value = {};
    /// The position after the line end.
    const char *next = nullptr;
};

/// Parses a profile line by line.
class Lines
{
public:
    explicit Lines(QByteArrayView profile) : m_next(profile.begin()), m_end(profile.end())
    {
        if (profile.startsWith("\xEF\xBB\xBF"))
            m_next += 3;
        m_lineFeed = find('\n', m_next, m_end);
    }

    bool atEnd() const { return m_next == m_end; }
    Line take();
    /// Skips lines up to one that begins with "[", or to the end. Most lines that are looked at are before the wanted
    /// section.
    void skipToSection();

private:
    static Line read(QByteArrayView text);

    /// The position of the first such character, or the end.
    static const char *find(char c, const char *begin, const char *end)
    {
        const void *found = begin == end ? nullptr : std::memchr(begin, c, static_cast<std::size_t>(end - begin));
        return found ? static_cast<const char *>(found) : end;
    }

    const char *m_next;
    const char *m_end;
    /// The next line feed. It is kept because there may be none, and then each line would look for it up to the end.
    const char *m_lineFeed;
};

Line Lines::take()
{
    if (m_lineFeed < m_next)
        m_lineFeed = find('\n', m_next, m_end);
    const char *stop = find('\r', m_next, m_lineFeed);
    Line line = read({m_next, stop - m_next});
    if (m_end - stop >= 2 && stop[0] == '\r' && stop[1] == '\n')
        ++stop;
    m_next = stop == m_end ? stop : stop + 1;
    line.next = m_next;
    return line;
}

void Lines::skipToSection()
{
    const char *open = find('[', m_next, m_end);
    while (open != m_end) {
        const char *begin = open;
        while (begin != m_next && begin[-1] == ' ')
            --begin;
        if (begin == m_next || begin[-1] == '\n' || begin[-1] == '\r') {
            m_next = begin;
            return;
        }
        open = find('[', open + 1, m_end);
    }
    m_next = m_end;
}

Line Lines::read(QByteArrayView text)
{
    const QByteArrayView trimmed = withoutSpaces(text);
    if (trimmed.isEmpty())
        return {Line::Kind::Blank};
    if (trimmed.front() == '[') {
        const qsizetype close = trimmed.indexOf(']');
        return close < 0 ? Line() : Line{Line::Kind::Section, withoutSpaces(trimmed.sliced(1, close - 1))};
    }
    const qsizetype equals = text.indexOf('=');
    if (trimmed.front() == ';' || equals < 0)
        return {};
    return {Line::Kind::Key, withoutSpaces(text.first(equals)), text.sliced(equals + 1)};
}

/// A name to compare others with, not case-sensitive. Nearly all names are ASCII, which needs no conversion.
class Name
{
public:
    explicit Name(const QString &name)
        : m_bytes(withoutSpaces(QByteArrayView(name.toUtf8())).toByteArray()), m_name(QString::fromUtf8(m_bytes))
    {}

    const QByteArray &bytes() const { return m_bytes; }
    bool matches(QByteArrayView other) const
    {
        if (m_bytes.size() == m_name.size())
            return other.compare(m_bytes, Qt::CaseInsensitive) == 0;
        return QString::fromUtf8(other).compare(m_name, Qt::CaseInsensitive) == 0;
    }
    /// Whether the name contains neither NUL nor any of the characters, and so can be written and read back.
    bool avoids(QByteArrayView characters) const
    {
        return std::ranges::none_of(m_bytes, [&](char c) { return c == '\0' || characters.contains(c); });
    }

private:
    QByteArray m_bytes;
    QString m_name;
};

/// Where a value is, or where it would have to be inserted.
struct ValuePlace {
    bool sectionFound = false;
    std::optional<QByteArrayView> value;
    /// The position after the section's last non-blank line.
    const char *sectionEnd = nullptr;
};

ValuePlace findValue(QByteArrayView profile, const Name &section, const Name &key)
{
    ValuePlace place;
    Lines lines(profile);
    for (;;) {
        if (!place.sectionFound)
            lines.skipToSection();
        if (lines.atEnd())
            break;
        const Line line = lines.take();
        if (line.kind == Line::Kind::Section) {
            if (place.sectionFound)
                break;
            place.sectionFound = section.matches(line.name);
        } else if (place.sectionFound && line.kind == Line::Kind::Key && key.matches(line.name)) {
            place.value = line.value;
            break;
        }
        if (place.sectionFound && line.kind != Line::Kind::Blank)
            place.sectionEnd = line.next;
    }
    return place;
}

QString readValue(QByteArrayView raw)
{
    QByteArrayView value = withoutSpaces(raw);
    if (isQuoted(value))
        value = value.sliced(1, value.size() - 2);
    if (!isValidUtf8(value))
        return QString::fromUtf8(windows1252ToUtf8(value));
    // A value is not a file, so a byte order mark at its start is part of it.
    return QStringDecoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom)(value);
}

QByteArray writtenValue(const QString &value)
{
    QByteArray bytes = value.toUtf8();
    bytes.replace("\r\n", " ");
    std::replace_if(
        bytes.begin(), bytes.end(), [](char c) { return c == '\r' || c == '\n' || c == '\0'; }, ' ');
    if (bytes.startsWith(' ') || bytes.endsWith(' ') || isQuoted(bytes))
        return '"' + bytes + '"';
    return bytes;
}

/// The line end of the profile's first line.
QByteArray firstLineEnd(QByteArrayView profile)
{
    const auto end = std::ranges::find_if(profile, [](char c) { return c == '\r' || c == '\n'; });
    if (end == profile.end() || (*end == '\r' && end + 1 != profile.end() && end[1] == '\n'))
        return "\r\n";
    return QByteArray(1, *end);
}

} // namespace

std::optional<QString> profileValue(QByteArrayView profile, const QString &section, const QString &key)
{
    const ValuePlace place = findValue(profile, Name(section), Name(key));
    return place.value ? std::optional(readValue(*place.value)) : std::nullopt;
}

std::optional<QByteArray> withProfileValue(const QByteArray &profile, const QString &section, const QString &key,
                                           const QString &value)
{
    const Name sectionName(section);
    const Name keyName(key);
    if (!sectionName.avoids("\r\n]") || !keyName.avoids("\r\n=") || keyName.bytes().isEmpty()
        || keyName.bytes().startsWith(';') || keyName.bytes().startsWith('['))
        return {};

    const ValuePlace place = findValue(profile, sectionName, keyName);
    const QByteArray written = writtenValue(value);
    QByteArray result = profile;
    if (place.value) {
        // Spaces after the "=" are the author's formatting and are kept.
        QByteArrayView old = *place.value;
        while (old.startsWith(' '))
            old = old.sliced(1);
        return result.replace(old.begin() - profile.constData(), old.size(), written);
    }
    const QByteArray lineEnd = firstLineEnd(profile);
    QByteArray added = keyName.bytes() + '=' + written + lineEnd;
    if (!place.sectionFound)
        added.prepend('[' + sectionName.bytes() + ']' + lineEnd);
    const qsizetype position = place.sectionFound ? place.sectionEnd - profile.constData() : profile.size();
    // An unterminated last line gets a line end, unless the profile is empty.
    const bool continues = position > 0 && profile[position - 1] != '\n' && profile[position - 1] != '\r';
    if (continues && profile != "\xEF\xBB\xBF")
        added.prepend(lineEnd);
    return result.insert(position, added);
}

std::vector<ProfileEntry> profileEntries(QByteArrayView profile)
{
    std::vector<ProfileEntry> entries;
    QString section;
    Lines lines(profile);
    while (!lines.atEnd()) {
        const Line line = lines.take();
        if (line.kind == Line::Kind::Section)
            section = QString::fromUtf8(line.name);
        else if (line.kind == Line::Kind::Key)
            entries.push_back({section, QString::fromUtf8(line.name), readValue(line.value)});
    }
    return entries;
}

} // namespace zephira
