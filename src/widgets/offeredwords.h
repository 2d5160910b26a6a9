// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

class QLineEdit;

namespace zephira {

/// Offers words for a field that takes any text, in a list that opens with the arrow in the field or with Alt+Down.
/// Nothing is put into the field unless the user chooses it, and typing doesn't open the list.
void offerWords(QLineEdit *field, const QStringList &words);

} // namespace zephira
