// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/bidistretches.h"

#include "core/utf8character.h"
#include "files/utf8.h"

#include <QChar>

#include <algorithm>
#include <optional>

namespace zephira {

namespace {

constexpr qsizetype longestStretch = 2000;

unsigned char byteAt(QByteArrayView text, qsizetype at)
{
    return static_cast<unsigned char>(text[at]);
}

/// Whether a character that begins with this byte may be a right-to-left one.
bool mayBegin(unsigned char byte)
{
    return byte >= 0xd6 && (byte <= 0xe0 || byte == 0xe2 || byte == 0xef || byte == 0xf0);
}

bool isRightToLeft(char32_t code)
{
    switch (QChar::direction(code)) {
    case QChar::DirR:
    case QChar::DirAL:
    case QChar::DirRLE:
    case QChar::DirRLO:
    case QChar::DirRLI:
        return true;
    default:
        return false;
    }
}

/// The effect of a character on the current stretch.
enum class Effect { Extends, Waits, Ends };

Effect effectOf(char32_t code)
{
    if (isRightToLeft(code))
        return Effect::Extends;
    switch (QChar::direction(code)) {
    case QChar::DirEN:
    case QChar::DirAN:
    case QChar::DirNSM:
        return Effect::Extends;
    case QChar::DirL:
    case QChar::DirLRE:
    case QChar::DirLRO:
    case QChar::DirLRI:
    case QChar::DirS:
    case QChar::DirB:
        return Effect::Ends;
    default:
        return code < 0x20 ? Effect::Ends : Effect::Waits;
    }
}

} // namespace

void forEachRightToLeft(QByteArrayView utf8, const std::function<void(char32_t, QByteArrayView)> &found)
{
    for (qsizetype i = 0; i < utf8.size();) {
        if (byteAt(utf8, i) < 0x80) {
            i += asciiLength(utf8.sliced(i));
        } else if (!mayBegin(byteAt(utf8, i))) {
            ++i;
        } else {
            const Utf8Character c = utf8CharacterAt(utf8, i);
            if (isRightToLeft(c.code))
                found(c.code, utf8.sliced(i, c.size));
            i += c.size;
        }
    }
}

bool endsStretch(char byte)
{
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
}

std::vector<BidiStretch> bidiStretches(QByteArrayView line, std::span<const unsigned char> styles)
{
    std::vector<BidiStretch> stretches;
    std::optional<BidiStretch> open;
    const auto close = [&] {
        if (open)
            stretches.push_back(*open);
        open.reset();
    };
    for (qsizetype i = 0; i < line.size();) {
        const Utf8Character c = utf8CharacterAt(line, i);
        const int style = styles[static_cast<std::size_t>(i)];
        if (open && (style != open->style || i - open->start >= longestStretch))
            close();
        if (open) {
            const Effect effect = effectOf(c.code);
            if (effect == Effect::Extends)
                open->end = i + c.size;
            else if (effect == Effect::Ends)
                close();
        } else if (isRightToLeft(c.code)) {
            open = BidiStretch{i, i + c.size, style};
        }
        i += c.size;
    }
    close();
    return stretches;
}

} // namespace zephira
