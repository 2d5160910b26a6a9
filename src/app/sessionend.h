// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QGuiApplication;

namespace zephira {

class WindowEnd;

/// Handles the end of the desktop session: asks about changes while the session can wait for an answer, and ends the
/// program without another question once the session is over.
class SessionEnd final : public QObject
{
    Q_OBJECT

public:
    SessionEnd(QGuiApplication &application, WindowEnd &end, QObject *owner = nullptr);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    WindowEnd &m_end;
};

} // namespace zephira
