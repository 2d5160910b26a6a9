// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAccessibleWidget>

namespace zephira {

class CodeMax;
class SciEngine;

/// The accessibility interface of the editing control. Offsets count UTF-16 code units in the text with the file's own
/// line ends. They are computed from the engine's line index and the line itself, so the cost doesn't depend on the
/// size of the text.
class AccessibleEditor final : public QAccessibleWidget,
                               public QAccessibleTextInterface,
                               public QAccessibleEditableTextInterface
{
public:
    explicit AccessibleEditor(CodeMax &editor);

    /// The factory to install; returns an interface for editing controls and nullptr for other objects.
    static QAccessibleInterface *make(const QString &className, QObject *object);
    /// The UTF-16 offset of a byte position.
    static int offsetOf(const SciEngine &engine, qsizetype position);

    void *interface_cast(QAccessible::InterfaceType type) override;
    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text kind, const QString &text) override;

    void selection(int index, int *start, int *end) const override;
    int selectionCount() const override;
    void addSelection(int start, int end) override;
    void removeSelection(int index) override;
    void setSelection(int index, int start, int end) override;
    int cursorPosition() const override;
    void setCursorPosition(int offset) override;
    QString text(int start, int end) const override;
    int characterCount() const override;
    QString textBeforeOffset(int offset, QAccessible::TextBoundaryType boundary, int *start, int *end) const override;
    QString textAfterOffset(int offset, QAccessible::TextBoundaryType boundary, int *start, int *end) const override;
    QString textAtOffset(int offset, QAccessible::TextBoundaryType boundary, int *start, int *end) const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint &point) const override;
    void scrollToSubstring(int start, int end) override;
    QString attributes(int offset, int *start, int *end) const override;

    void deleteText(int start, int end) override;
    void insertText(int offset, const QString &text) override;
    void replaceText(int start, int end, const QString &text) override;

private:
    struct Stretch {
        int start = 0;
        int end = 0;
    };
    Stretch stretchAt(int offset, QAccessible::TextBoundaryType boundary) const;
    QString given(Stretch stretch, int *start, int *end) const;
    int toOffset(qsizetype position) const;
    qsizetype toPosition(int offset) const;
    const SciEngine &engine() const;

    CodeMax &m_editor;
};

} // namespace zephira
