// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/patternsearch.h"

#include <QByteArray>
#include <QByteArrayView>

#include <vector>

namespace zephira {

/// Tells from a file's bytes that a pattern can't match its text, much faster than the text can be decoded and searched.
/// It looks for bytes without which there is no match, in every encoding that files are read in.
class ByteFilter
{
public:
    explicit ByteFilter(const SearchRequest &request);

    /// False only if the text of these bytes holds no match.
    bool mayHold(QByteArrayView bytes) const;
    /// The most bytes of a match's necessary part that may lie before the border of two pieces of a file.
    qsizetype overlap() const;

private:
    struct Needle {
        QByteArray bytes; ///< in lower case, if case doesn't matter
        bool matchCase = true;
    };

    /// One of them is in every text with a match; empty if nothing is known about such texts.
    std::vector<Needle> m_needles;
};

/// The texts that every match of a regular expression holds, as far as they are easily seen; for example "img" and "src"
/// for `<?img\s.*src=?`. Empty if nothing is certain.
QStringList certainParts(const QString &expression);

} // namespace zephira
