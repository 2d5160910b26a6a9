// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "completion/completiondata.h"
#include "completion/completionplace.h"
#include "completion/documentnames.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

namespace zephira {

/// An entry of the list.
struct Proposal {
    /// What is shown, and what is inserted but for quotes and the like; see proposalText().
    QString text;
    /// What is shown beside it: the character of an entity, that something is obsolete.
    QString note = {};
    /// What is known about it; nullptr for a name of the document or of a file.
    const DataRow *row = nullptr;
    /// Of two that fit equally well the one with more weight comes first.
    int weight = 0;

    friend bool operator==(const Proposal &, const Proposal &) = default;
};

/// Where proposals come from. The functions are called only where they are needed.
struct ProposalSources {
    const CompletionData &data;
    /// Names of colors.
    QStringList colours = {};
    std::function<DocumentNames()> names = {};
    /// The words of the document.
    std::function<QStringList()> words = {};
    /// The files in a folder, given as it is written in a link; the names of folders end in "/".
    std::function<QStringList(const QByteArray &folder)> files = {};
};

/// All that may stand at a place, each once, in the order in which they are shown before anything has been typed.
QList<Proposal> proposals(const CompletionPlace &place, PlaceLanguage language, const ProposalSources &sources);

/// What is inserted for an entry.
struct ProposalText {
    QByteArray text;
    /// The caret's place in it, in bytes.
    qsizetype caret = 0;
    /// Whether the list comes up again behind it, for what belongs to it.
    bool goesOn = false;

    friend bool operator==(const ProposalText &, const ProposalText &) = default;
};

/// @param typed   what was typed of the entry: if it is in upper case, so are the names of tags and attributes
/// @param behind  the text behind the caret, some bytes of it
ProposalText proposalText(const Proposal &proposal, const CompletionPlace &place, QByteArrayView typed,
                          QByteArrayView behind);

/// Since when browsers know something: "In all browsers since 2015", "Chrome 1, Edge 12, Firefox 1, Safari 1", or both.
QString sinceText(QByteArrayView since);

} // namespace zephira
