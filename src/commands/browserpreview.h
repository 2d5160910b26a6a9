// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zephira {

struct CommandParts;

/// Previews of the document in an external browser. Both show the file on disk, so they ask to save it first, even if
/// nothing has changed; answering "No" ends them.

/// Previews in the browser whose path is in the configuration; asks for the path if there is no such file.
void previewInNamedBrowser(const CommandParts &parts);

/// Previews in the program that the desktop opens such a file with.
void previewInDefaultBrowser(const CommandParts &parts);

} // namespace zephira
