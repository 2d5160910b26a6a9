// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QUrl>

namespace zephira {

/// The address for a text: a full path is a local file, whatever characters it contains; anything else is interpreted
/// as in a browser's address bar. Empty or invalid text gives the empty page.
///
///     pageAddress("/site/50% off#1.html") == "file:///site/50%25 off%231.html"
///     pageAddress("example.org/a") == "http://example.org/a"
QUrl pageAddress(const QString &text);

} // namespace zephira
