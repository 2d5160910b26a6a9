// SPDX-License-Identifier: GPL-3.0-or-later
#include "handbook/keytables.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

/// The tables of keys as HTML.
class TstKeyTables final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTableForEachGroup()
    {
        const std::vector<KeyGroup> groups{{u"Menu File"_s, {{u"Save <it>"_s, {u"Ctrl+S"_s}}}},
                                           {u"Code & view"_s, {{u"Larger text"_s, {u"Ctrl++"_s, u"Ctrl+<"_s}}}}};
        QCOMPARE(keyTables(groups), uR"(<h2>Menu File</h2>
<table>
<tr><th scope="col">Key</th><th scope="col">What it does</th></tr>
<tr><td><kbd>Ctrl+S</kbd></td><td>Save &lt;it&gt;</td></tr>
</table>
<h2>Code &amp; view</h2>
<table>
<tr><th scope="col">Key</th><th scope="col">What it does</th></tr>
<tr><td><kbd>Ctrl++</kbd>, <kbd>Ctrl+&lt;</kbd></td><td>Larger text</td></tr>
</table>
)"_s);
    }

    void nothing() { QCOMPARE(keyTables({}), QString()); }
};

ZEPHIRA_TEST(TstKeyTables)

#include "tst_keytables.moc"
