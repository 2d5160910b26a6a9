// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/offeredwords.h"

#include "widgets/themeicon.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCompleter>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace zephira {

void offerWords(QLineEdit *field, const QStringList &words)
{
    auto *completer = new QCompleter(words, field);
    // As the field's own completer it would open the list during typing, and the list would take the Return key.
    completer->setWidget(field);
    QObject::connect(completer, qOverload<const QString &>(&QCompleter::activated), field, &QLineEdit::setText);
    QObject::connect(field, &QLineEdit::textEdited, completer->popup(), &QWidget::hide);
    QAction *open = field->addAction(themeIcon(u"go-down"_s, QStyle::SP_ArrowDown), QLineEdit::TrailingPosition);
    open->setText(u"Choose a word"_s);
    open->setToolTip(u"Choose a word (Alt+Down)"_s);
    open->setShortcut(Qt::ALT | Qt::Key_Down);
    open->setShortcutContext(Qt::WidgetShortcut);
    QObject::connect(open, &QAction::triggered, field, [field, completer] {
        field->setFocus();
        completer->setCompletionPrefix({});
        completer->complete();
    });
}

} // namespace zephira
