// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QByteArray>

namespace zephira {

/// Makes the lines of the completion's data file, as completiondata.h describes them, from one of the two files of the
/// package: the one of HTML or the one of style sheets, in JSON. Descriptions lose their marks and links, and what goes
/// beyond a paragraph. An Error for anything else.
Result<QByteArray> completionLines(const QByteArray &json);

} // namespace zephira
