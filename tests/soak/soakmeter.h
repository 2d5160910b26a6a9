// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace zephira {

/// What the process holds at a moment of rest.
struct SoakSample {
    int step = 0;
    /// In bytes: what the system has given besides the pages of files, and what the program has asked for and not returned.
    /// Both without the pictures that windows are painted on.
    qint64 resident = 0;
    qint64 allocated = 0;
    qint64 pictures = 0;
    int descriptors = 0;
    /// The objects that windows and the application own.
    int objects = 0;
    int temporaryFiles = 0;
};

/// From now on, the library doesn't keep the pictures that it paints for controls and icons. It would keep them up to a
/// limit, but never free the names of those that it drops, and that would look like growth of the program. Large pieces of
/// memory are taken from the system one by one, and go back when they are freed.
void prepareMeasuring();

/// Measures this process. Temporary files are those directly in `temporaryFolder`, and any below it that are named like
/// the unfinished file of a write.
SoakSample measureProcess(int step, const QString &temporaryFolder);

/// What has grown by a twentieth or more from the end of the first tenth to the last, a sentence each; in a short soak, by
/// as much again. Both are the middle one of several samples, because threads may be busy at a moment.
QStringList growthOf(const std::vector<SoakSample> &samples);

QString described(const SoakSample &sample);

} // namespace zephira
