// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/crashreports.h"
#include "files/leftcopies.h"
#include "widgets/noticebar.h"

namespace zephira {

/// Lists texts that were not saved when the program ended, and the reports of its crashes, one per line, and stays until
/// the user has decided about all of them.
class RecoveryBar final : public NoticeBar
{
    Q_OBJECT

public:
    /// The number of lines shown at a time; more follow as these are dealt with.
    static constexpr int lines = 4;

    explicit RecoveryBar(QWidget *parent = nullptr);

    /// Sets the copies and reports to ask about. The bar is hidden if there are none.
    void setContents(const QList<LeftCopy> &copies, const QList<CrashReport> &reports);
    const QList<LeftCopy> &copies() const { return m_copies; }
    /// Removes the line of a copy that has been dealt with.
    void answered(const LeftCopy &copy);
    const QList<CrashReport> &reports() const { return m_reports; }
    void answered(const CrashReport &report);

Q_SIGNALS:
    /// The copy is to be shown; its line stays.
    void showWanted(const zephira::LeftCopy &copy);
    /// The copy is to stay in its folder, and not be asked about again.
    void keepWanted(const zephira::LeftCopy &copy);
    void deleteWanted(const zephira::LeftCopy &copy);

    /// The same for a report.
    void showReportWanted(const zephira::CrashReport &report);
    void keepReportWanted(const zephira::CrashReport &report);
    void deleteReportWanted(const zephira::CrashReport &report);

private:
    void fill();

    QList<LeftCopy> m_copies;
    QList<CrashReport> m_reports;
};

} // namespace zephira
