// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/tips.h"

#include "files/textlines.h"

using namespace Qt::StringLiterals;

namespace zephira {

QStringList tipLines(const QString &text)
{
    return textLines(text);
}

int drawTip(double random, int count)
{
    return static_cast<int>(random * count + 1);
}

QString tipInstructions()
{
    return u"That the TIPOFDAY.TXT file was not found? \r\n"
           "Create a text file named TIPOFDAY.TXT using NotePad with 1 tip per line. "
           "Then place it in the same directory as the application. "_s;
}

} // namespace zephira
