// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

namespace zephira {

/// The names and keywords of all languages that the program colours: elements, attributes, entities, keywords and
/// operators, as they stand in the definitions.
QStringList languageWords();

} // namespace zephira
