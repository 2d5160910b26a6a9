// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "assist/textfunctions.h"
#include "assist/texthelpers.h"
#include "core/inserttext.h"
#include "editor/codemax.h"
#include "files/recoverycopies.h"
#include "support/fakes.h"
#include "widgets/toolpanel.h"

#include <QMainWindow>
#include <QTemporaryDir>
#include <QTest>

namespace zephira {

/// The helpers of a real editing control in a window, with everything else faked. Texts written to it have CR LF.
struct AssistFixture {
    TestContext world;
    QTemporaryDir recoveryFolder;
    RecoveryCopies recovery{recoveryFolder.path(), world.files, world.clock};
    QMainWindow window;
    CodeMax &editor = *new CodeMax({world.files, recovery, world.prompts}, &window);
    TextInserter inserter{editor, world.designer};
    AppContext context{editor,         inserter,    world.designer, world.document,       world.configuration,
                       world.settings, world.files, world.prompts,  world.shell,          world.clipboard,
                       world.clock,    world.forms, world.keys,     world.context.appPath};
    ToolPanel &panel = *new ToolPanel(window);
    TextHelpers helpers{editor, context, panel};

    AssistFixture() { window.setCentralWidget(&editor); }
    Q_DISABLE_COPY_MOVE(AssistFixture)

    /// Shows the window, so that the control has a layout and receives keys.
    void show(int width = 800, int height = 600)
    {
        window.resize(width, height);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        window.activateWindow();
        editor.setFocus();
        QTest::qWait(1);
    }

    void run(TextCommand command) { textFunction(command)(helpers); }

    /// Types a text with any characters, one key event per character.
    void type(const QString &text)
    {
        for (const QChar c : text) {
            QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, c);
            QCoreApplication::sendEvent(&editor, &press);
        }
    }

    /// The text with "|" at the caret of the main selection, and "^" at its other end if something is selected.
    QString marked() const
    {
        const CodeMaxRange range = editor.selection(false);
        const QString text = editor.text();
        const auto offset = [&](int line, int column) {
            qsizetype start = 0;
            for (; line > 0; --line)
                start = text.indexOf(u'\n', start) + 1;
            return start + column;
        };
        const qsizetype anchor = offset(range.StartLineNo, range.StartColNo);
        const qsizetype caret = offset(range.EndLineNo, range.EndColNo);
        QString shown = text;
        shown.insert(std::max(anchor, caret), anchor > caret ? u'^' : u'|');
        if (anchor != caret)
            shown.insert(std::min(anchor, caret), anchor > caret ? u'|' : u'^');
        return shown;
    }

    /// Sets a text with such marks.
    void setMarked(QString text)
    {
        const qsizetype caret = text.indexOf(u'|');
        const qsizetype anchor = text.indexOf(u'^');
        Q_ASSERT(caret >= 0);
        text.remove(u'|').remove(u'^');
        const qsizetype from = anchor < 0 ? caret : anchor - (caret < anchor);
        const qsizetype to = caret - (anchor >= 0 && anchor < caret);
        editor.setText(text);
        const auto place = [&](qsizetype offset) {
            const QStringView before = QStringView(text).left(offset);
            const qsizetype line = before.count(u'\n');
            return std::pair(static_cast<int>(line), static_cast<int>(offset - (before.lastIndexOf(u'\n') + 1)));
        };
        const auto [startLine, startColumn] = place(from);
        const auto [endLine, endColumn] = place(to);
        editor.select({startLine, startColumn, endLine, endColumn});
    }
};

} // namespace zephira
