// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "web/designer/pagetokens.h"

#include <QHash>
#include <QStringView>

#include <span>
#include <vector>

namespace zephira {

/// For words of a loaded page that have no partner in its source: the tokens of the source that they are made of. The
/// engine joins words when it drops a tag between them, and moves words, for example out of a table. Words for which that
/// isn't certain are left out. `partners` has for each token of the loaded page its partner in the source, or -1.
QHash<int, std::vector<int>> otherPlaces(QStringView source, const std::vector<PageToken> &sourceTokens,
                                         QStringView loaded, const std::vector<PageToken> &tokens,
                                         std::span<const int> partners);

} // namespace zephira
