// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/keytext.h"

#include <QKeySequence>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// Without Ctrl or Alt, these move the caret and change the text, close a window or leave a box.
constexpr Qt::Key writingKeys[] = {
    Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab,  Qt::Key_Backtab, Qt::Key_Backspace, Qt::Key_Escape,   Qt::Key_Left,
    Qt::Key_Right,  Qt::Key_Up,    Qt::Key_Down, Qt::Key_Home,    Qt::Key_End,       Qt::Key_PageDown, Qt::Key_PageUp,
};

/// The first key that isn't a character.
constexpr int firstSpecialKey = Qt::Key_Escape;

QKeySequence sequenceOf(const QString &keys)
{
    return QKeySequence::fromString(keys, QKeySequence::PortableText);
}

} // namespace

std::optional<QString> normalKeys(const QString &text)
{
    if (text.isEmpty())
        return QString();
    const QKeySequence sequence = sequenceOf(text);
    if (sequence.count() != 1 || sequence[0].key() == Qt::Key_unknown || sequence[0].key() == 0)
        return std::nullopt;
    const QString normal = sequence.toString(QKeySequence::PortableText);
    return sequenceOf(normal) == sequence ? std::optional(normal) : std::nullopt;
}

QString shownKeys(const QString &keys)
{
    return sequenceOf(keys).toString(QKeySequence::NativeText);
}

QString keysRefusal(const QString &keys)
{
    const QKeySequence sequence = sequenceOf(keys);
    if (sequence.isEmpty())
        return {};
    const Qt::Key key = sequence[0].key();
    const Qt::KeyboardModifiers modifiers = sequence[0].keyboardModifiers();
    if (modifiers & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return {};
    if (key < firstSpecialKey)
        return u"%1 types a character. Choose keys with Ctrl or Alt."_s.arg(shownKeys(keys));
    const bool deletes = key == Qt::Key_Delete && !(modifiers & Qt::ShiftModifier);
    if (deletes || std::ranges::find(writingKeys, key) != std::end(writingKeys))
        return u"%1 is needed for writing. Choose keys with Ctrl or Alt."_s.arg(shownKeys(keys));
    return {};
}

} // namespace zephira
