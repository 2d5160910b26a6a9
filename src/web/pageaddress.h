// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QUrl>

namespace zephira {

/// The address that a text means: a full path is a local file, whatever characters it holds; anything else is taken as
/// people type it. Empty text, and text that is no address, mean the empty page.
///
///     pageAddress("/site/50% off#1.html") == "file:///site/50%25 off%231.html"
///     pageAddress("example.org/a") == "http://example.org/a"
QUrl pageAddress(const QString &text);

/// Whether every browser takes a file of that name for a page.
bool isNamedAsPage(const QUrl &file);

} // namespace zephira
