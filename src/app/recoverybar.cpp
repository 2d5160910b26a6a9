// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/recoverybar.h"

#include <QGridLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

struct ButtonRow {
    QStringView name;
    QStringView caption;
    QStringView tip;
    void (RecoveryBar::*wanted)(const LeftCopy &);
};

constexpr ButtonRow buttonRows[] = {
    {u"recoveryShow", u"Show", u"Open the text as a new document", &RecoveryBar::showWanted},
    {u"recoveryKeep", u"Keep", u"Leave the copy in its folder and don't ask again", &RecoveryBar::keepWanted},
    {u"recoveryDelete", u"Delete", u"Remove the copy", &RecoveryBar::deleteWanted},
};

} // namespace

RecoveryBar::RecoveryBar(QWidget *parent) : QFrame(parent), m_layout(new QGridLayout(this))
{
    setObjectName(u"recoveryBar"_s);
    setAccessibleName(u"Texts that were not saved"_s);
    setFrameShape(QFrame::StyledPanel);
    m_layout->setContentsMargins(6, 3, 6, 3);
    m_layout->setVerticalSpacing(2);
    m_layout->setColumnStretch(0, 1);
    hide();
}

void RecoveryBar::setCopies(const QList<LeftCopy> &copies)
{
    m_copies = copies;
    fill();
}

void RecoveryBar::answered(const LeftCopy &copy)
{
    m_copies.removeOne(copy);
    fill();
}

void RecoveryBar::fill()
{
    while (QLayoutItem *item = m_layout->takeAt(0)) {
        // One of them may be the button whose click is being handled, so they are deleted later.
        item->widget()->hide();
        item->widget()->setObjectName(QString());
        item->widget()->deleteLater();
        delete item;
    }
    const int count = qMin(lines, static_cast<int>(m_copies.size()));
    for (int line = 0; line < count; ++line) {
        const LeftCopy copy = m_copies[line];
        auto *text = new QLabel(u"%1 was not saved when the program ended (started %2)."_s.arg(
                                    copy.name, QLocale::system().toString(copy.began, QLocale::ShortFormat)),
                                this);
        text->setObjectName(u"recoveryText_%1"_s.arg(line));
        text->setTextFormat(Qt::PlainText);
        text->setToolTip(text->text() + u'\n' + copy.path);
        // A long name is cut instead of widening the window.
        text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        m_layout->addWidget(text, line, 0);
        int column = 0;
        for (const ButtonRow &row : buttonRows) {
            auto *button = new QPushButton(row.caption.toString(), this);
            button->setObjectName(u"%1_%2"_s.arg(row.name).arg(line));
            button->setToolTip(row.tip.toString());
            button->setAccessibleName(row.caption.toString() + u' ' + copy.name);
            button->setFocusPolicy(Qt::TabFocus);
            button->setAutoDefault(false);
            connect(button, &QPushButton::clicked, this, [this, copy, wanted = row.wanted] { (this->*wanted)(copy); });
            m_layout->addWidget(button, line, ++column);
        }
    }
    setVisible(count > 0);
}

} // namespace zephira
