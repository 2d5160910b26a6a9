// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

namespace zephira {

/// A library that the program is made with.
struct Library {
    QStringView label;    ///< objectName of its line in the information box
    QStringView sentence; ///< what it does, without the name at its end
    QStringView name;
    QStringView address;
    QString version = {};
};

/// Qt with the version that runs, the others, which are loaded late, with those that the program was built with.
std::vector<Library> libraries();

/// The program and what is below it, a line each: for a report about an error. `desktop` is the name of the desktop and
/// of the connection to its display.
QString versionReport(const QString &version, const QString &desktop);

} // namespace zephira
