// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/recoveryschedule.h"

namespace zephira {

std::optional<RecoverySchedule::Time> RecoverySchedule::changed(Time now)
{
    if (m_due)
        return {};
    m_due = now + delay;
    return delay;
}

RecoverySchedule::Time RecoverySchedule::copyFailed(Time now)
{
    m_due = now + delay;
    return delay;
}

} // namespace zephira
