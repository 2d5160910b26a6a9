// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands/commandrouter.h"
#include "commands/windowcommands.h"
#include "core/inserttext.h"
#include "support/fakes.h"

#include <set>

namespace zephira {

/// The main window as commands see it: it keeps what it was asked for, as "name" or "name argument".
struct FakeWindow final : WindowCommands {
    QStringList calls;
    std::set<QString> checked;

    void newDocument() override { calls.append(QStringLiteral("newDocument")); }
    void newFromTemplate() override { calls.append(QStringLiteral("newFromTemplate")); }
    void newWindow() override { calls.append(QStringLiteral("newWindow")); }
    void openDocument() override { calls.append(QStringLiteral("openDocument")); }
    void saveDocument() override { calls.append(QStringLiteral("saveDocument")); }
    void saveDocumentAs() override { calls.append(QStringLiteral("saveDocumentAs")); }
    void saveAsTemplate() override { calls.append(QStringLiteral("saveAsTemplate")); }
    void printDocument() override { calls.append(QStringLiteral("printDocument")); }
    void clearClipboard() override { calls.append(QStringLiteral("clearClipboard")); }
    void revert() override { calls.append(QStringLiteral("revert")); }
    void exitNow() override { calls.append(QStringLiteral("exitNow")); }
    void updateProgram() override { calls.append(QStringLiteral("updateProgram")); }
    void nextView() override { calls.append(QStringLiteral("nextView")); }
    void selectView(int tab) override { calls.append(QStringLiteral("selectView %1").arg(tab)); }
    void selectSideTab(int tab) override { calls.append(QStringLiteral("selectSideTab %1").arg(tab)); }
    void setSelectorListVisible(bool on) override { calls.append(QStringLiteral("setSelectorListVisible %1").arg(on)); }
    bool isChecked(const QString &name) const override { return checked.contains(name); }
    void setChecked(const QString &name, bool on) override
    {
        if (on)
            checked.insert(name);
        else
            checked.erase(name);
    }
    void setHighlightMode(int mode) override { calls.append(QStringLiteral("setHighlightMode %1").arg(mode)); }
    void showReadme() override { calls.append(QStringLiteral("showReadme")); }
    void showFtp() override { calls.append(QStringLiteral("showFtp")); }
    void openTagEditor(int page) override { calls.append(QStringLiteral("openTagEditor %1").arg(page)); }
    void checkSpelling() override { calls.append(QStringLiteral("checkSpelling")); }
};

/// A router between a fake world and a fake window. Text goes through the program's own inserter, so that a test sees what
/// becomes of the document.
struct RouterBench {
    TestContext world;
    TextInserter inserter{world.editor, world.designer};
    FakeWindow window;
    AppContext context{world.editor,   inserter,    world.designer,       world.document, world.configuration,
                       world.settings, world.files, world.prompts,        world.shell,    world.clipboard,
                       world.clock,    world.forms, world.context.appPath};
    CommandRouter router{context, window};

    RouterBench() = default;
    Q_DISABLE_COPY_MOVE(RouterBench)

    /// A text with `selected` selected in its middle: "[" and "]" around it show what a command leaves alone.
    void select(const QString &selected)
    {
        world.editor.setText(QStringLiteral("[") + selected + QStringLiteral("]"));
        world.editor.selectOffsets(1, 1 + static_cast<int>(selected.size()));
    }
    /// The text between the brackets.
    QString result() const { return world.editor.text().mid(1).chopped(1); }

    void expectLimitation(const QString &text, const QString &title = QStringLiteral("Feature Limitation"))
    {
        world.prompts.expect({text, title, Question::Icon::Information, Question::Buttons::Ok}, Answer::Ok);
    }
};

} // namespace zephira
