// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <vector>

namespace zephira {

/// Where a server puts something else into the page. Bytes of the text, `end` exclusive.
struct ServerBlock {
    qsizetype start = 0;
    qsizetype end = 0;
    /// Whether it is a program that may leave out what follows, or repeat it, and not only the output of a value.
    bool isProgram = false;

    friend bool operator==(const ServerBlock &, const ServerBlock &) = default;
};

/// A text whose server code is covered.
struct CoveredText {
    /// Each byte of server code is `cover`, apart from line ends; everything else stands where it stood.
    QByteArray text;
    /// In their order. Comments of a server language are covered without being listed.
    std::vector<ServerBlock> blocks = {};

    static constexpr char cover = '\x1a';
};

/// Covers `<% … %>`, `<?php … ?>`, `<? … ?>`, `{{ … }}`, `{% … %}`, includes by `<!--# … -->`, and tags of servers such as
/// `<asp:Label>` and `<cfif>`. In XML, instructions other than PHP are part of the document.
CoveredText coverServerCode(QByteArray text, bool isXml);

} // namespace zephira
