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

/// What a page's script says and asks by alert(), confirm() and prompt(), in a bar over the page. The script waits for the
/// answer, but nobody else has to: the rest of the window goes on working. From the second message on the bar offers to
/// hear no more of the page.
class ScriptMessageBar final : public QFrame
{
    Q_OBJECT

public:
    enum class Kind { Alert, Confirm, Prompt };

    explicit ScriptMessageBar(QWidget *parent = nullptr);

    /// Shows a message and returns when the user has answered it, or it has been dismissed: the text that was typed, which
    /// is empty but for a prompt, or nothing for "no".
    std::optional<QString> ask(Kind kind, const QString &message, const QString &preset = {});
    /// Answers "no" to the message that shows, if there is one, and then to all that the page may still have.
    void silence();
    /// Another page shows, which may speak again.
    void listen();

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
    bool m_isAccepted = false;
};

} // namespace zephira
