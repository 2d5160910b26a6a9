// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/windowbench.h"
#include "commands/designerbar.h"
#include "commands/menus.h"
#include "commands/menutable.h"
#include "commands/palette.h"
#include "commands/palettecommands.h"
#include "commands/palettetable.h"
#include "commands/tagsmenu.h"
#include "commands/texttable.h"
#include "commands/toolbars.h"
#include "commands/toolbartable.h"
#include "core/documenthost.h"
#include "core/languages.h"
#include "support/actionwalk.h"
#include "support/testregistry.h"
#include "views/designertools.h"

#include <QMenuBar>
#include <QTest>
#include <QToolBar>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// All rows of the window: menus, pop-ups, toolbars with their pull-downs, and the palette.
QList<QAction *> rowsOf(const WindowBench &bench)
{
    QList<QAction *> found = actionsOf(*bench.window->menuBar());
    for (const std::span<const MenuItem> table : {popupTable(), textMenuTable()}) {
        for (const MenuItem &menu : table)
            found.append(actionsOf(*bench.find<QMenu>(menu.name.toString())));
    }
    QStringList bars{u"tBar"_s, u"Toolbar1"_s, u"Toolbar2"_s};
    for (int palette = 0; palette < 12; ++palette)
        bars.append(u"Toolbar_%1"_s.arg(palette));
    for (const QString &bar : std::as_const(bars))
        found.append(actionsOf(*bench.find<QToolBar>(bar)));
    // Combo boxes and other widgets in a toolbar are actions too, but can't be chosen.
    found.removeIf([](QAction *action) { return action->text().isEmpty() && !action->isCheckable(); });
    return found;
}

/// What the clicks have passed on, in their order.
struct Chosen {
    std::vector<Command> commands;
    std::vector<const QuickTag *> tags;
    std::vector<int> headings;
    std::vector<DesignerCommand> designer;

    std::size_t count() const { return commands.size() + tags.size() + headings.size() + designer.size(); }
};

/// Tells whether each kind of effect has all that it needs to do something.
class IsWhole
{
public:
    IsWhole(const FormCatalogue &catalogue, const QString &row) : m_catalogue(catalogue), m_row(row) {}

    bool operator()(std::monostate) const { return false; }
    bool operator()(EditorCommand command) const { return numberOf(command) > 0; }
    bool operator()(DesignerCommand command) const { return command != DesignerCommand::None; }
    bool operator()(TextCommand command) const { return findMenuItem(m_row)->command == Command{command}; }
    bool operator()(const OpensForm &effect) const { return m_catalogue.contains(effect.form.toString()); }
    bool operator()(const EditsView &effect) const { return effect.editor && effect.designer != DesignerCommand::None; }
    bool operator()(const EditsText &effect) const { return effect.editor; }
    bool operator()(const TurnsSwitch &effect) const { return effect.entry == m_row && effect.get && effect.set; }
    bool operator()(const SetsBlockFormat &effect) const { return effect.number < mostBlockFormats; }
    bool operator()(const WrapsSelection &effect) const { return !effect.before.isEmpty() && !effect.after.isEmpty(); }
    bool operator()(const RunsPlugin &effect) const
    {
        return m_row == u"%1_%2"_s.arg(menuname::pluginEntries).arg(effect.entry);
    }
    bool operator()(const InsertsTag &effect) const { return effect.tag && effect.tag->key == m_row; }
    /// A function, or an operation of a part.
    bool operator()(const auto &run) const { return run != nullptr; }

private:
    const FormCatalogue &m_catalogue;
    QString m_row;
};

/// Whether what was passed on does something. A button of the palette does what its kind says.
bool isWhole(const Chosen &chosen, const FormCatalogue &catalogue, const QString &row)
{
    if (!chosen.commands.empty())
        return std::visit(IsWhole(catalogue, row), chosen.commands.front().effect);
    if (!chosen.designer.empty())
        return chosen.designer.front() != DesignerCommand::None;
    if (!chosen.headings.empty())
        return row == u"H%1"_s.arg(chosen.headings.front());
    const QuickTag &tag = *chosen.tags.front();
    const QString form = tag.form().toString();
    return tag.key == row && PaletteCommands::hasEffect(tag.kind) && (form.isEmpty() || catalogue.contains(form));
}

} // namespace

/// Every action that can be chosen in the real window has exactly one effect.
class TstCommandRows final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachRowHasOneEffect()
    {
        WindowBench bench;
        bench.start();
        // The language that opens every toolbar.
        bench.window->context().document.setLanguageRow(language::Html);
        bench.window->menus().setMet(Need::ListedFile, true);
        bench.window->menus().setMet(Need::Plugin, true);
        const QList<QAction *> actions = rowsOf(bench);
        QStringList faults;
        int enabled = 0;
        for (QAction *action : actions) {
            faults.append(faultsOf(*action));
            enabled += action->isEnabled() && !action->isSeparator();
        }
        QCOMPARE(faults, QStringList());
        // A walk that misses most actions would find no fault either.
        QVERIFY2(actions.size() > 300, qPrintable(QString::number(actions.size())));
        QVERIFY2(enabled > 230, qPrintable(QString::number(enabled)));
    }

    /// Each signal that reports a chosen command has one receiver.
    void oneListensToEachSource()
    {
        WindowBench bench;
        bench.start();
        const auto command = SIGNAL(chosen(zephira::Command));
        QCOMPARE(Listeners::to(bench.window->menus(), command), 1);
        QCOMPARE(Listeners::to(*bench.find<QToolBar>(u"tBar"_s), command), 1);
        QCOMPARE(Listeners::to(*bench.find<QToolBar>(u"Toolbar1"_s), command), 1);
        const Palette *palette = bench.window->findChild<Palette *>();
        QVERIFY(palette);
        QCOMPARE(Listeners::to(*palette, SIGNAL(clicked(zephira::QuickTag))), 1);
        QCOMPARE(Listeners::to(*palette, SIGNAL(headingClicked(int))), 1);
        QCOMPARE(Listeners::to(*bench.find<QToolBar>(u"Toolbar2"_s), SIGNAL(buttonClicked(zephira::DesignerCommand))),
                 1);
    }

    /// Each row passes on one command that does something: a row with a receiver may still be empty.
    void eachRowHandsOnWhatItDoes()
    {
        WindowBench bench;
        bench.start();
        bench.window->context().document.setLanguageRow(language::Html);
        bench.window->menus().setMet(Need::VisualView, true);
        bench.window->menus().setMet(Need::ListedFile, true);
        bench.window->menus().setMet(Need::Plugin, true);
        const QList<QAction *> buttons = actionsOf(*bench.find<QToolBar>(u"Toolbar2"_s));
        for (QAction *action : buttons)
            action->setEnabled(true);
        const QList<QAction *> actions = choosable(rowsOf(bench));

        // The window no longer receives what is chosen.
        Chosen chosen;
        const auto note = [&](const Command &command) { chosen.commands.push_back(command); };
        Menus &menus = bench.window->menus();
        QVERIFY(disconnect(&menus, &Menus::chosen, nullptr, nullptr));
        connect(&menus, &Menus::chosen, this, note);
        const QList<CommandToolBar *> toolBars = bench.window->findChildren<CommandToolBar *>();
        for (auto *bar : toolBars) {
            QVERIFY(disconnect(bar, &CommandToolBar::chosen, nullptr, nullptr));
            connect(bar, &CommandToolBar::chosen, this, note);
        }
        auto *palette = bench.window->findChild<Palette *>();
        QVERIFY(disconnect(palette, &Palette::clicked, nullptr, nullptr));
        QVERIFY(disconnect(palette, &Palette::headingClicked, nullptr, nullptr));
        connect(palette, &Palette::clicked, this, [&](const QuickTag &tag) { chosen.tags.push_back(&tag); });
        connect(palette, &Palette::headingClicked, this, [&](int size) { chosen.headings.push_back(size); });
        DesignerBar &designerBar = bench.window->designerBar();
        QVERIFY(disconnect(&designerBar, &DesignerBar::buttonClicked, nullptr, nullptr));
        connect(&designerBar, &DesignerBar::buttonClicked, this,
                [&](DesignerCommand command) { chosen.designer.push_back(command); });

        for (QAction *action : actions) {
            const QString row = action->objectName();
            chosen = {};
            action->trigger();
            QVERIFY2(chosen.count() == 1, qPrintable(u"%1 \"%2\" %3"_s.arg(row, action->text()).arg(chosen.count())));
            QVERIFY2(isWhole(chosen, bench.catalogue, row), qPrintable(row));
        }
        QVERIFY2(actions.size() > 240, qPrintable(QString::number(actions.size())));
    }

    /// Each entry is enabled, and the form that it opens exists.
    void nothingIsClosed()
    {
        WindowBench bench;
        bench.start();
        bench.window->context().document.setLanguageRow(language::Html);
        bench.window->menus().setMet(Need::Plugin, true);
        const QList<QAction *> all = actionsOf(*bench.window->menuBar());
        for (const QAction *action : all) {
            const MenuItem *item = findMenuItem(action->objectName());
            const QuickTag *tag = findTagsEntry(action->objectName());
            if (!item && !tag)
                continue;
            const QString form = (item ? item->form : tag->form()).toString();
            QVERIFY2(form.isEmpty() || bench.catalogue.contains(form), qPrintable(form));
            const bool isOpen = !item || item->kind != MenuItem::Kind::Bar;
            if (!action->menu())
                QVERIFY2(action->isEnabled() == isOpen, qPrintable(action->objectName()));
        }
    }

    /// The check finds planted faults.
    void aWrongRowIsFound()
    {
        WindowBench bench;
        bench.start();
        QMenu *menu = bench.find<QMenu>(u"mnufile"_s);
        QToolBar *bar = bench.find<QToolBar>(u"tBar"_s);
        QAction *none = menu->addAction(u"None"_s);
        none->setObjectName(u"none"_s);
        bar->addAction(none);
        QCOMPARE(faultsOf(*none), QStringList{u"none \"None\" has 0 effects"_s});

        QAction *one = bench.find<QAction>(u"clearclip"_s);
        QCOMPARE(faultsOf(*one), QStringList());
        connect(one, &QAction::triggered, this, [] {});
        QCOMPARE(faultsOf(*one), QStringList{u"clearclip \"&Clear Clipboard\" has 2 effects"_s});
        connect(none, &QAction::triggered, this, [] {});
        QCOMPARE(faultsOf(*none), QStringList());

        QStringList all;
        const QList<QAction *> rows = rowsOf(bench);
        for (QAction *action : rows)
            all.append(faultsOf(*action));
        QCOMPARE(all, QStringList{u"clearclip \"&Clear Clipboard\" has 2 effects"_s});
    }
};

ZEPHIRA_TEST(TstCommandRows)
#include "tst_commandrows.moc"
