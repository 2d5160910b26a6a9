// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

class QWidget;

namespace zephira {

/// A control as its form's list of names has it. The list is tests/forms/names/<form>.txt, one control a line: name,
/// class, caption, divided by tabs; the form itself stands first, controls that take the focus stand in tab order. A "+"
/// before the name says that code makes the control, so that it isn't in the .ui file.
struct NamedControl {
    QString name;
    QString className;
    /// Text, title or window title, with "&" as it stands and line breaks as \n. Empty where code sets the text.
    QString caption;
    bool madeByCode = false;

    friend bool operator==(const NamedControl &, const NamedControl &) = default;
};

/// The list of a form; empty when there is none.
QList<NamedControl> readFormNames(const QString &form);

/// Path of the form's .ui file, which bears its name in lower case; empty when the form is made by code.
QString uiFileOf(const QString &form);

/// All widgets and actions of a .ui file, in its order.
QList<NamedControl> readUiFile(const QString &path);

/// All named widgets and actions of a form, in the order of its focus chain; the parts that Qt's own controls are made
/// of are left out.
QList<NamedControl> livingControls(const QWidget &form);

/// Names of the controls that the tab key reaches, or would reach if their page were shown, in that order.
QStringList tabOrder(const QWidget &form);

/// What assistive technology calls a control: its accessible name, its label or its caption; empty if it has none.
QString accessibleNameOf(const QWidget &control);

/// What the list and the .ui file, or the list and the form, say differently; empty if nothing. One line a difference.
QStringList differencesFromUi(const QList<NamedControl> &list, const QList<NamedControl> &ui);
QStringList differencesFromForm(const QList<NamedControl> &list, const QWidget &form);

/// The lines of a list for this form as it is, to begin a new one with.
QString formNamesText(const QWidget &form);

} // namespace zephira
