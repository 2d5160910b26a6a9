// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <array>
#include <optional>

namespace zephira {

/// A line over which a page is downloaded, in kilobytes (1024 bytes) per second.
struct LineSpeed {
    double kilobytesPerSecond = 0;
};

/// The four lines, from the slowest to the fastest: modems of 14.4, 28.8 and 56.6, and a cable modem.
constexpr LineSpeed modem14{1.612};
constexpr LineSpeed modem28{3.225};
constexpr LineSpeed modem56{6.25};
constexpr LineSpeed modemLan{24.68};

/// A size as "3.45 KB": the number's text cut to four characters below 10 and to five above, not rounded. Nothing for
/// exactly 10, which keeps the caption that the form was designed with.
std::optional<QString> sizeCaption(double kilobytes);

/// The time to download that much, as "2.14 Sec.", cut like the size. A number that is so small that its text has an
/// exponent is rewritten by a fixed pattern that is right only for the exponent -02; if the result isn't a number, the
/// caption is "0.00 Sec.".
QString timeCaption(double kilobytes, LineSpeed line);

} // namespace zephira
