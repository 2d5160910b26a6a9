// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "assist/pairs/elements.h"
#include "assist/pairs/lineindent.h"
#include "assist/textedits.h"

#include <QObject>

#include <optional>
#include <vector>

namespace zephira {

class AutoClosed;
class CodeMax;

/// Completes an end tag when "</" is typed. Whoever types on, without a look at it, gets what they type: letters go over
/// those that were completed, and other letters take the completion back. So does one undo, which leaves what was typed.
class ClosingTags final : public QObject
{
    Q_OBJECT

public:
    /// An end tag among `closers` that stands behind a caret becomes the completion. All must outlive this.
    ClosingTags(CodeMax &rt, Elements &elements, AutoClosed &closers);

    /// To be called when the "/" was typed, and before any other key is. takeKey() returns true if the text doesn't get the
    /// key; `typed` is what it types, or one of \\b, \\t and \\n.
    void slashTyped();
    bool takeKey(char32_t typed);

private:
    struct Completion {
        /// Where the caret was behind the slash; how many bytes behind it go away, and what comes.
        qsizetype caret = 0;
        qsizetype replaced = 0;
        QByteArray rest;
        std::optional<LineIndent> indent;
    };
    using Completions = std::vector<Completion>;

    /// Nothing if the text must be read first; no rest if nothing is open.
    std::optional<Completion> completionAt(qsizetype caret);
    void complete();
    bool isPending() const;
    bool goesOn(const QByteArray &typed) const;
    void put();
    void takeOut();
    void typeOver(qsizetype size);
    void forget();

    CodeMax &m_rt;
    Elements &m_elements;
    AutoClosed &m_closers;
    /// What was completed, in the order of the text as it was before.
    Completions m_done;
    /// How much of it was typed since, and how many undo steps it is.
    qsizetype m_typed = 0;
    int m_steps = 0;
    TextSelections m_after;
    quint64 m_version = 0;
    /// The version of the text that waits to be read; 0 for none.
    quint64 m_waiting = 0;
};

} // namespace zephira
