// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bench/noprompts.h"
#include "core/clock.h"
#include "editor/codemax.h"
#include "files/diskfilestore.h"
#include "files/recoverycopies.h"

#include <QApplication>
#include <QTemporaryDir>

namespace zephira {

/// A code view on the screen.
struct ShownPage {
    ShownPage()
    {
        editor.resize(1000, 700);
        editor.setLanguage(QStringLiteral("HTML"));
        editor.show();
        paint();
    }

    void open(const QString &file)
    {
        if (!editor.openFile(file))
            qFatal("can't read %s", qPrintable(file));
        paint();
    }

    void paint()
    {
        editor.viewport()->repaint();
        QApplication::processEvents();
    }

    NoPrompts prompts;
    DiskFileStore files;
    SystemClock clock;
    QTemporaryDir folder;
    RecoveryCopies recovery{folder.path(), files, clock};
    CodeMax editor{{files, recovery, prompts}};
};

} // namespace zephira
