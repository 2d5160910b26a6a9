// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "assist/textedits.h"
#include "core/openelements.h"

#include <QObject>
#include <QTimer>

#include <functional>

namespace zephira {

class CodeMax;
class TextHelpers;

/// The elements of the text, as far as it was read. Positions are bytes.
class Elements : public QObject
{
public:
    explicit Elements(CodeMax &rt);

    /// The elements around a position, the outermost first; none in a text without tags. Nothing if that would need too
    /// much time for a key: then the text is read on while the program is idle, and a later call knows more.
    std::optional<std::vector<ElementTag>> soonAround(qsizetype position);
    /// The same at any cost.
    std::vector<ElementTag> around(qsizetype position);
    /// Calls `told` with the elements around a position, at once or when the text was read so far; not at all if the text
    /// is changed before.
    void tellAround(qsizetype position, std::function<void(const std::vector<ElementTag> &)> told);

    /// The position behind an element.
    qsizetype endOf(const ElementTag &element);
    /// The names in the start tag and the end tag of an element; one if it has no end tag of its own.
    std::vector<TextSelection> namesOf(const ElementTag &element);

private:
    void takeLanguage();
    void readOn();

    CodeMax &m_rt;
    OpenElements m_reader;
    QTimer m_soon;
    /// The position up to which is read on, and who wants to know.
    qsizetype m_wanted = 0;
    quint64 m_version = 0;
    std::function<void(const std::vector<ElementTag> &)> m_told;
};

/// Selects the names in the tags of the element around each caret, so that one types both at once.
void renameTag(TextHelpers &helpers);

} // namespace zephira
