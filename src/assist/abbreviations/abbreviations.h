// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "assist/abbreviations/abbreviationengine.h"
#include "assist/abbreviations/fieldsteps.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <vector>

namespace zephira {

class CodeMax;
class DocumentHost;
class WrapBar;

/// Expands abbreviations in the text of the code view, and wraps what is selected there.
class Abbreviations final : public QObject
{
    Q_OBJECT

public:
    struct Parts {
        CodeMax &rt;
        const DocumentHost &document;
        AbbreviationLoader load;
        /// Tells why nothing happened.
        std::function<void(const QString &)> notice;
    };

    explicit Abbreviations(Parts parts);
    ~Abbreviations() override;

    /// Expands the abbreviation before each caret, or what is selected. If one of them can't be expanded, nothing is.
    void expand();
    /// Asks in a bar over the text's lower edge for an abbreviation to wrap the selections with, or the carets' lines.
    void askForWrapping();

private:
    struct Selection {
        qsizetype start = 0;
        qsizetype end = 0;
    };
    /// What is put in the place of the bytes from start up to end. The fields' positions count from start.
    struct Edit {
        qsizetype start = 0;
        qsizetype end = 0;
        QByteArray text;
        std::vector<TextField> fields;
    };
    using Edits = Result<std::vector<Edit>>;

    Result<AbbreviationEngine *> engine() const;
    std::vector<Selection> selections() const;
    Selection contentOf(const Selection &selection) const;
    QString textOf(qsizetype start, qsizetype end) const;
    QString indentAt(qsizetype position) const;
    QString lineEnd() const;
    Result<AbbreviationSyntax> syntaxAt(qsizetype position, class OpenElements &reader) const;
    Edits expansions() const;
    Edits wrappings(const QString &abbreviation, qsizetype most) const;
    void apply(std::vector<Edit> edits);
    void preview();
    void wrap();

    const Parts m_parts;
    FieldSteps m_steps;
    QPointer<WrapBar> m_bar;
};

} // namespace zephira
