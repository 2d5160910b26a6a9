// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/recoverybar.h"

#include "core/paths.h"
#include "core/translation.h"

#include <QDir>
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
    {{u"recoveryShow", ZEPHIRA_TEXT("RecoveryBar", "Show"),
      ZEPHIRA_TEXT("RecoveryBar", "Open the text as a new document")},
     &RecoveryBar::showWanted},
    {{u"recoveryKeep", ZEPHIRA_TEXT("RecoveryBar", "Keep"),
      ZEPHIRA_TEXT("RecoveryBar", "Leave the copy in its folder and don't ask again")},
     &RecoveryBar::keepWanted},
    {{u"recoveryDelete", ZEPHIRA_TEXT("RecoveryBar", "Delete"), ZEPHIRA_TEXT("RecoveryBar", "Remove the copy")},
     &RecoveryBar::deleteWanted},
};

constexpr AnswerRow<CrashReport> reportRows[] = {
    {{u"recoveryShow", ZEPHIRA_TEXT("RecoveryBar", "Show"),
      ZEPHIRA_TEXT("RecoveryBar", "Open the report as the document")},
     &RecoveryBar::showReportWanted},
    {{u"recoveryKeep", ZEPHIRA_TEXT("RecoveryBar", "Keep"),
      ZEPHIRA_TEXT("RecoveryBar", "Leave the report in its folder and don't ask again")},
     &RecoveryBar::keepReportWanted},
    {{u"recoveryDelete", ZEPHIRA_TEXT("RecoveryBar", "Delete"), ZEPHIRA_TEXT("RecoveryBar", "Remove the report")},
     &RecoveryBar::deleteReportWanted},
};

QString shortTime(const QDateTime &time)
{
    return QLocale::system().toString(time, QLocale::ShortFormat);
}

/// The path with a sign for the user's own folder, so that the rest of it can be seen.
QString shortPath(const QString &path)
{
    const QString home = QDir::homePath();
    return path.startsWith(home + u'/') ? u'~' + path.sliced(home.size()) : path;
}

/// `subject` tells the buttons of a line from those of the others for those who can't see the bar.
template<typename Item>
NoticeLine lineOf(RecoveryBar *bar, qsizetype number, const QString &text, const QString &tip, const QString &subject,
                  const Item &item, std::span<const AnswerRow<Item>> rows)
{
    NoticeLine line{u"recoveryText_%1"_s.arg(number), text, tip, {}};
    for (const auto &[button, wanted] : rows) {
        const QString caption = translated("RecoveryBar", button.caption);
        line.buttons.append({u"%1_%2"_s.arg(button.name).arg(number), caption, translated("RecoveryBar", button.tip),
                             caption + u' ' + subject, [bar, item, wanted = wanted] { (bar->*wanted)(item); }});
    }
    return line;
}

} // namespace

RecoveryBar::RecoveryBar(QWidget *parent) : NoticeBar(u"recoveryBar"_s, tr("Texts that were not saved"), parent) {}

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
            tr("%1 was not saved when the program ended (started %2).").arg(copy.name, shortTime(copy.began));
        shown.append(lineOf<LeftCopy>(this, shown.size(), text, text + u'\n' + copy.path, copy.name, copy, copyRows));
    }
    const QList<CrashReport> reports = m_reports.first(qMin(room(), m_reports.size()));
    for (const CrashReport &report : reports) {
        const QString text = tr("The program crashed. Report: %1").arg(shortPath(report.path));
        const QString tip = tr("Of the program that was started %1:").arg(shortTime(report.began)) + u'\n' + report.path
            + u'\n' + tr("It holds addresses in the program and nothing of your documents. It is sent nowhere.");
        shown.append(lineOf<CrashReport>(this, shown.size(), text, tip, lastName(report.path), report, reportRows));
    }
    setLines(shown);
}

} // namespace zephira
