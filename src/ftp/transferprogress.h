// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// The progress of a run of transfers, and the texts of its labels. Amounts are in bytes.
struct TransferProgress {
    qint64 total = 0;
    qint64 doneFile = 0;
    qint64 doneAll = 0;

    /// In milliseconds, for the current file; until its first block, for the previous file.
    qint32 elapsed = 0;
    /// In seconds: the time that the previous file took.
    qint32 carried = 0;
    /// In thousands of bytes per second. Each new reading is averaged with the previous value; it continues from file
    /// to file.
    float rate = 0;

    /// The values of the three time labels, in seconds except for the rate. They are set by each block at which at
    /// least a millisecond has passed, and otherwise keep the values of the last such block.
    struct Timing {
        double taken = 0;
        float rate = 0;
        double left = 0;
    };
    Timing timing = {};
    bool isTimed = false;

    /// Begins the next file. Call endFile() at the end of each one, to carry its time over.
    void beginFile() { doneFile = 0; }
    void endFile();
    /// Counts a block of `bytes` that was moved `milliseconds` after the file's start.
    void addBlock(qint64 bytes, qint32 milliseconds);

    // The divisors 1000 and 1024 are mixed on purpose: the labels have always shown these values.
    QString movedText() const;
    QString leftText() const;
    QString timeText() const;
    QString rateText() const;
    QString timeLeftText() const;

private:
    double kilobytesLeft() const;
};

} // namespace zephira
