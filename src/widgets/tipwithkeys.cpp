// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/tipwithkeys.h"

#include <QKeySequence>

using namespace Qt::StringLiterals;

namespace zephira {

QString tipWithKeys(QStringView tip, QStringView keys)
{
    if (keys.isEmpty())
        return tip.toString();
    const QKeySequence sequence = QKeySequence::fromString(keys.toString(), QKeySequence::PortableText);
    return u"%1 (%2)"_s.arg(tip, sequence.toString(QKeySequence::NativeText));
}

} // namespace zephira
