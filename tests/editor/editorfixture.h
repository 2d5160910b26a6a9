// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/codemax.h"
#include "editor/codemaxglobals.h"
#include "editor/editorappearance.h"
#include "editor/idlecolouring.h"
#include "files/recoverycopies.h"
#include "support/fakes.h"

#include <QTemporaryDir>
#include <QTest>

namespace zephira {

/// An editing control with files in memory and scripted prompts.
struct EditorFixture {
    ScriptedPrompts prompts;
    MemoryFileStore files;
    FakeClock clock;
    /// The copies are files in memory; only their folder exists on the disk.
    QTemporaryDir recoveryFolder;
    RecoveryCopies recovery{recoveryFolder.path(), files, clock};
    CodeMax editor{{files, recovery, prompts}};

    /// Shows the control, so that it has a layout and receives keys.
    void show(int width = 600, int height = 400)
    {
        editor.resize(width, height);
        editor.show();
        QVERIFY(QTest::qWaitForWindowExposed(&editor));
        editor.activateWindow();
        editor.setFocus();
        QTest::qWait(1);
    }

    /// Types a text with any characters, one key event per character.
    void type(const QString &text)
    {
        for (const QChar c : text) {
            QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, c);
            QCoreApplication::sendEvent(&editor, &press);
        }
    }

    /// Waits until everything that was requested has been coloured.
    void waitForColours()
    {
        editor.viewport()->repaint();
        QTRY_VERIFY(!editor.colouring().isPending());
    }

    /// The style numbers of the whole text, one character each: 0 to 9, and a for 10.
    QByteArray styles() const
    {
        QByteArray shown;
        for (qsizetype i = 0; i < editor.engine().length(); ++i)
            shown += "0123456789ab"[std::min(editor.engine().styleAt(i), 11)];
        return shown;
    }
};

} // namespace zephira
