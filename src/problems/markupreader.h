// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <vector>

namespace zephira {

/// An attribute as it is written. The views are parts of the text.
struct MarkupAttribute {
    QByteArrayView name;
    /// Without quotation marks.
    QByteArrayView value = {};
    bool hasValue = false;
    /// 0 for a value without quotation marks
    char quote = 0;
};

/// A tag as it is written.
struct MarkupTag {
    /// From "<" up to behind ">".
    qsizetype start = 0;
    qsizetype end = 0;
    QByteArrayView name;
    /// The name in lower case.
    QByteArray key;
    bool isEnd = false;
    bool endsItself = false;
    /// No ">" was found.
    bool isOpen = false;
    /// There is server code in it, apart from values.
    bool isDynamic = false;
    std::vector<MarkupAttribute> attributes;
    /// What lies between this tag and the end tag of an element that contains text alone, such as a script.
    QByteArrayView rawText = {};

    /// The attribute with this name in lower case, or nullptr.
    const MarkupAttribute *attribute(QByteArrayView lowerName) const;
};

/// Whether a value or name has server code in it.
bool isDynamic(QByteArrayView part);

/// Reads the tags of HTML one by one. Server code has to be covered.
class MarkupReader
{
public:
    /// The text must outlive the reader and what it has read.
    explicit MarkupReader(QByteArrayView text) : m_text(text) {}

    /// Reads the next tag; false at the end of the text.
    bool next(MarkupTag &tag);

    /// Where a comment begins that doesn't end; -1 if there is none. To be asked at the end of the text.
    qsizetype openComment() const { return m_openComment; }
    /// The position of a part of the text.
    qsizetype positionOf(QByteArrayView part) const { return part.data() - m_text.data(); }

private:
    qsizetype behindDeclaration(qsizetype at);
    void readTag(MarkupTag &tag, qsizetype nameAt);
    qsizetype readAttribute(MarkupTag &tag, qsizetype at) const;
    void readRawText(MarkupTag &tag);

    QByteArrayView m_text;
    qsizetype m_at = 0;
    qsizetype m_openComment = -1;
};

} // namespace zephira
