// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/noticebar.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace zephira {

NoticeBar::NoticeBar(const QString &name, const QString &accessibleName, QWidget *parent)
    : QFrame(parent), m_layout(new QGridLayout(this))
{
    setObjectName(name);
    setAccessibleName(accessibleName);
    setFrameShape(QFrame::StyledPanel);
    m_layout->setContentsMargins(6, 3, 6, 3);
    m_layout->setVerticalSpacing(2);
    m_layout->setColumnStretch(0, 1);
    hide();
}

void NoticeBar::setLines(const QList<NoticeLine> &lines)
{
    while (QLayoutItem *item = m_layout->takeAt(0)) {
        // The pressed button is one of them, and its signal is still being processed.
        item->widget()->hide();
        item->widget()->setObjectName(QString());
        item->widget()->deleteLater();
        delete item;
    }
    for (int number = 0; number < lines.size(); ++number)
        addLine(number, lines[number]);
    setVisible(!lines.isEmpty());
}

void NoticeBar::addLine(int number, const NoticeLine &line)
{
    auto *text = new QLabel(line.text, this);
    text->setObjectName(line.name);
    text->setTextFormat(Qt::PlainText);
    text->setToolTip(line.tip);
    text->setWordWrap(true);
    // A long name is cut instead of widening the window.
    text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_layout->addWidget(text, number, 0);
    int column = 0;
    for (const NoticeLine::Button &row : line.buttons) {
        auto *button = new QPushButton(row.caption, this);
        button->setObjectName(row.name);
        button->setToolTip(row.tip);
        button->setAccessibleName(row.accessibleName);
        button->setFocusPolicy(Qt::TabFocus);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, row.pressed);
        m_layout->addWidget(button, number, ++column);
    }
}

} // namespace zephira
