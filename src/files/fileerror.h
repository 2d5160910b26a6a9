// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QString>

namespace zephira {

// File error messages, all of one form: what could not be done with which file, and why.
//
//     The file "/home/me/a.htm" could not be saved: the disk is full.

/// `error` is the errno of the call that failed.
Error readError(const QString &path, int error);
Error saveError(const QString &path, int error);
Error removeError(const QString &path, int error);

/// The same with the given reason, a clause without a full stop.
Error readError(const QString &path, Error::Code code, const QString &reason);
Error saveError(const QString &path, Error::Code code, const QString &reason);

} // namespace zephira
