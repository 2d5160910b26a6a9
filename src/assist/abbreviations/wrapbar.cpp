// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/abbreviations/wrapbar.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QToolButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr int shownLines = 7;
constexpr int longestLine = 1000;

} // namespace

WrapBar::WrapBar(QWidget &below)
    : QFrame(below.parentWidget())
    , m_below(below)
    , m_line(new QLineEdit(this))
    , m_problem(new QLabel(this))
    , m_result(new QPlainTextEdit(this))
{
    setObjectName(u"wrapBar"_s);
    setAccessibleName(tr("Wrap with an abbreviation"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    auto *caption = new QLabel(tr("&Wrap with abbreviation:"), this);
    caption->setBuddy(m_line);
    m_line->setObjectName(u"wrapAbbreviation"_s);
    m_line->setAccessibleName(tr("Abbreviation to wrap the selection with"));
    m_line->setToolTip(
        tr("For example ul&gt;li* for an item of each line. Return wraps, Escape leaves the text as it is."));
    m_line->setMaxLength(longestLine);
    m_line->setClearButtonEnabled(true);
    m_problem->setObjectName(u"wrapProblem"_s);
    m_problem->setTextFormat(Qt::PlainText);
    m_result->setObjectName(u"wrapResult"_s);
    m_result->setAccessibleName(tr("What the selection becomes"));
    m_result->setToolTip(tr("What the selection becomes"));
    m_result->setReadOnly(true);
    m_result->setTabChangesFocus(true);
    m_result->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_result->setFixedHeight(shownLines * m_result->fontMetrics().lineSpacing() + 2 * m_result->frameWidth() + 8);
    auto *close = new QToolButton(this);
    close->setObjectName(u"wrapClose"_s);
    close->setAccessibleName(tr("Close"));
    close->setToolTip(tr("Leave the text as it is"));
    close->setAutoRaise(true);
    close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));

    auto *row = new QHBoxLayout;
    row->addWidget(caption);
    row->addWidget(m_line, 1);
    row->addWidget(close);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(row);
    layout->addWidget(m_problem);
    layout->addWidget(m_result);
    m_problem->hide();

    connect(m_line, &QLineEdit::textChanged, this, &WrapBar::edited);
    connect(m_line, &QLineEdit::returnPressed, this, &WrapBar::accepted);
    connect(close, &QToolButton::clicked, this, [this] {
        hide();
        Q_EMIT left();
    });
    m_below.installEventFilter(this);
    hide();
}

void WrapBar::open()
{
    m_line->clear();
    showResult({});
    show();
    raise();
    m_line->setFocus(Qt::ShortcutFocusReason);
    Q_EMIT edited();
}

QString WrapBar::abbreviation() const
{
    return m_line->text().trimmed();
}

void WrapBar::showResult(const QString &text)
{
    m_result->setPlainText(text);
    m_problem->hide();
    place();
}

void WrapBar::showProblem(const QString &sentence)
{
    m_problem->setText(sentence);
    m_problem->setAccessibleName(sentence);
    m_problem->show();
    place();
}

void WrapBar::place()
{
    const QRect room = m_below.geometry();
    const int height = std::min(sizeHint().height(), room.height());
    setGeometry(room.left(), room.bottom() + 1 - height, room.width(), height);
}

bool WrapBar::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == &m_below && isVisible()) {
        if (event->type() == QEvent::Resize || event->type() == QEvent::Move)
            place();
        else if (event->type() == QEvent::Hide)
            hide();
    }
    return QFrame::eventFilter(watched, event);
}

void WrapBar::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Escape) {
        QFrame::keyPressEvent(event);
        return;
    }
    hide();
    Q_EMIT left();
}

} // namespace zephira
