// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/spellingmenu.h"

#include "core/errorstyles.h"
#include "editor/codemax.h"
#include "tools/spelling/lexicon.h"

#include <QAction>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr int longestSelection = 15;

} // namespace

SpellingMenu::SpellingMenu(QMenu &menu, CodeMax &editor, Lexicon &lexicon, QObject *owner)
    : QObject(owner), m_menu(menu), m_editor(editor), m_lexicon(lexicon)
{
    // The last row is a line, which menus otherwise leave out.
    menu.setSeparatorsCollapsible(false);
    connect(&editor, &CodeMax::RClick, this, [this](bool *handled) {
        // Without a dictionary the editing control shows its own menu, as if the word were right.
        endingQuietly([this, handled] {
            if (!isMisspelled())
                return;
            show();
            *handled = true;
        });
    });
    connect(&menu, &QMenu::triggered, this,
            [this](const QAction *chosen) { m_editor.setSelText(chosen->data().toString()); });
}

bool SpellingMenu::isMisspelled() const
{
    // The lexicon isn't loaded for a click that it has no part in.
    if (m_editor.selLength() == 0 || m_editor.selLength() > longestSelection)
        return false;
    orRaise(m_lexicon.OpenLexicon());
    return !m_lexicon.CheckWord(m_editor.selText());
}

void SpellingMenu::show()
{
    const QStringList words = m_lexicon.suggestions(m_editor.currentWord());
    const int count = static_cast<int>(words.size());
    for (int number = 1; number <= count; ++number) {
        QAction &suggestion = row(number);
        suggestion.setText(QString(words[number - 1]).replace(u'&', u"&&"_s));
        suggestion.setData(words[number - 1]);
        suggestion.setSeparator(false);
    }
    QAction &last = row(count + 1);
    last.setText(u"-"_s);
    last.setSeparator(true);
    const QList<QAction *> rows = m_menu.actions();
    for (qsizetype number = 1; number < rows.size(); ++number)
        rows[number]->setVisible(number <= count + 1);
    m_menu.popup(m_editor.menuPlace());
}

QAction &SpellingMenu::row(int number)
{
    const QList<QAction *> rows = m_menu.actions();
    if (number < rows.size())
        return *rows[number];
    QAction *added = m_menu.addAction(QString());
    added->setObjectName(u"sug_%1"_s.arg(number));
    return *added;
}

} // namespace zephira
