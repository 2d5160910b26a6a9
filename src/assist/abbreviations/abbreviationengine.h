// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QString>
#include <QStringList>
#include <QtPlugin>

#include <functional>
#include <optional>
#include <vector>

namespace zephira {

/// What an abbreviation is written in and becomes.
enum class AbbreviationSyntax {
    Html,
    Xhtml, ///< as HTML, with `<br />`
    Xml,
    StyleSheet,
    StyleAttribute, ///< declarations on one line
};

/// An abbreviation in a line. Positions are 0-based UTF-16 code units of the line.
struct FoundAbbreviation {
    QString abbreviation;
    qsizetype start = 0;
    qsizetype end = 0; ///< exclusive
};

/// A place in an expanded abbreviation that waits to be filled in. Positions are UTF-16 code units of the text.
struct AbbreviationField {
    int number = 0; ///< equal ones get the same text
    qsizetype start = 0;
    qsizetype length = 0;

    friend bool operator==(const AbbreviationField &, const AbbreviationField &) = default;
};

struct ExpandedAbbreviation {
    QString text;
    std::vector<AbbreviationField> fields; ///< in the order of the text
};

/// How an abbreviation is expanded.
struct AbbreviationChoices {
    AbbreviationSyntax syntax = AbbreviationSyntax::Html;
    QString lineEnd = QStringLiteral("\n");
    QString indent = QStringLiteral("\t");
    QString baseIndent = {};  ///< what each line but the first begins with
    QStringList wrapped = {}; ///< the lines that the markup goes around; empty for none
};

/// Makes markup and style sheets of abbreviations.
class AbbreviationEngine
{
public:
    /// How often an abbreviation may repeat elements in all, unless it wraps more lines than that.
    static constexpr int mostRepeats = 500;
    /// How many UTF-16 code units an abbreviation may have.
    static constexpr qsizetype longest = 1000;
    /// How many lines may be wrapped.
    static constexpr qsizetype mostWrapped = 2000;

    virtual ~AbbreviationEngine() = default;
    /// The abbreviation that ends at a place of a line.
    virtual std::optional<FoundAbbreviation> find(const QString &line, qsizetype caret, AbbreviationSyntax syntax) = 0;
    /// Fails with a sentence if the abbreviation can't be understood, or makes too much.
    virtual Result<ExpandedAbbreviation> expand(const QString &abbreviation, const AbbreviationChoices &choices) = 0;
};

/// Returns the engine, which lives as long as the process, loading its module at the first call; fails if it can't be
/// loaded.
using AbbreviationLoader = std::function<Result<AbbreviationEngine *>()>;

} // namespace zephira

Q_DECLARE_INTERFACE(zephira::AbbreviationEngine, "org.zephira.AbbreviationEngine")
