// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

namespace zephira {

/// Tells in the event loop that the system asks the process to end: by SIGTERM, SIGHUP or SIGINT. The first of each kind
/// is told, a second one ends the process as if nobody listened. One process has one of these.
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
