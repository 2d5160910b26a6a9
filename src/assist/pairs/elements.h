// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "assist/textedits.h"
#include "core/openelements.h"

#include <QObject>
#include <QTimer>

#include <optional>
#include <vector>

namespace zephira {

class CodeMax;
class TextHelpers;

/// The elements of the text, as far as it was read. Positions are bytes.
class Elements : public QObject
{
    Q_OBJECT

public:
    explicit Elements(CodeMax &rt);

    /// The elements around a position, the outermost first; none in a text without tags.
    std::vector<ElementTag> around(qsizetype position);

    /// The same for a key that must not wait: nothing while the text isn't read so far. It's read on then, and `ready` is
    /// emitted when it was.
    std::optional<std::vector<ElementTag>> soon(qsizetype position);
    MarkupRules rules();

    /// The position behind an element.
    qsizetype endOf(const ElementTag &element);
    /// The names in the start tag and the end tag of an element; one if it has no end tag of its own.
    std::vector<TextSelection> namesOf(const ElementTag &element);

Q_SIGNALS:
    void ready();

private:
    void takeLanguage();
    void readOn();

    CodeMax &m_rt;
    OpenElements m_reader;
    QTimer m_reading;
    qsizetype m_wanted = 0;
};

/// Selects the names in the tags of the element around each caret, so that one types both at once.
void renameTag(TextHelpers &helpers);

} // namespace zephira
