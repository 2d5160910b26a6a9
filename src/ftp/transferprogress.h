// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// How far a run of transfers has come, and what its labels say of it. Amounts are in bytes.
struct TransferProgress {
    qint64 total = 0;
    qint64 doneFile = 0;
    qint64 doneAll = 0;

    /// In milliseconds, of the current file; until its first block, of the file before.
    qint32 elapsed = 0;
    /// In seconds: what the file before took.
    qint32 carried = 0;
    /// In thousands of bytes a second, each reading averaged with the value before; it goes on from file to file.
    float rate = 0;

    /// What the three labels of the time show, in seconds but for the rate. They are told from the first block on behind
    /// which a millisecond has gone by, and then keep the values of the last such block.
    struct Timing {
        double taken = 0;
        float rate = 0;
        double left = 0;
    };
    Timing timing = {};
    bool isTimed = false;

    /// Begins the next file. Call at the end of each file to carry its time over.
    void beginFile() { doneFile = 0; }
    void endFile();
    /// Counts a block of `bytes` that was moved `milliseconds` after the file's start.
    void addBlock(qint64 bytes, qint32 milliseconds);

    // The divisors 1000 and 1024 are mixed on purpose: the labels have always read so.
    QString movedText() const;
    QString leftText() const;
    QString timeText() const;
    QString rateText() const;
    QString timeLeftText() const;

private:
    double kilobytesLeft() const;
};

} // namespace zephira
