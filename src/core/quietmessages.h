// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

namespace zephira {

/// While one of these lives, libraries don't tell the terminal what is as it should be: that there is no OpenGL, and that
/// the web engine does without the sandbox that we have switched off ourselves. All other messages pass.
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
