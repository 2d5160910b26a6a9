// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "assist/abbreviations/emmetlibrary.h"

#include <QObject>

namespace zephira {

/// The object that the module provides to the program.
class EmmetModule final : public QObject, public AbbreviationEngine
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.zephira.AbbreviationEngine")
    Q_INTERFACES(zephira::AbbreviationEngine)

public:
    std::optional<FoundAbbreviation> find(const QString &line, qsizetype caret, AbbreviationSyntax syntax) override
    {
        return m_library.find(line, caret, syntax);
    }
    Result<ExpandedAbbreviation> expand(const QString &abbreviation, const AbbreviationChoices &choices) override
    {
        return m_library.expand(abbreviation, choices);
    }

private:
    EmmetLibrary m_library;
};

} // namespace zephira
