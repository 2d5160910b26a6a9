// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/diskfilestore.h"
#include "support/scriptedprompts.h"
#include "web/designer/designerpage.h"
#include "web/designer/designerwidget.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

namespace zephira {

/// A visible designer with the real engine.
///
/// Pages are given with markers for their selection: "[" and "]" where it begins and ends, "|" for the caret, and "{"
/// directly before an element that is selected as a whole. text() returns the page with the same markers. Such pages
/// must not use these characters otherwise, and must not contain server code.
class DesignerBench
{
public:
    DesignerBench();

    /// Loads a page and sets its selection.
    void show(const QString &html);
    /// Loads a page without interpreting markers, and waits until it can be edited.
    void load(const QString &html);
    /// Waits until the page that was set last can be edited.
    void awaitComplete();
    /// Waits until the page has reported a change.
    void awaitChange();

    QVariant run(DesignerCommand command, const QVariant &argument = {});
    int status(DesignerCommand command);
    /// The content of the body, with the markers of the selection.
    QString text();
    /// The content of the body.
    QString body();
    /// The result of a script that runs in the designer's own world.
    QVariant ask(const QString &script);

    /// Sends a key to the page as if the user had pressed it.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void type(const QString &text);
    /// Sends a mouse event at a position of the view, in pixels.
    void mouse(QEvent::Type type, const QPoint &place, Qt::MouseButton button = Qt::LeftButton);
    void click(const QPoint &place);
    void drag(const QPoint &from, const QPoint &to);

    QString write(const QString &name, const QByteArray &content) const;

    QTemporaryDir folder;
    DiskFileStore files;
    ScriptedPrompts prompts;
    DesignerWidget designer{files, prompts};

    /// Time-out in milliseconds, long enough for a busy machine.
    static constexpr int patience = 60000;

private:
    /// The engine's markup without the attributes that only the designer needs.
    static QString withoutOwnAttributes(QString markup);
    QWidget &target();
};

} // namespace zephira
