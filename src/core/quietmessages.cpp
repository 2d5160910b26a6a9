// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/quietmessages.h"

#include <QString>

#include <algorithm>
#include <cstdio>

namespace zephira {

namespace {

constexpr QStringView knownBeginnings[] = {
    u"QXcbIntegration: Cannot create platform OpenGL context",
    u"Sandboxing disabled by user",
    u"No suitable graphics backend found",
};

void passUnknown(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    const bool isKnown =
        std::ranges::any_of(knownBeginnings, [&](QStringView known) { return message.startsWith(known); });
    if (!isKnown)
        std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, message)));
}

} // namespace

QuietMessages::QuietMessages() : m_usual(qInstallMessageHandler(passUnknown)) {}

QuietMessages::~QuietMessages()
{
    qInstallMessageHandler(m_usual);
}

} // namespace zephira
