// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>

#include <optional>

class QCheckBox;
class QEventLoop;
class QLabel;
class QLineEdit;
class QPushButton;

namespace zephira {

/// Shows the messages and questions of a page's alert(), confirm() and prompt() in a bar above the page. Only the
/// script waits for the answer; the rest of the window remains usable. From the second message on, the bar offers to
/// suppress further messages of the page.
class ScriptMessageBar final : public QFrame
{
    Q_OBJECT

public:
    enum class Kind { Alert, Confirm, Prompt };

    explicit ScriptMessageBar(QWidget *parent = nullptr);

    /// Shows a message and returns when the user has answered or it was dismissed: the typed text, which is empty
    /// except for a prompt, or nothing for "no".
    std::optional<QString> ask(Kind kind, const QString &message, const QString &preset = {});
    /// Answers "no" to the current message, if any, and to all further messages of the page.
    void silence();
    /// Another page is shown, whose messages are allowed again.
    void listen();
    /// Whether a message waits for its answer.
    bool isAsking() const { return m_loop != nullptr; }
    /// Messages don't take the keyboard focus, for a page beside what the user types.
    void leaveFocus() { m_takesFocus = false; }

private:
    void finish(bool accepted);

    QLabel *m_text = nullptr;
    QLineEdit *m_input = nullptr;
    QCheckBox *m_noMore = nullptr;
    QPushButton *m_yes = nullptr;
    QPushButton *m_no = nullptr;
    QEventLoop *m_loop = nullptr;
    int m_messages = 0;
    bool m_isSilent = false;
    bool m_takesFocus = true;
    bool m_isAccepted = false;
};

} // namespace zephira
