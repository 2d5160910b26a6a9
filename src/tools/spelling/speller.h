// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"
#include "tools/spelling/dictionaries.h"

#include <QStringList>
#include <QtPlugin>

#include <functional>

namespace zephira {

/// Checks single words against one dictionary.
class Speller
{
public:
    virtual ~Speller() = default;

    /// Loads a dictionary in place of the current one. Added words are forgotten. Fails if the dictionary's files can't
    /// be used; the current one then stays.
    virtual Result<void> open(const Dictionary &dictionary) = 0;
    /// Whether the word is in the dictionary or was added. Without a dictionary no word is.
    virtual bool knows(const QString &word) = 0;
    /// Words that may have been meant, the likeliest first.
    virtual QStringList suggestions(const QString &word) = 0;
    /// Adds a word, which is then suggested too.
    virtual void add(const QString &word) = 0;
    /// Removes a word that was added.
    virtual void remove(const QString &word) = 0;
};

/// Returns the speller, loading its module at the first call; fails if it can't be loaded.
using SpellerLoader = std::function<Result<Speller *>()>;

} // namespace zephira

Q_DECLARE_INTERFACE(zephira::Speller, "org.zephira.Speller")
