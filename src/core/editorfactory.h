// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

class QWidget;

namespace zephira {

class EditingControl;

/// An editing control and its widget: two interfaces of one object, which the widget's parent owns.
struct EditorView {
    QWidget *widget = nullptr;
    EditingControl *control = nullptr;
};

/// Creates a read-only editing control; openFile() still works on it. Forms take this factory instead of the control's
/// class, so that they can be built and tested without the editor library.
using ViewerFactory = std::function<EditorView(QWidget *parent)>;

/// The same for an editing control that can be typed into.
using EditorFactory = std::function<EditorView(QWidget *parent)>;

} // namespace zephira
