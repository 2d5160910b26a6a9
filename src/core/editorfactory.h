// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

class QWidget;

namespace zephira {

class EditingControl;

/// An editing control and the widget that it is, two views of one object that belongs to the widget's parent.
struct EditorView {
    QWidget *widget = nullptr;
    EditingControl *control = nullptr;
};

/// Makes an editing control that shows text and doesn't let the user change it; openFile() works on it all the same.
/// Forms take it instead of the control's class, so that they can be built and tested without the editor's library.
using ViewerFactory = std::function<EditorView(QWidget *parent)>;

} // namespace zephira
