// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/textfunctions.h"
#include "commands/texttable.h"
#include "support/testregistry.h"

#include <QTest>

using namespace zephira;

/// The rows of the text's menus and what runs them.
class TstTextFunctions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachEntryForTheTextHasOne()
    {
        int entries = 0;
        for (const MenuItem &menu : textMenuTable()) {
            QCOMPARE(menu.kind, MenuItem::Kind::Menu);
            for (const MenuItem &entry : menu.children) {
                if (entry.need != Need::SourceView)
                    continue;
                ++entries;
                const auto *const command = std::get_if<TextCommand>(&entry.command.effect);
                QVERIFY2(!command || textFunction(*command), qPrintable(entry.name.toString()));
            }
        }
        QVERIFY(entries >= 2);
    }
};

ZEPHIRA_TEST(TstTextFunctions)

#include "tst_textfunctions.moc"
