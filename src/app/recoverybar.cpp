// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/recoverybar.h"

#include "core/paths.h"

#include <QLocale>

#include <span>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// What a button is called; its place in its table is its place in the bar.
struct ButtonRow {
    QStringView name;
    QStringView caption;
    QStringView tip;
};

template<typename Item>
struct AnswerRow {
    ButtonRow button;
    void (RecoveryBar::*wanted)(const Item &);
};

constexpr AnswerRow<LeftCopy> copyRows[] = {
    {{u"recoveryShow", u"Show", u"Open the text as a new document"}, &RecoveryBar::showWanted},
    {{u"recoveryKeep", u"Keep", u"Leave the copy in its folder and don't ask again"}, &RecoveryBar::keepWanted},
    {{u"recoveryDelete", u"Delete", u"Remove the copy"}, &RecoveryBar::deleteWanted},
};

constexpr AnswerRow<CrashReport> reportRows[] = {
    {{u"recoveryShow", u"Show", u"Open the report as the document"}, &RecoveryBar::showReportWanted},
    {{u"recoveryKeep", u"Keep", u"Leave the report in its folder and don't ask again"}, &RecoveryBar::keepReportWanted},
    {{u"recoveryDelete", u"Delete", u"Remove the report"}, &RecoveryBar::deleteReportWanted},
};

QString shortTime(const QDateTime &time)
{
    return QLocale::system().toString(time, QLocale::ShortFormat);
}

/// `subject` tells the buttons of a line from those of the others for those who can't see the bar.
template<typename Item>
NoticeLine lineOf(RecoveryBar *bar, qsizetype number, const QString &text, const QString &tip, const QString &subject,
                  const Item &item, std::span<const AnswerRow<Item>> rows)
{
    NoticeLine line{u"recoveryText_%1"_s.arg(number), text, tip, {}};
    for (const auto &[button, wanted] : rows) {
        line.buttons.append({u"%1_%2"_s.arg(button.name).arg(number), button.caption.toString(), button.tip.toString(),
                             button.caption.toString() + u' ' + subject,
                             [bar, item, wanted = wanted] { (bar->*wanted)(item); }});
    }
    return line;
}

} // namespace

RecoveryBar::RecoveryBar(QWidget *parent) : NoticeBar(u"recoveryBar"_s, u"Texts that were not saved"_s, parent) {}

void RecoveryBar::setContents(const QList<LeftCopy> &copies, const QList<CrashReport> &reports)
{
    m_copies = copies;
    m_reports = reports;
    fill();
}

void RecoveryBar::answered(const LeftCopy &copy)
{
    m_copies.removeOne(copy);
    fill();
}

void RecoveryBar::answered(const CrashReport &report)
{
    m_reports.removeOne(report);
    fill();
}

void RecoveryBar::fill()
{
    QList<NoticeLine> shown;
    const auto room = [&shown] { return lines - shown.size(); };
    const QList<LeftCopy> copies = m_copies.first(qMin(room(), m_copies.size()));
    for (const LeftCopy &copy : copies) {
        const QString text =
            u"%1 was not saved when the program ended (started %2)."_s.arg(copy.name, shortTime(copy.began));
        shown.append(lineOf<LeftCopy>(this, shown.size(), text, text + u'\n' + copy.path, copy.name, copy, copyRows));
    }
    const QList<CrashReport> reports = m_reports.first(qMin(room(), m_reports.size()));
    for (const CrashReport &report : reports) {
        const QString text =
            u"The program crashed (started %1). A report is in %2."_s.arg(shortTime(report.began), report.path);
        const QString tip =
            text + u"\nIt holds addresses in the program and nothing of your documents. It is sent nowhere."_s;
        shown.append(lineOf<CrashReport>(this, shown.size(), text, tip, lastName(report.path), report, reportRows));
    }
    setLines(shown);
}

} // namespace zephira
