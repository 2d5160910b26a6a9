// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary private profiles: reading never fails, and a written value reads back while all other bytes stay unchanged.
#include "files/privateprofile.h"
#include "fuzz/fuzztarget.h"

#include <cstdlib>

using namespace Qt::StringLiterals;

FUZZ_TARGET(ini)
{
    // The first lines of the input are a section, a key and a value; the rest is the profile.
    QByteArrayView rest(data, static_cast<qsizetype>(size));
    QString names[3];
    for (QString &name : names) {
        const qsizetype end = rest.indexOf('\n');
        name = QString::fromUtf8(end < 0 ? rest : rest.first(end));
        rest = end < 0 ? QByteArrayView() : rest.sliced(end + 1);
    }
    const auto &[section, key, value] = names;
    const QByteArray profile = rest.toByteArray();

    const std::vector<zephira::ProfileEntry> before = zephira::profileEntries(profile);
    const bool isNew = !zephira::profileValue(profile, section, key);
    const std::optional<QByteArray> written = zephira::withProfileValue(profile, section, key, value);
    if (!written)
        return 0;
    QString expected = value;
    expected.replace(u'\r', u' ').replace(QChar(u'\0'), QChar(u' '));
    if (zephira::profileValue(*written, section, key) != expected)
        std::abort();
    if (zephira::profileEntries(*written).size() != before.size() + (isNew ? 1 : 0))
        std::abort();
    return 0;
}
