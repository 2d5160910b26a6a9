// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary addresses: whatever was typed gives a valid address, and a full path that of its file.
#include "fuzz/fuzztarget.h"
#include "views/tabledimension.h"
#include "web/pageaddress.h"

#include <QUrl>

using namespace zephira;

FUZZ_TARGET(pageaddress)
{
    const QString text = zephira::fuzz::inputText(data, size);
    const QUrl address = pageAddress(text);
    check(address.isValid() && !address.scheme().isEmpty());
    if (text.startsWith(u'/') && !text.startsWith(u"//"))
        check(address.isLocalFile() && (address.toLocalFile() == text || text.contains(QChar(u'\0'))));
    const std::optional<int> dimension = tableDimension(text);
    check(!dimension || (*dimension >= 1 && *dimension <= 32767));
    return 0;
}
