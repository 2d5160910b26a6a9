// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/tidyengine.h"

#include <QString>

#include <vector>

namespace zephira {

/// A cleaned document, with CR LF line ends, and what was said about the original one.
struct TidyOutcome {
    QString text;
    std::vector<TidyMessage> messages;
};

/// Cleans the content of a file. It is read in the file's own encoding. Takes as long as Tidy does, so it should run in
/// a thread of its own.
Result<TidyOutcome> tidied(const TidyEngine &engine, const QByteArray &file, const TidyChoices &choices,
                           TidyWatch &watch);

} // namespace zephira
