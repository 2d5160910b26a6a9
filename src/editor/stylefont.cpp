// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/stylefont.h"

#include <algorithm>

namespace zephira {

using Sci = QsciScintillaBase;

QFont styleFont(const SciEngine &engine, int style, qsizetype zoom)
{
    QByteArray name(engine.send(Sci::SCI_STYLEGETFONT, style) + 1, '\0');
    engine.sendText(Sci::SCI_STYLEGETFONT, style, name.data());
    QFont font(QString::fromUtf8(name.constData()));
    const double size =
        static_cast<double>(engine.send(Sci::SCI_STYLEGETSIZEFRACTIONAL, style)) / int{Sci::SC_FONT_SIZE_MULTIPLIER};
    font.setPointSizeF(std::max(size + static_cast<double>(zoom), 2.0));
    font.setBold(engine.send(Sci::SCI_STYLEGETBOLD, style));
    font.setItalic(engine.send(Sci::SCI_STYLEGETITALIC, style));
    font.setUnderline(engine.send(Sci::SCI_STYLEGETUNDERLINE, style));
    return font;
}

} // namespace zephira
