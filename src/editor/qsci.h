// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The editor library's headers, the only ones that need Qt's lower-case keywords.
#define signals Q_SIGNALS
#define slots Q_SLOTS
#include <Qsci/qsciprinter.h>
#include <Qsci/qsciscintillabase.h>
#undef slots
#undef signals
