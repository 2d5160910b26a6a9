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

/// A designer that shows, with the real engine.
///
/// Pages are given with their selection: "[" and "]" stand where it begins and ends, "|" where the caret is, and a "{"
/// directly before an element selects that as a whole. text() shows the page with the same signs. Such pages hold neither
/// these signs otherwise nor server code.
class DesignerBench
{
public:
    DesignerBench();

    /// Loads a page and sets its selection.
    void show(const QString &html);
    /// Loads a page as it is and waits until it can be edited.
    void load(const QString &html);
    void awaitComplete();

    QVariant run(DesignerCommand command, const QVariant &argument = {});
    int status(DesignerCommand command);
    /// What is in the body, with the selection in it.
    QString text();
    /// What is in the body.
    QString body();
    /// What a script gives back that runs in the world of the designer's own.
    QVariant ask(const QString &script);

    /// A key to the page, as the user presses it.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void type(const QString &text);
    /// Mouse at a place of the view in pixels.
    void mouse(QEvent::Type type, const QPoint &place, Qt::MouseButton button = Qt::LeftButton);
    void click(const QPoint &place);
    void drag(const QPoint &from, const QPoint &to);

    QString write(const QString &name, const QByteArray &content) const;

    QTemporaryDir folder;
    DiskFileStore files;
    ScriptedPrompts prompts;
    DesignerWidget designer{files, prompts};

    /// Milliseconds that a busy machine may need.
    static constexpr int patience = 60000;

private:
    /// Markup of the engine without the attributes that only the designer needs.
    static QString withoutOwnAttributes(QString markup);
    QWidget &target();

    int m_completed = 0;
};

} // namespace zephira
