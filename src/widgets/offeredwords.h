// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

class QLineEdit;

namespace zephira {

/// Offers words for a field that takes any text: in a list that opens with the arrow in the field or with Alt+Down, and
/// while one of the words is being typed. Nothing is put into the field unless the user chooses it.
void offerWords(QLineEdit *field, const QStringList &words);

} // namespace zephira
