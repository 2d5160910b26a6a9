// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands/commandrouter.h"
#include "commands/menutable.h"
#include "commands/palettetable.h"
#include "commands/tagsmenu.h"
#include "commands/toolbartable.h"
#include "core/inserttext.h"
#include "document/commondialog.h"
#include "document/document.h"
#include "support/fakes.h"
#include "views/designertools.h"
#include "views/workspaceviews.h"

#include <algorithm>
#include <set>

namespace zephira {

/// The window's parts as commands see them. It records each call as "name" or "name argument".
struct FakeParts final : ViewTabs,
                         CheckMarks,
                         PaneCommands,
                         FileListCommands,
                         WindowCommands,
                         PluginCommands,
                         TextCommands {
    QStringList calls;
    std::set<QString> checked;
    bool selectorPressed = false;

    // ViewTabs
    void selectNext() override { calls.append(QStringLiteral("selectNext")); }
    void selectTab(WorkspaceView view) override
    {
        calls.append(QStringLiteral("selectTab %1").arg(static_cast<int>(view)));
    }

    // CheckMarks
    bool isChecked(QStringView name) const override { return checked.contains(name.toString()); }
    void setChecked(QStringView name, bool on) override
    {
        if (on)
            checked.insert(name.toString());
        else
            checked.erase(name.toString());
    }

    // PaneCommands
    void selectSideTab(SideTab tab) override
    {
        calls.append(QStringLiteral("selectSideTab %1").arg(static_cast<int>(tab)));
    }
    void addCustomEntry() override { calls.append(QStringLiteral("addCustomEntry")); }
    void setSelectorListVisible(bool on) override { calls.append(QStringLiteral("setSelectorListVisible %1").arg(on)); }
    bool isSelectorPressed() const override { return selectorPressed; }
    void setSelectorPressed(bool pressed) override { selectorPressed = pressed; }
    void showReadme() override { calls.append(QStringLiteral("showReadme")); }
    void showFtp() override { calls.append(QStringLiteral("showFtp")); }
    void checkSpelling() override { calls.append(QStringLiteral("checkSpelling")); }

    // FileListCommands
    void showInQuickView() override { calls.append(QStringLiteral("showInQuickView")); }
    void insertLink() override { calls.append(QStringLiteral("insertLink")); }
    void editFilters() override { calls.append(QStringLiteral("editFilters")); }

    // PluginCommands
    void runPlugin(int entry) override { calls.append(QStringLiteral("runPlugin %1").arg(entry)); }

    // TextCommands
    void runTextCommand(TextCommand command) override
    {
        calls.append(QStringLiteral("runTextCommand %1").arg(static_cast<int>(command)));
    }

    // WindowCommands
    void newWindow() override { calls.append(QStringLiteral("newWindow")); }
    void exitNow() override { calls.append(QStringLiteral("exitNow")); }
    void updateProgram() override { calls.append(QStringLiteral("updateProgram")); }
    void setHighlightMode(int mode) override { calls.append(QStringLiteral("setHighlightMode %1").arg(mode)); }
};

/// The document's window, as far as commands need it.
struct FakeSurface final : DocumentWindow {
    QStringList captions;
    QStringList notices;
    int choosers = 0;

    void setCaption(const QString &caption) override { captions.append(caption); }
    void setCountPanel(int) override {}
    void setPathPanel(const QString &) override {}
    void showModified(bool) override {}
    void notice(const QString &sentence) override { notices.append(sentence); }
    void selectCodeTab() override {}
    void documentSettled() override {}
    void keepUnsavedText() override {}
    void showTemplateChooser() override { ++choosers; }
    void fileUsed(const QString &) override {}
    QString listedFile() const override { return {}; }
    QString listedFolder() const override { return {}; }
    void selectListedFile(const QString &) override {}
    Result<QSize> pictureSize(const QString &) const override { return QSize(); }
    Result<void> showPicture(const QString &) override { return {}; }
};

/// A router with a fake world and a real document. Text goes through the program's own inserter, so that a test sees
/// the effect on the document.
struct RouterBench {
    TestContext world;
    TextInserter inserter{world.editor, world.designer};
    FakeParts window;
    AppContext context{world.editor,   inserter,    world.designer, world.document,       world.configuration,
                       world.settings, world.files, world.prompts,  world.shell,          world.clipboard,
                       world.clock,    world.forms, world.keys,     world.context.appPath};
    CommonDialog dialog;
    FakeSurface surface;
    Document document{context, dialog, surface};
    DesignerTools designer{context};
    CommandRouter router{{context, document, window, window, window, window, window, designer, window, window}};

    /// Chooses a menu entry, which may be one of the tag menu.
    void menu(const QString &name)
    {
        if (const MenuItem *item = findMenuItem(name))
            router.run(item->command);
        else if (const QuickTag *tag = findTagsEntry(name))
            router.run({InsertsTag{tag}});
        else
            qFatal("no menu entry is named %s", qPrintable(name));
    }
    /// These click a button of the standard toolbar, one of the formatting toolbar, and an entry of a pull-down.
    void tBar(const QString &key) { router.run(button(standardToolBar(), key).command); }
    void toolbar1(const QString &key) { router.run(button(formattingToolBar(), key).command); }
    void pullDown(const QString &key)
    {
        for (const ToolButton &button : formattingToolBar().buttons) {
            for (const PullDownEntry &entry : button.pullDown) {
                if (entry.key == key)
                    return router.run(entry.command);
            }
        }
        qFatal("no pull-down has %s", qPrintable(key));
    }
    /// Clicks a button of the palette, given by its key or, if the buttons have none, by its position from 1.
    void palette(int index, const QString &key, int position)
    {
        const std::span<const QuickTag> buttons = paletteToolbars()[static_cast<std::size_t>(index)].buttons;
        const auto row = key.isEmpty()
            ? buttons.begin() + (position - 1)
            : std::ranges::find_if(buttons, [&](const QuickTag &tag) { return tag.key == key; });
        if (row >= buttons.end())
            qFatal("toolbar %d has no %s", index, qPrintable(key));
        router.runTag(*row);
    }

    RouterBench() = default;
    Q_DISABLE_COPY_MOVE(RouterBench)

    static const ToolButton &button(const ToolBarTable &bar, const QString &key)
    {
        const auto row = std::ranges::find_if(bar.buttons, [&](const ToolButton &button) { return button.key == key; });
        if (row == bar.buttons.end())
            qFatal("no button has the key %s", qPrintable(key));
        return *row;
    }

    /// Sets the text "[selected]" and selects what is between the brackets, which show what a command leaves alone.
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
