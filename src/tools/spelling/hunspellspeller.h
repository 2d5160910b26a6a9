// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/spelling/speller.h"

#include <QStringDecoder>
#include <QStringEncoder>

#include <memory>
#include <string>

class Hunspell;

namespace zephira {

/// Checks words with hunspell.
class HunspellSpeller final : public Speller
{
public:
    HunspellSpeller();
    ~HunspellSpeller() override;
    Q_DISABLE_COPY_MOVE(HunspellSpeller)

    Result<void> open(const Dictionary &dictionary) override;
    bool knows(const QString &word) override;
    QStringList suggestions(const QString &word) override;
    void add(const QString &word) override;
    void remove(const QString &word) override;

private:
    std::string encoded(const QString &word);

    std::unique_ptr<Hunspell> m_hunspell;
    /// Between text and the dictionary's character set.
    QStringEncoder m_encode;
    QStringDecoder m_decode;
};

} // namespace zephira
