// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/transferprogress.h"

#include "core/vbtext.h"

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr QStringView kilobytesMask = u"### ### ###.##";
constexpr QStringView secondsMask = u"### ###";
constexpr QStringView rateMask = u"#.##";

} // namespace

void TransferProgress::endFile()
{
    carried = CLng(static_cast<double>(elapsed) / 1000);
}

void TransferProgress::addBlock(qint64 bytes, qint32 milliseconds)
{
    doneFile += bytes;
    doneAll += bytes;
    if (doneFile == 0)
        return;
    elapsed = milliseconds;
    if (elapsed < 1)
        return;
    rate = static_cast<float>(
        (static_cast<double>(doneFile) / 1000 / (static_cast<double>(elapsed) / 1000) + static_cast<double>(rate)) / 2);
    timing = {static_cast<double>(elapsed) / 1000 + carried, rate, kilobytesLeft() / static_cast<double>(rate)};
    isTimed = true;
}

double TransferProgress::kilobytesLeft() const
{
    return static_cast<double>(total) / 1000 - static_cast<double>(doneAll) / 1024;
}

QString TransferProgress::movedText() const
{
    return Format(static_cast<double>(doneAll) / 1024, kilobytesMask) + u" Kb"_s;
}

QString TransferProgress::leftText() const
{
    return Format(kilobytesLeft(), kilobytesMask) + u" Kb"_s;
}

QString TransferProgress::timeText() const
{
    return Format(timing.taken, secondsMask) + u" s"_s;
}

QString TransferProgress::rateText() const
{
    return Format(static_cast<double>(timing.rate), rateMask) + u" Kbps"_s;
}

QString TransferProgress::timeLeftText() const
{
    return Format(timing.left, secondsMask) + u" s"_s;
}

} // namespace zephira
