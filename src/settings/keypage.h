// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "settings/keyplan.h"

#include <QObject>

class QTreeWidgetItem;

namespace zephira {

class CommandKeys;

namespace Ui {
class frmOptions;
}

/// The page of the options on which the commands of the menus get their keys. Nothing is in effect before it is saved.
class KeyPage final : public QObject
{
    Q_OBJECT

public:
    KeyPage(Ui::frmOptions &ui, CommandKeys &keys);

    Result<void> save();

private:
    void fill();
    void showKeys();
    void search();
    /// The command that is selected.
    std::optional<std::size_t> selected() const;
    void choose();
    /// Says what becomes of the keys in the box, and offers to set them if that makes sense.
    void judge();
    void set();
    void reset();
    void say(const QString &sentence);
    /// Tells which command has lost its keys.
    QString lossOf(std::size_t loser, const QString &keys) const;

    Ui::frmOptions &m_ui;
    CommandKeys &m_keys;
    KeyPlan m_plan;
};

} // namespace zephira
