// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zephira {

struct CommandParts;

/// Previews of the document in a browser outside. Both show the file on the disk, so they ask to save it first, even if
/// nothing has changed; a "No" ends them.

/// In the browser whose path is kept in the configuration; it is asked for when it isn't there.
void previewInNamedBrowser(const CommandParts &parts);

/// In the program that the desktop opens such a file with.
void previewInDefaultBrowser(const CommandParts &parts);

} // namespace zephira
