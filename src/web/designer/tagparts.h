// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

#include <vector>

namespace zephira {

/// An attribute in a tag. Positions are 0-based UTF-16 code units of the page, ends are exclusive.
struct TagAttribute {
    /// Where the blanks before the name begin.
    qsizetype begin = 0;
    qsizetype nameBegin = 0;
    qsizetype nameEnd = 0;
    /// The value without its quotes; -1 if there is none.
    qsizetype valueBegin = -1;
    qsizetype valueEnd = -1;
    /// After the value and its quote.
    qsizetype end = 0;
    bool isQuoted = false;
    /// Whether an earlier attribute of the tag has the same name, so that a browser ignores this one.
    bool isRepeated = false;

    bool hasValue() const { return valueBegin >= 0; }
    QStringView name(QStringView page) const { return page.sliced(nameBegin, nameEnd - nameBegin); }
    QStringView value(QStringView page) const
    {
        return hasValue() ? page.sliced(valueBegin, valueEnd - valueBegin) : QStringView();
    }
};

/// A tag as a browser reads it.
struct TagParts {
    qsizetype nameBegin = 0;
    qsizetype nameEnd = 0;
    /// After the closing bracket, or the end of the page.
    qsizetype end = 0;
    bool isEnd = false;
    std::vector<TagAttribute> attributes;

    QStringView name(QStringView page) const { return page.sliced(nameBegin, nameEnd - nameBegin); }
};

/// Reads the tag whose opening bracket is at that place. The page must not contain server code.
TagParts readTag(QStringView page, qsizetype open);

/// Whether a browser ends a tag's or an attribute's name at the character, apart from ">", "/" and "=".
bool isTagBlank(QChar c);

} // namespace zephira
