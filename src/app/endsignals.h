// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

namespace zephira {

/// Reports in the event loop that the process is asked to end by SIGTERM, SIGHUP or SIGINT, 50 milliseconds late, so
/// that keys pressed before are still taken. The first signal of each kind is reported; a second one has its default
/// effect and ends the process. Only one instance may exist in a process.
class EndSignals final : public QObject
{
    Q_OBJECT

public:
    explicit EndSignals(QObject *owner = nullptr);
    ~EndSignals() override;

Q_SIGNALS:
    void received();

private:
    int m_readEnd = -1;
};

} // namespace zephira
