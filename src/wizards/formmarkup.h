// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QList>
#include <QString>

namespace zephira {

// Forms and their drop-down menus. Fields are inserted as typed: nothing is quoted or checked. Lines end in CR LF.

struct FormFields {
    QString name = {};
    QString action = {};
    QString method = {};
    /// The number of text fields, as typed: rounded to an integer, halves to even. A text that isn't a number, or a
    /// number below 1, means none.
    QString count = {};
};

/// A form with numbered text fields and two buttons. Fails with Code::TooLarge for more than mostFormFields fields.
Result<QString> formMarkup(const FormFields &fields);

/// Nobody edits a form with more fields; two mistyped digits must not use up all memory.
constexpr int mostFormFields = 500'000;

/// An entry of a drop-down menu.
struct MenuChoice {
    QString text = {};
    bool selected = false;
    /// A single dot means that the choice has no value of its own.
    QString value = noValue.toString();

    static constexpr QStringView noValue = u".";

    friend bool operator==(const MenuChoice &, const MenuChoice &) = default;
};

struct MenuFields {
    QString name = {};
    QString height = {};
    bool multiple = false;
    /// Omitted if empty.
    QString tabOrder = {};
    /// Written for a server-side script: attribute values in doubled quotes …
    bool asp = false;
    /// … and each line in a statement that writes it. Without `asp` it has no effect.
    bool responseWrite = false;
    QList<MenuChoice> choices = {};
};

QString menuMarkup(const MenuFields &fields);

} // namespace zephira
