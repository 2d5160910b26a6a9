// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/recoverybar.h"

#include <QLocale>

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

RecoveryBar::RecoveryBar(QWidget *parent) : NoticeBar(u"recoveryBar"_s, u"Texts that were not saved"_s, parent) {}

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
    QList<NoticeLine> shown;
    const QList<LeftCopy> copies = m_copies.first(qMin(static_cast<qsizetype>(lines), m_copies.size()));
    for (const LeftCopy &copy : copies) {
        const qsizetype number = shown.size();
        const QString text = u"%1 was not saved when the program ended (started %2)."_s.arg(
            copy.name, QLocale::system().toString(copy.began, QLocale::ShortFormat));
        NoticeLine line{u"recoveryText_%1"_s.arg(number), text, text + u'\n' + copy.path, {}};
        for (const ButtonRow &row : buttonRows) {
            line.buttons.append({u"%1_%2"_s.arg(row.name).arg(number), row.caption.toString(), row.tip.toString(),
                                 row.caption.toString() + u' ' + copy.name,
                                 [this, copy, wanted = row.wanted] { (this->*wanted)(copy); }});
        }
        shown.append(line);
    }
    setLines(shown);
}

} // namespace zephira
