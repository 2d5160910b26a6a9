// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "assist/abbreviations/abbreviationengine.h"

#include <QJSEngine>
#include <QJSValue>

namespace zephira {

/// The engine on the library Emmet, which is written in JavaScript. It is read when it is first used.
class EmmetLibrary final : public AbbreviationEngine
{
public:
    std::optional<FoundAbbreviation> find(const QString &line, qsizetype caret, AbbreviationSyntax syntax) override;
    Result<ExpandedAbbreviation> expand(const QString &abbreviation, const AbbreviationChoices &choices) override;

private:
    bool load();
    QJSValue call(const QString &function, const QJSValueList &arguments);

    std::unique_ptr<QJSEngine> m_engine;
    QJSValue m_library;
};

} // namespace zephira
