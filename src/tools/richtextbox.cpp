// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/richtextbox.h"

#include <QMimeData>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace zephira {

void RichTextBox::insertFromMimeData(const QMimeData *source)
{
    if (!source->hasHtml()) {
        QTextEdit::insertFromMimeData(source);
        return;
    }
    static const QRegularExpression strike(u"<(/?)strike\\b"_s, QRegularExpression::CaseInsensitiveOption);
    QMimeData known;
    known.setText(source->text());
    known.setHtml(source->html().replace(strike, u"<\\1s"_s));
    QTextEdit::insertFromMimeData(&known);
}

} // namespace zephira
