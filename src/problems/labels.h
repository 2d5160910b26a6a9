// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "problems/markupreader.h"
#include "problems/problem.h"

#include <QSet>

#include <vector>

namespace zephira {

/// Whether the tag has the attribute, as it is or bound by a script library: `:alt`, `v-bind:alt`, `[alt]`.
bool hasAttribute(const MarkupTag &tag, QByteArrayView name);

/// Whether it is a picture without a text in its place.
bool lacksAlternative(const MarkupTag &tag);

/// Finds the controls of forms without a label.
class Labels
{
public:
    /// To be called with the tags in their order.
    void take(const MarkupTag &tag, QByteArrayView text);
    /// Tells the controls without a label, at the end of the page.
    /// @param isMadeByServer  a server may add labels anywhere
    void tell(bool isMadeByServer, ProblemSink &sink) const;

private:
    struct Control {
        qsizetype start = 0;
        qsizetype end = 0;
        QByteArrayView id;
        QByteArray key;
    };

    int m_depth = 0;
    bool m_hasDynamicLabels = false;
    QSet<QByteArrayView> m_labelled;
    std::vector<Control> m_controls;
};

} // namespace zephira
