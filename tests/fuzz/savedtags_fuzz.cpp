// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary saved meta tags: reading never fails, no text is longer than it may be, and what was read can be saved and
// read again.
#include "files/privateprofile.h"
#include "fuzz/fuzztarget.h"
#include "wizards/savedtags.h"

using namespace Qt::StringLiterals;

FUZZ_TARGET(savedtags)
{
    constexpr qsizetype longest = 999;
    const QByteArray content = zephira::fuzz::inputBytes(data, size);
    const zephira::SiteFacts facts = zephira::savedTags(content);
    for (const QString &fact : {facts.description, facts.keywords, facts.author, facts.copyright})
        check(fact.size() <= longest);
    const auto saved = zephira::withProfileValue({}, u"Saved Tags"_s, u"Desc"_s, facts.description);
    check(saved.has_value());
    QString expected = facts.description;
    expected.replace(QChar(u'\0'), QChar(u' '));
    check(zephira::savedTags(*saved).description == expected);
    return 0;
}
