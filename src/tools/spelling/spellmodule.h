// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/spelling/hunspellspeller.h"

#include <QObject>

namespace zephira {

/// The object that the module provides to the program.
class SpellModule final : public QObject, public Speller
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.zephira.Speller")
    Q_INTERFACES(zephira::Speller)

public:
    Result<void> open(const Dictionary &dictionary) override { return m_speller.open(dictionary); }
    bool knows(const QString &word) override { return m_speller.knows(word); }
    QStringList suggestions(const QString &word) override { return m_speller.suggestions(word); }
    void add(const QString &word) override { m_speller.add(word); }
    void remove(const QString &word) override { m_speller.remove(word); }

private:
    HunspellSpeller m_speller;
};

} // namespace zephira
