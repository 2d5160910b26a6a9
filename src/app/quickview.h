// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zephira {

class ModalFormOpener;
class QuickViewer;

/// The quick view, made at its first use and kept for the next file; nullptr where there is none.
QuickViewer *quickViewer(ModalFormOpener &forms);

} // namespace zephira
