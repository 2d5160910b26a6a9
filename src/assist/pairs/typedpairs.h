// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "assist/pairs/autoclosed.h"
#include "assist/pairs/closingtags.h"

#include <QObject>

class QKeyEvent;

namespace zephira {

struct AppContext;
class CodeMax;
class Elements;
class TextHelpers;
struct TextSelection;

/// What happens to pairs while one types: end tags are completed, selections are put between quotes and brackets, lines are
/// indented by what they begin and end; and, where the user wants it, quotes, brackets and tags are closed at once. No line
/// but that of the caret changes.
class TypedPairs final : public QObject
{
    Q_OBJECT

public:
    /// All must outlive it.
    TypedPairs(CodeMax &rt, const AppContext &context, Elements &elements);
    ~TypedPairs() override;

    /// Whether what begins a pair is closed at once; kept for the user.
    bool closes() const { return m_closes; }
    void setCloses(bool on);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool takeKey(const QKeyEvent &key);
    bool takeCharacter(char32_t typed);
    bool surround(char32_t typed);
    bool typeOver(char32_t typed);
    bool eraseBoth();
    void expect(char32_t typed);
    void afterChange();
    void closeTyped(char32_t typed);
    QByteArray closerAt(qsizetype caret, char32_t typed);
    qsizetype pairBefore(qsizetype caret);
    void forgetFarClosers();

    CodeMax &m_rt;
    const AppContext &m_context;
    Elements &m_elements;
    AutoClosed m_closers;
    ClosingTags m_closingTags;
    /// A character that is being typed; 0 for none.
    char32_t m_typed = 0;
    /// An input method shows text that isn't typed yet.
    bool m_isComposing = false;
    bool m_closes;
};

void switchAutoClose(TextHelpers &helpers);
bool closesPairs(TextHelpers &helpers);

} // namespace zephira
