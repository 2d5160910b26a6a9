// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "assist/assistfixture.h"
#include "completion/completer.h"
#include "completion/completionpopup.h"
#include "core/languages.h"

#include <QListView>

namespace zephira {

/// A text that is completed, with the list of a small data file or another one.
struct CompletionBench : AssistFixture {
    explicit CompletionBench(const QByteArray &data = small())
    {
        world.files.contents[context.appPath + QStringLiteral("/deps/completion.dat")] = data;
        world.document.row = language::Html;
        editor.setLanguage(QStringLiteral("HTML"));
        helpers.start();
        show();
    }

    static QByteArray small()
    {
        return "A\tid\nA\tclass\t\t\tIts classes.\nA\thidden\tv\nA\ttitle\n"
               "T\ta\nA\thref\nA\ttarget\tt\nT\tdiv\t\t2015 C1\tA division.\nT\tdl\nT\tinput\nA\ttype\tit\nS\tt\nV\t_blank\nS\tit\n"
               "V\ttext\nV\tcheckbox\nP\tcolor\tc95\nV\tred\nP\tcontent\t50\nV\tnone\nP\ttop\t60\nV\tauto\n@\t@media\n:\t:hover\n:\t::before\n";
    }

    Completer &completer() { return helpers.completer(); }
    /// Types keys as a user does: to what has the focus.
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(window.windowHandle(), static_cast<Qt::Key>(key), modifiers);
    }
    /// The entries that are shown; empty if the list isn't.
    QStringList entries()
    {
        QStringList texts;
        const auto *list = window.findChild<QListView *>(QStringLiteral("completionList"));
        for (int row = 0; list && list->isVisible() && row < list->model()->rowCount(); ++row)
            texts.append(list->model()->index(row, 0).data().toString());
        return texts;
    }
};

} // namespace zephira
