// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

namespace zephira {

/// A text box that takes one key at a time: each key that produces text empties the box first. Keys that produce text
/// in another way, such as composed ones, count too; nothing can be pasted.
class KeyBox final : public QLineEdit
{
    Q_OBJECT

public:
    explicit KeyBox(QWidget *parent = nullptr);

Q_SIGNALS:
    /// A key was pressed; `code` is the code point of its character.
    void keyTyped(char32_t code);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    /// Empties the box and reports the text's first character.
    void take(const QString &text);
};

} // namespace zephira
