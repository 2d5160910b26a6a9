// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

namespace zephira {

/// While an instance exists, library messages about expected conditions are not written to the terminal: that there is
/// no OpenGL, and that the web engine runs without its sandbox, which the program disables itself. All other messages
/// pass.
class QuietMessages
{
public:
    QuietMessages();
    ~QuietMessages();
    Q_DISABLE_COPY_MOVE(QuietMessages)

private:
    const QtMessageHandler m_usual;
};

} // namespace zephira
