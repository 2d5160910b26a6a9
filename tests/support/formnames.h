// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

class QWidget;

namespace zephira {

/// A control in its form's list of names. The list is tests/forms/names/<form>.txt, one control per line: name, class,
/// caption, separated by tabs; the form itself comes first, and controls that take the focus are in tab order. A "+"
/// before the name means that the control is created by code and isn't in the .ui file.
struct NamedControl {
    QString name;
    QString className;
    /// Text, title or window title, including "&", with line breaks as \n. Empty if code sets the text.
    QString caption;
    bool madeByCode = false;

    friend bool operator==(const NamedControl &, const NamedControl &) = default;
};

/// The list of a form; empty if there is none.
QList<NamedControl> readFormNames(const QString &form);

/// Path of the form's .ui file, which has the form's name in lower case; empty if the form is created by code.
QString uiFileOf(const QString &form);

/// All widgets and actions of a .ui file, in its order.
QList<NamedControl> readUiFile(const QString &path);

/// All named widgets and actions of a form, in the order of its focus chain, without the internal parts of Qt's own
/// controls.
QList<NamedControl> livingControls(const QWidget &form);

/// Names of the controls that the tab key reaches, or would reach if their page were shown, in that order.
QStringList tabOrder(const QWidget &form);

/// The name that assistive technology uses for a control: accessible name, label or caption; empty if it has none.
QString accessibleNameOf(const QWidget &control);

/// The differences between the list and the .ui file, or between the list and the form; one line per difference.
QStringList differencesFromUi(const QList<NamedControl> &list, const QList<NamedControl> &ui);
QStringList differencesFromForm(const QList<NamedControl> &list, const QWidget &form);

/// The lines of a list for this form in its current state, as a start for a new one.
QString formNamesText(const QWidget &form);

} // namespace zephira
