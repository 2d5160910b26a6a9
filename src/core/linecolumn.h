// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

namespace zephira {

/// A place in a text: line and column count from 0, columns in UTF-16 code units.
struct LineColumn {
    int line = 0;
    int column = 0;

    friend bool operator==(const LineColumn &, const LineColumn &) = default;
};

/// The place of an index, which must not be inside a line end. Lines end with CR LF, CR or LF.
LineColumn lineColumnOf(QStringView text, qsizetype index);

/// The index of a place; the end of its line if there are fewer columns, and of the text if there are fewer lines.
qsizetype indexOf(QStringView text, const LineColumn &place);

} // namespace zephira
