// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "completion/completionplace.h"
#include "problems/knownnames.h"
#include "problems/pagelinks.h"
#include "problems/problem.h"
#include "tools/tidyengine.h"

#include <QStringList>

#include <memory>

namespace zephira {

/// All that the check of a document needs. It owns or shares it, so that it may be made in another thread.
struct CheckOrder {
    QByteArray text; ///< UTF-8 with any line ends
    PlaceLanguage language = PlaceLanguage::Other;
    LinkPlaces places = {};
    std::shared_ptr<const KnownNames> names = {};
    /// Lives as long as the process; nullptr if there is none.
    const TidyEngine *tidy = nullptr;
};

struct CheckReport {
    /// By their places, at most `mostProblems` of them.
    std::vector<Problem> problems = {};
    /// There are more.
    bool isCut = false;
    /// What couldn't be checked, in sentences.
    QStringList notes = {};

    static constexpr std::size_t mostProblems = 1000;
};

/// Larger documents aren't checked, in bytes.
inline constexpr qsizetype largestChecked = 4 * 1024 * 1024;

/// Checks a document. The report of a check that nobody waits for any more says nothing.
CheckReport checkDocument(const CheckOrder &order, TidyWatch &watch);

} // namespace zephira
