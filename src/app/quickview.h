// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zephira {

class ModalFormOpener;
class QuickViewer;

/// The quick view, created on first use and reused for later files; nullptr if the form isn't available.
QuickViewer *quickViewer(ModalFormOpener &forms);

} // namespace zephira
