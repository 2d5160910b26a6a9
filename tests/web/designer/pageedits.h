// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "web/designer/designerbench.h"

#include <QRandomGenerator>
#include <QString>

namespace zephira {

/// A script for the designer's page in which these functions can be called: $(selector) gives an element, letter(word)
/// puts an X behind the word, select(word) selects it, run(command, value) runs a command of the engine.
QString editScript(const QString &calls);

/// A page of all kinds of markup, server code among it. So many per cent of its tags are dropped, doubled or moved.
QString randomPage(QRandomGenerator &random, int damage);

/// What became of edits at random.
struct RandomEdit {
    /// What is wrong with the text that was written, or nothing.
    QString fault;
    /// Whether the whole page was written.
    bool isWhole = false;
    QString text;
};

/// The page that the designer shows, without what doesn't belong to its text.
struct EditedTree {
    /// Its markup, without the numbers of marks and with comments for all of them.
    QString markup;
    /// Whether the engine reads that markup as the same page. It can't for example with a paragraph in a paragraph.
    bool canBeRead = false;
    /// Whether `written` is its markup as a whole, although the source isn't.
    bool isWhole = false;
};
EditedTree treeOf(DesignerBench &bench, const QString &source, const QString &written);

/// Loads the page, edits it at random, and loads what is written: that has to be read as the edited page, and the text
/// that is written without an edit has to be the page itself.
RandomEdit editAtRandom(DesignerBench &bench, const QString &page, QRandomGenerator &random, int edits);

} // namespace zephira
