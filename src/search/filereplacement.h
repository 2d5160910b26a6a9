// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/textchange.h"
#include "files/lineends.h"
#include "search/searchrun.h"

#include <vector>

namespace zephira {

class FileStore;
class RecoveryCopies;

/// What replaces the matches of a search.
struct ReplaceOrder {
    SearchRequest request;
    QString replacement = {};
};

/// The changes of a text, with any line ends, that replace the chosen ones of its matches. Line ends of the replacements
/// are line feeds. Fails with Code::Refused if the text doesn't have these matches any more.
/// @param chosen  for each match whether it is replaced
Result<TextChanges> replacementsIn(const QString &text, const ReplaceOrder &order,
                                   const std::vector<FoundMatch> &matches, const std::vector<bool> &chosen);

/// A text whose line ends are line feeds, with those of another kind.
QString withLineEnds(QString text, LineEnds lineEnds);

/// Replaces matches in a file, which is written in its own encoding and with its own line ends. A copy of the file is kept
/// among the recovery copies. A file that is no longer as it was when it was searched is left as it is, with
/// Code::Refused.
/// @param run  from RecoveryCopies::beginReplacing()
Result<void> replaceInFile(FileStore &files, RecoveryCopies &recovery, const QString &run, const ReplaceOrder &order,
                           const FoundFile &file, const std::vector<bool> &chosen);

} // namespace zephira
