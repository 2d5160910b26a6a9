// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/keypage.h"

#include "core/itemroles.h"
#include "settings/keysequencebox.h"
#include "ui_frmoptions.h"
#include "widgets/keytext.h"

#include <QHeaderView>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

enum Column { CommandColumn, KeysColumn };

} // namespace

KeyPage::KeyPage(Ui::frmOptions &ui, CommandKeys &keys) : m_ui(ui), m_keys(keys), m_plan(keys.commands(), keys.others())
{
    // The list stays as it is when a sentence takes two lines.
    m_ui.lblkeyclash->setMinimumHeight(2 * m_ui.lblkeyclash->fontMetrics().lineSpacing());
    fill();
    showKeys();
    choose();
    connect(m_ui.txtkeysearch, &QLineEdit::textChanged, this, &KeyPage::search);
    connect(m_ui.lstkeys, &QTreeWidget::itemSelectionChanged, this, &KeyPage::choose);
    connect(m_ui.keyedit, &QKeySequenceEdit::keySequenceChanged, this, &KeyPage::judge);
    connect(m_ui.keyedit, &KeySequenceBox::confirmed, m_ui.cmdkeyset, &QPushButton::click);
    connect(m_ui.cmdkeyset, &QPushButton::clicked, this, &KeyPage::set);
    connect(m_ui.cmdkeyreset, &QPushButton::clicked, this, &KeyPage::reset);
}

Result<void> KeyPage::save()
{
    const Result<void> saved = m_keys.save(m_plan.changes());
    if (saved)
        m_plan.setSaved();
    return saved;
}

void KeyPage::fill()
{
    QTreeWidget *list = m_ui.lstkeys;
    list->setHeaderLabels({u"Command"_s, u"Keys"_s});
    for (const CommandKey &command : m_plan.commands()) {
        auto *row = new QTreeWidgetItem(list, {command.caption});
        row->setData(CommandColumn, KeyRole, command.name);
    }
    list->header()->setStretchLastSection(false);
    list->header()->setSectionResizeMode(CommandColumn, QHeaderView::Stretch);
    // A search doesn't change the columns.
    QFont changed = list->font();
    changed.setBold(true);
    list->header()->setSectionResizeMode(KeysColumn, QHeaderView::Fixed);
    list->header()->resizeSection(KeysColumn, QFontMetrics(changed).horizontalAdvance(u"Ctrl+Alt+Shift+F12 "_s));
}

/// What differs from what ships stands out.
void KeyPage::showKeys()
{
    for (int i = 0; i < m_ui.lstkeys->topLevelItemCount(); ++i) {
        const CommandKey &command = m_plan.command(static_cast<std::size_t>(i));
        QTreeWidgetItem *row = m_ui.lstkeys->topLevelItem(i);
        row->setText(KeysColumn, shownKeys(command.keys));
        QFont font = m_ui.lstkeys->font();
        font.setBold(command.keys != command.shipped);
        row->setFont(CommandColumn, font);
        row->setFont(KeysColumn, font);
    }
}

/// A selected command that isn't found is no longer selected: nothing happens to what can't be seen.
void KeyPage::search()
{
    for (int i = 0; i < m_ui.lstkeys->topLevelItemCount(); ++i) {
        QTreeWidgetItem *row = m_ui.lstkeys->topLevelItem(i);
        row->setHidden(!isFound(m_ui.txtkeysearch->text(), row->text(CommandColumn), row->text(KeysColumn)));
        if (row->isHidden())
            row->setSelected(false);
    }
}

std::optional<std::size_t> KeyPage::selected() const
{
    const QList<QTreeWidgetItem *> rows = m_ui.lstkeys->selectedItems();
    if (rows.isEmpty())
        return std::nullopt;
    return static_cast<std::size_t>(m_ui.lstkeys->indexOfTopLevelItem(rows.first()));
}

void KeyPage::choose()
{
    const auto row = selected();
    m_ui.keyedit->setEnabled(row.has_value());
    m_ui.cmdkeyreset->setText(row ? u"Reset"_s : u"Reset All"_s);
    m_ui.keyedit->setKeySequence(row ? QKeySequence::fromString(m_plan.command(*row).keys, QKeySequence::PortableText)
                                     : QKeySequence());
    judge();
}

void KeyPage::judge()
{
    say({});
    const auto row = selected();
    if (!row)
        say(u"Select a command, then press its new keys in the box."_s);
    const QString keys = m_ui.keyedit->keys();
    m_ui.cmdkeyset->setEnabled(row && keys != m_plan.command(*row).keys);
    if (!m_ui.cmdkeyset->isEnabled())
        return;
    const CommandKey &command = m_plan.command(*row);
    const QString refusal = keys == command.shipped ? QString() : keysRefusal(keys);
    const KeyClash clash = m_plan.clash(*row, keys);
    m_ui.cmdkeyset->setEnabled(refusal.isEmpty() && clash.yields());
    const QString shown = shownKeys(keys);
    if (!refusal.isEmpty())
        say(refusal);
    else if (clash.command)
        say(u"%1 runs %2. Set takes it from there."_s.arg(shown, m_plan.command(*clash.command).caption));
    else if (clash.isClash() && clash.yields())
        say(u"%1 %2. Set lets it run this command instead."_s.arg(shown, clash.other.use));
    else if (clash.isClash())
        say(u"%1 %2. Choose other keys."_s.arg(shown, clash.other.use));
}

void KeyPage::set()
{
    const QString keys = m_ui.keyedit->keys();
    const auto loser = m_plan.set(*selected(), keys);
    showKeys();
    choose();
    if (loser)
        say(lossOf(*loser, keys));
}

void KeyPage::reset()
{
    const auto row = selected();
    std::optional<std::size_t> loser;
    if (row)
        loser = m_plan.reset(*row);
    else
        m_plan.resetAll();
    showKeys();
    choose();
    if (loser)
        say(lossOf(*loser, m_plan.command(*row).keys));
}

/// Says a sentence below the box, and to those who can't see it.
void KeyPage::say(const QString &sentence)
{
    m_ui.lblkeyclash->setText(sentence);
    m_ui.keyedit->setAccessibleDescription(sentence);
}

QString KeyPage::lossOf(std::size_t loser, const QString &keys) const
{
    return u"%1 has lost %2."_s.arg(m_plan.command(loser).caption, shownKeys(keys));
}

} // namespace zephira
