// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/scriptmessagebar.h"

#include <QCheckBox>
#include <QEventLoop>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// A longer message would push the page out of sight.
constexpr qsizetype longestMessage = 500;

} // namespace

ScriptMessageBar::ScriptMessageBar(QWidget *parent) : QFrame(parent)
{
    setObjectName(u"ScriptMessage"_s);
    setFrameShape(QFrame::StyledPanel);
    m_text = new QLabel(this);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_input = new QLineEdit(this);
    m_input->setAccessibleName(u"Answer to the page"_s);
    m_noMore = new QCheckBox(u"No more messages from this page"_s, this);
    m_noMore->setObjectName(u"NoMoreMessages"_s);
    m_yes = new QPushButton(u"OK"_s, this);
    m_yes->setObjectName(u"ScriptMessageOk"_s);
    m_no = new QPushButton(u"Cancel"_s, this);
    m_no->setObjectName(u"ScriptMessageCancel"_s);
    auto *layout = new QHBoxLayout(this);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_input);
    layout->addWidget(m_noMore);
    layout->addWidget(m_yes);
    layout->addWidget(m_no);
    connect(m_yes, &QPushButton::clicked, this, [this] { finish(true); });
    connect(m_no, &QPushButton::clicked, this, [this] { finish(false); });
    connect(m_input, &QLineEdit::returnPressed, this, [this] { finish(true); });
    hide();
}

std::optional<QString> ScriptMessageBar::ask(Kind kind, const QString &message, const QString &preset)
{
    // Only one question at a time: a page in a frame may ask while another question is open.
    if (m_isSilent || m_loop)
        return {};
    ++m_messages;
    m_text->setText(message.size() > longestMessage ? message.first(longestMessage) + u'\u2026' : message);
    m_input->setVisible(kind == Kind::Prompt);
    m_input->setText(preset);
    m_noMore->setVisible(m_messages > 1);
    m_noMore->setChecked(false);
    m_no->setVisible(kind != Kind::Alert);
    m_isAccepted = false;
    show();
    if (m_takesFocus)
        (kind == Kind::Prompt ? static_cast<QWidget *>(m_input) : m_yes)->setFocus();

    const QPointer<ScriptMessageBar> self(this);
    QEventLoop loop;
    m_loop = &loop;
    connect(this, &QObject::destroyed, &loop, &QEventLoop::quit);
    loop.exec();
    if (!self)
        return {};
    m_loop = nullptr;
    hide();
    return m_isAccepted ? std::optional(m_input->text()) : std::nullopt;
}

void ScriptMessageBar::finish(bool accepted)
{
    m_isAccepted = accepted;
    m_isSilent = m_isSilent || m_noMore->isChecked();
    if (m_loop)
        m_loop->quit();
}

void ScriptMessageBar::silence()
{
    if (!m_loop)
        return;
    m_isSilent = true;
    finish(false);
}

void ScriptMessageBar::listen()
{
    m_messages = 0;
    m_isSilent = false;
}

} // namespace zephira
