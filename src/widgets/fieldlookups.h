// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

class QAbstractButton;
class QLineEdit;

namespace zephira {

struct AppContext;
class ColourSwatch;
class FileLookup;

// Help for fields that take any text: the user can look up what is usual, and type everything else.

/// Lets a button fill the field with a reference to a file of any kind.
void offerFiles(QAbstractButton *button, QLineEdit *field, const AppContext &context,
                const std::shared_ptr<FileLookup> &lookup);

/// Lets a swatch show the colour in the field, and fill the field with another one, such as "#FF8000".
void offerColours(ColourSwatch *swatch, QLineEdit *field, const AppContext &context);

} // namespace zephira
