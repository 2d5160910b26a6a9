// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/richtohtml.h"

#include <optional>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

QString alignmentTag(CharacterFormat::Alignment alignment)
{
    switch (alignment) {
    case CharacterFormat::Alignment::Right:
        return u"<p align=right>"_s;
    case CharacterFormat::Alignment::Center:
        return u"<p align=center>"_s;
    case CharacterFormat::Alignment::Left:
        break;
    }
    return u"<p align=left>"_s;
}

/// A switch of the format and its tag.
struct SwitchTag {
    bool CharacterFormat::*isOn;
    QChar name;
};

constexpr SwitchTag switchTags[] = {
    {&CharacterFormat::bold, u'b'},
    {&CharacterFormat::underline, u'u'},
    {&CharacterFormat::italic, u'i'},
    {&CharacterFormat::strikethrough, u's'},
};

/// The tags between two formats. `before` is empty at the start, when only the switches have a known state: off.
QString tagsBetween(const std::optional<CharacterFormat> &before, const CharacterFormat &now)
{
    QString tags;
    if (!before || before->alignment != now.alignment)
        tags += alignmentTag(now.alignment);
    for (const auto &[isOn, name] : switchTags) {
        if ((before && (*before).*isOn) != now.*isOn)
            tags += (now.*isOn ? u"<"_s : u"</"_s) + name + u'>';
    }
    if (!before || before->fontName != now.fontName)
        tags += u"<font face=\""_s + now.fontName + u"\">"_s;
    if (!before || before->colour != now.colour)
        tags += u"<font color=#"_s + RGBtoHEX(now.colour) + u'>';
    return tags;
}

} // namespace

QString RGBtoHEX(quint32 colour)
{
    const QString digits = QString::number(colour & 0xFFFFFF, 16).toUpper().rightJustified(6, u'0');
    return digits.last(2) + digits.sliced(2, 2) + digits.first(2);
}

QString richToHtml(const std::vector<FormattedRun> &runs)
{
    QString html;
    std::optional<CharacterFormat> before;
    for (const FormattedRun &run : runs) {
        if (run.text.isEmpty())
            continue;
        html += tagsBetween(before, run.format) + run.text;
        before = run.format;
    }
    return html;
}

} // namespace zephira
