// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/formcatalogue.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>

namespace zephira {

class LivingForm;
struct TestContext;

/// A golden case is a folder tests/golden/<area>/<case> with two files. fields.txt says what the user does, one step
/// per line, and expected.html is the text that is inserted into the document, byte for byte:
///
///     form frmTable
///     Text1 = 3
///     Check1 = on
///     press Command1
///
/// Values have the form that LivingForm::set() takes. If nothing is inserted, expected.html is empty.

/// Adds the column "folder" and a row for each case of an area; fails the test if there is none.
void addGoldenCases(const QString &area);

/// The content of a file of a case, and its lines without the empty ones; fails the test if the file can't be read.
QByteArray goldenContent(const QString &path);
QStringList goldenLines(const QString &path);

/// Plays one step of a case.
void playGoldenStep(const LivingForm &form, const QString &step);

/// Plays a case with a form from the catalogue and compares what it inserts.
void playGoldenCase(const FormCatalogue &catalogue, const QString &folder);

/// A step that only some forms know. Returns false for all others.
using GoldenStep = std::function<bool(TestContext &world, const LivingForm &form, const QString &step)>;

/// The same for a form that writes into an editing control of its own, which `makeCatalogue` takes from the world.
void playGoldenCase(const std::function<FormCatalogue(TestContext &world)> &makeCatalogue, const QString &folder,
                    const GoldenStep &ownStep);

} // namespace zephira
