// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>

#include <array>

class QLabel;
class QStatusBar;

namespace zephira {

class Clock;

/// The ten panels of the status bar, numbered from 1 and named `stBar_1` to `stBar_10`: line, total lines, keyboard
/// states, time, character count and file name.
class StatusPanels : public QObject
{
    Q_OBJECT

public:
    enum Panel { Line = 2, TotalLines = 4, CapsLock = 5, NumLock = 6, Insert = 7, Time = 8, Count = 9, FileName = 10 };

    StatusPanels(QStatusBar &bar, const Clock &clock);

    QString text(int panel) const;
    void setText(int panel, const QString &text);
    /// Shows a keyboard panel normally if `lit`, otherwise greyed out.
    void setLit(int panel, bool lit);
    /// Shows next to the path that the text differs from its file.
    void setUnsaved(bool unsaved);
    /// Shows a sentence over the panels for a while.
    void notice(const QString &sentence);

private:
    void showTime();

    QStatusBar &m_bar;
    const Clock &m_clock;
    std::array<QLabel *, 10> m_panels{};
    QTimer m_minute;
};

} // namespace zephira
