// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QAction;
class QMenu;

namespace zephira {

class CodeMax;
class Lexicon;

/// The pop-up menu of spelling suggestions. A right click on a selection of at most 15 characters that is misspelled
/// shows it in place of the editing control's own menu; the entry that is chosen replaces the selection.
class SpellingMenu final : public QObject
{
    Q_OBJECT

public:
    /// The menu has one row, the title; the rows below it are created when needed.
    SpellingMenu(QMenu &menu, CodeMax &editor, Lexicon &lexicon, QObject *owner);

private:
    bool isMisspelled() const;
    void show();
    QAction &row(int number);

    QMenu &m_menu;
    CodeMax &m_editor;
    Lexicon &m_lexicon;
};

} // namespace zephira
