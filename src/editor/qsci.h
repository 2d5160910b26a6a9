// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The editor widget's own headers, the only ones that need Qt's keywords in lower case.
#define signals Q_SIGNALS
#define slots Q_SLOTS
#include <Qsci/qsciprinter.h>
#include <Qsci/qsciscintillabase.h>
#undef slots
#undef signals
